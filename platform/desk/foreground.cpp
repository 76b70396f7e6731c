// Which window has the foreground and the focus, and the order from top to bottom.
#include "ground.h"

#include <algorithm>

static int IsOwn(HWND window) {
    const DeskWindow* row = Living(window);
    return row && row->procedure;
}

static int IsTopmost(HWND window) {
    return (RowOf(window).exStyle & WS_EX_TOPMOST) != 0;
}

void Raise(HWND window) {
    if (!std::erase(Desk.order, window))
        return;
    auto place = Desk.order.begin();
    if (!IsTopmost(window))
        place = std::find_if_not(place, Desk.order.end(), IsTopmost);
    Desk.order.insert(place, window);
}

// The focus goes with it when it is a window of this process.
void Activate(HWND window) {
    Raise(window);
    Desk.foreground = window;
    Desk.focus = IsOwn(window) ? window : nullptr;
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

// Only a window of the calling thread takes the focus, and becomes active unless it is a child.
HWND SetFocus(HWND window) {
    const DeskWindow* row = Fails("SetFocus") ? nullptr : Named(window);
    if (!row || !row->procedure)
        return nullptr;
    const HWND before = Desk.focus;
    if (!(row->style & WS_CHILD))
        Activate(window);
    Desk.focus = window;
    return before;
}

HWND SetActiveWindow(HWND window) {
    const DeskWindow* row = Fails("SetActiveWindow") ? nullptr : Named(window);
    if (!row || !row->procedure)
        return nullptr;
    const HWND before = IsOwn(Desk.foreground) ? Desk.foreground : nullptr;
    Activate(window);
    return before;
}

BOOL BringWindowToTop(HWND window) {
    if (Fails("BringWindowToTop") || !Named(window))
        return FALSE;
    Raise(window);
    return TRUE;
}

// As far as the order goes: topmost windows stand above all others.
static void PutAmongOthers(HWND window, int bTopmost) {
    std::erase(Desk.order, window);
    auto at = Desk.order.begin();
    if (!bTopmost)
        while (at != Desk.order.end() && (RowOf(*at).exStyle & WS_EX_TOPMOST))
            ++at;
    Desk.order.insert(at, window);
}

// Only what a change of place among the others needs.
BOOL SetWindowPos(HWND window, HWND after, int, int, int, int, UINT) {
    DeskWindow* row = Fails("SetWindowPos") ? nullptr : Named(window);
    if (!row)
        return FALSE;
    const int bTopmost = after == HWND_TOPMOST;
    row->exStyle = bTopmost ? row->exStyle | WS_EX_TOPMOST : row->exStyle & ~WS_EX_TOPMOST;
    PutAmongOthers(window, bTopmost);
    return TRUE;
}
