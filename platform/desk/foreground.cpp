// Which window has the foreground and the focus, and the order from top to bottom.
#include "controls.h"

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

HWND RootOf(HWND window) {
    while (RowOf(window).style & WS_CHILD)
        window = RowOf(window).owner;
    return window;
}

void MoveFocus(HWND to) {
    const HWND from = Desk.focus;
    if (from == to)
        return;
    Desk.focus = to;
    if (to)
        RowOf(RootOf(to)).focusInside = to;
    CallProcedure(from, WM_KILLFOCUS, reinterpret_cast<WPARAM>(to), 0);
    if (Desk.focus == to)
        CallProcedure(to, WM_SETFOCUS, reinterpret_cast<WPARAM>(from), 0);
}

// A dialog hands the focus on to one of its controls.
static HWND FocusIn(HWND window) {
    if (!IsOwn(window))
        return nullptr;
    const DeskWindow& row = RowOf(window);
    if (!row.dialog)
        return window;
    const HWND inside = Living(row.focusInside) ? row.focusInside : NextTabStop(window, nullptr, 0);
    return inside ? inside : window;
}

// The focus goes with it when it is a window of this process.
void Activate(HWND window) {
    Raise(window);
    Desk.foreground = window;
    MoveFocus(FocusIn(window));
}

void GoTo(HWND window) {
    const HWND root = RootOf(window);
    if (Desk.foreground != root)
        Activate(root);
    MoveFocus(window);
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

// Only a window of the calling thread takes the focus; it, or what it stands in, becomes active.
HWND SetFocus(HWND window) {
    const DeskWindow* row = Fails("SetFocus") ? nullptr : Named(window);
    if (!row || !row->procedure)
        return nullptr;
    const HWND before = Desk.focus;
    GoTo(window);
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
