// Rectangles compare, and a mismatch prints both sides.
#pragma once

#include "core/platform.h"

#include <ostream>

inline bool operator==(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

inline void PrintTo(const RECT& rect, std::ostream* out) {
    *out << '(' << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << ')';
}

inline RECT Moved(const RECT& rect, int dx, int dy) {
    return {rect.left + dx, rect.top + dy, rect.right + dx, rect.bottom + dy};
}

// Zeros for a window that does not exist.
inline RECT WindowRect(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect;
}
