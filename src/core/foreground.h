// Handing the foreground to a window.
#pragma once

#include "core/platform.h"

// Focus, active window, top of the order, foreground: each call has its effect on windows of ours or of
// others only. The result of the last one.
inline int GiveForeground(HWND window) {
    SetFocus(window);
    SetActiveWindow(window);
    BringWindowToTop(window);
    return SetForegroundWindow(window);
}
