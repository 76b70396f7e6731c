// Foreground window, focus and z-order.
#include "controls.h"

#include <algorithm>

static bool IsOwn(HWND window) {
    const DeskWindow* record = LiveWindow(window);
    return record && record->procedure;
}

static bool IsTopmost(HWND window) {
    return (WindowOf(window).exStyle & WS_EX_TOPMOST) != 0;
}

void Raise(HWND window) {
    if (!std::erase(Desk.zOrder, window))
        return;
    auto position = Desk.zOrder.begin();
    if (!IsTopmost(window))
        position = std::find_if_not(position, Desk.zOrder.end(), IsTopmost);
    Desk.zOrder.insert(position, window);
}

HWND RootOf(HWND window) {
    while (WindowOf(window).style & WS_CHILD)
        window = WindowOf(window).owner;
    return window;
}

void ChangeFocus(HWND to) {
    const HWND from = Desk.focus;
    if (from == to)
        return;
    Desk.focus = to;
    if (to)
        WindowOf(RootOf(to)).dialogFocus = to;
    CallWndProc(from, WM_KILLFOCUS, reinterpret_cast<WPARAM>(to), 0);
    if (Desk.focus == to)
        CallWndProc(to, WM_SETFOCUS, reinterpret_cast<WPARAM>(from), 0);
}

// A dialog passes the focus to one of its controls.
static HWND FocusTarget(HWND window) {
    if (!IsOwn(window))
        return nullptr;
    const DeskWindow& record = WindowOf(window);
    if (!record.dialog)
        return window;
    const HWND inside = LiveWindow(record.dialogFocus) ? record.dialogFocus : NextTabStop(window, nullptr, 0);
    return inside ? inside : window;
}

static void BringToForeground(HWND window) {
    Raise(window);
    Desk.foreground = window;
    ChangeFocus(FocusTarget(window));
}

// Windows refuses the foreground to a process that has neither the foreground nor the last input.
static bool MayTakeForeground() {
    return !Desk.foregroundLock || Desk.ownsLastInput || !Desk.foreground || IsOwn(Desk.foreground);
}

void Activate(HWND window) {
    if (MayTakeForeground())
        BringToForeground(window);
    else
        Raise(window);
}

void FocusWindow(HWND window) {
    const HWND root = RootOf(window);
    if (Desk.foreground != root)
        Activate(root);
    if (Desk.foreground == root)
        ChangeFocus(window);
}

HWND GetForegroundWindow() {
    return CallFails("GetForegroundWindow") ? nullptr : Desk.foreground;
}

BOOL SetForegroundWindow(HWND window) {
    const DeskWindow* record = CallFails("SetForegroundWindow") ? nullptr : ResolveHandle(window);
    if (!record || !(record->style & WS_VISIBLE))
        return FALSE;
    if (!MayTakeForeground()) {
        Desk.flashing.push_back(window);
        return FALSE;
    }
    BringToForeground(window);
    return TRUE;
}

// Only windows of the calling thread can take the focus; their top-level window becomes active.
HWND SetFocus(HWND window) {
    const DeskWindow* record = CallFails("SetFocus") ? nullptr : ResolveHandle(window);
    if (!record || !record->procedure)
        return nullptr;
    const HWND before = Desk.focus;
    FocusWindow(window);
    return before;
}

HWND SetActiveWindow(HWND window) {
    const DeskWindow* record = CallFails("SetActiveWindow") ? nullptr : ResolveHandle(window);
    if (!record || !record->procedure)
        return nullptr;
    const HWND before = IsOwn(Desk.foreground) ? Desk.foreground : nullptr;
    Activate(window);
    return before;
}

BOOL BringWindowToTop(HWND window) {
    if (CallFails("BringWindowToTop") || !ResolveHandle(window))
        return FALSE;
    Raise(window);
    return TRUE;
}

static void InsertBelow(HWND window, HWND after) {
    const auto found = std::find(Desk.zOrder.begin(), Desk.zOrder.end(), after);
    if (found != Desk.zOrder.end() && std::erase(Desk.zOrder, window))
        Desk.zOrder.insert(std::find(Desk.zOrder.begin(), Desk.zOrder.end(), after) + 1, window);
}

static void Lower(HWND window) {
    if (std::erase(Desk.zOrder, window))
        Desk.zOrder.push_back(window);
}

void ChangeZOrder(DeskWindow& window, HWND after) {
    const bool topmost = after == HWND_TOPMOST || (after == HWND_TOP && IsTopmost(window.handle));
    window.exStyle = topmost ? window.exStyle | WS_EX_TOPMOST : window.exStyle & ~WS_EX_TOPMOST;
    if (after == HWND_BOTTOM)
        Lower(window.handle);
    else if (LiveWindow(after))
        InsertBelow(window.handle, after);
    else
        Raise(window.handle);
}

BOOL FlashWindow(HWND window, BOOL) {
    return !CallFails("FlashWindow") && ResolveHandle(window);
}
