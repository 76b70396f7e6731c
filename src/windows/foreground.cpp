#include "windows/foreground.h"

#include "core/state.h"
#include "windows/window_table.h"

static HWND LastActive;

// Usually the foreground has not changed, and this costs one call.
void NoteForeground() {
    const HWND active = GetForegroundWindow();
    if (active != LastActive && active != MainWnd && IsManagedWindow(active))
        LastActive = active;
}

HWND LastActiveWindow() {
    return IsManagedWindow(LastActive) ? LastActive : nullptr;
}
