#include "windows/foreground.h"

#include "core/state.h"
#include "windows/window_table.h"

static HWND LastActive;

// In a quiet tick the foreground window is the one noted before, and one call is enough.
void NoteForeground() {
    const HWND active = GetForegroundWindow();
    if (active != LastActive && active != MainWnd && IsManagedWindow(active))
        LastActive = active;
}

HWND LastActiveWindow() {
    return IsManagedWindow(LastActive) ? LastActive : nullptr;
}
