// Small helpers for rectangles and mouse positions.
#pragma once

#include "core/arithmetic.h"
#include "core/platform.h"

constexpr int Width(const RECT& rect) {
    return Wrap(0LL + rect.right - rect.left);
}

constexpr int Height(const RECT& rect) {
    return Wrap(0LL + rect.bottom - rect.top);
}

constexpr RECT Offset(const RECT& rect, int dx, int dy) {
    return {Wrap(0LL + rect.left + dx), Wrap(0LL + rect.top + dy), Wrap(0LL + rect.right + dx),
            Wrap(0LL + rect.bottom + dy)};
}

// Each side moved inwards by its margin, or outwards by a negative one.
constexpr RECT Shrink(const RECT& rect, const RECT& margins) {
    return {Wrap(0LL + rect.left + margins.left), Wrap(0LL + rect.top + margins.top),
            Wrap(0LL + rect.right - margins.right), Wrap(0LL + rect.bottom - margins.bottom)};
}

constexpr bool IsSameRect(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

// The size is halved first and truncated.
constexpr POINT MiddleOf(const RECT& rect) {
    return {Wrap(0LL + Width(rect) / 2 + rect.left), Wrap(0LL + Height(rect) / 2 + rect.top)};
}

// The cursor position in a mouse message: two signed 16-bit numbers in client coordinates, beyond the client
// area while a window has the capture.
inline POINT MousePosition(LPARAM lParam) {
    const auto both = static_cast<DWORD_PTR>(lParam);
    return {static_cast<SHORT>(LOWORD(both)), static_cast<SHORT>(HIWORD(both))};
}
