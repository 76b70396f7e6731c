// Handing the foreground to a window.
#pragma once

#include "core/platform.h"
#include "scroll/shift.h"

// Focus, active window, top of the order, foreground: each call has its effect on windows of ours or of
// others only. The result of the last one; 0 too for a window that does not answer within SCROLL_PATIENCE,
// which is left alone: raising it would wait for as long as its program hangs.
inline int GiveForeground(HWND window) {
    if (!IsAlive(window))
        return 0;
    SetFocus(window);
    SetActiveWindow(window);
    BringWindowToTop(window);
    return SetForegroundWindow(window);
}
