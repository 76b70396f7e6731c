// Which window has the foreground and the focus, and the order from top to bottom.
#include "ground.h"

static void Raise(HWND window) {
    if (std::erase(Desk.order, window))
        Desk.order.insert(Desk.order.begin(), window);
}

void Activate(HWND window) {
    Raise(window);
    Desk.foreground = window;
}

HWND GetForegroundWindow() {
    return Fails("GetForegroundWindow") ? nullptr : Desk.foreground;
}

BOOL SetForegroundWindow(HWND window) {
    const DeskWindow* row = Fails("SetForegroundWindow") ? nullptr : Named(window);
    if (!row || !(row->style & WS_VISIBLE))
        return FALSE;
    Activate(window);
    return TRUE;
}

// Only a window of the calling thread takes the focus.
HWND SetFocus(HWND window) {
    const DeskWindow* row = Fails("SetFocus") ? nullptr : Named(window);
    if (!row || !row->procedure)
        return nullptr;
    const HWND before = Desk.focus;
    Desk.focus = window;
    return before;
}

HWND SetActiveWindow(HWND window) {
    const DeskWindow* row = Fails("SetActiveWindow") ? nullptr : Named(window);
    if (!row || !row->procedure)
        return nullptr;
    const HWND before = Desk.foreground;
    Activate(window);
    return before;
}

BOOL BringWindowToTop(HWND window) {
    if (Fails("BringWindowToTop") || !Named(window))
        return FALSE;
    Raise(window);
    return TRUE;
}
