// Showing and hiding, minimized and maximized windows.
#include "internal.h"

#include <algorithm>

static void Minimize(DeskWindow& window) {
    if (window.style & WS_MINIMIZE)
        return;
    window.restoresMaximized = (window.style & WS_MAXIMIZE) != 0;
    if (!window.restoresMaximized)
        window.normalRect = window.rect;
    window.style = (window.style & ~WS_MAXIMIZE) | WS_MINIMIZE;
    window.rect = {-32000, -32000, -31840, -31972};
}

static void Maximize(DeskWindow& window) {
    if (!(window.style & (WS_MINIMIZE | WS_MAXIMIZE)))
        window.normalRect = window.rect;
    window.style = (window.style & ~WS_MINIMIZE) | WS_MAXIMIZE;
    const RECT margins = VisibleMargins(window);
    const RECT& work = DisplayFor(window.normalRect).work;
    window.rect = {work.left - margins.left, work.top - margins.top, work.right + margins.right,
                   work.bottom + margins.bottom};
}

static void Restore(DeskWindow& window) {
    if (!(window.style & (WS_MINIMIZE | WS_MAXIMIZE)))
        return;
    if (window.style & WS_MINIMIZE && window.restoresMaximized) {
        Maximize(window);
        return;
    }
    window.style &= ~(WS_MINIMIZE | WS_MAXIMIZE);
    window.rect = window.normalRect;
}

// The next visible window becomes the foreground window.
static void PassForeground(HWND from) {
    if (Desk.foreground != from)
        return;
    const auto visible = [from](HWND handle) {
        return handle != from && (WindowOf(handle).style & (WS_VISIBLE | WS_MINIMIZE)) == WS_VISIBLE;
    };
    const auto next = std::find_if(Desk.zOrder.begin(), Desk.zOrder.end(), visible);
    Desk.foreground = next == Desk.zOrder.end() ? nullptr : *next;
}

void HideWindow(DeskWindow& window) {
    window.style &= ~WS_VISIBLE;
    PassForeground(window.handle);
}

bool IsShown(HWND window) {
    const DeskWindow* record = LiveWindow(window);
    while (record && (record->style & WS_VISIBLE) && (record->style & WS_CHILD))
        record = LiveWindow(record->owner);
    return record && (record->style & WS_VISIBLE);
}

// Children are neither activated nor part of the desktop's z-order.
static void ShowChild(DeskWindow& child, bool visible) {
    child.style = visible ? child.style | WS_VISIBLE : child.style & ~WS_VISIBLE;
    if (visible)
        Invalidate(child, nullptr, true);
    else if (Desk.focus == child.handle)
        ChangeFocus(child.owner);
}

static void ChangeState(DeskWindow& window, int command) {
    switch (command) {
    case SW_SHOWMINIMIZED:
    case SW_SHOWMINNOACTIVE:
    case SW_MINIMIZE: Minimize(window); break;
    case SW_MAXIMIZE: Maximize(window); break;
    case SW_SHOWNORMAL:
    case SW_SHOWNOACTIVATE:
    case SW_RESTORE: Restore(window); break;
    default: break;
    }
}

// SW_SHOW does nothing to a visible window.
static bool Activates(int command, bool wasVisible) {
    if (command == SW_SHOW)
        return !wasVisible;
    return command == SW_SHOWNORMAL || command == SW_SHOWMINIMIZED || command == SW_RESTORE ||
           command == SW_MAXIMIZE;
}

void ApplyShowCommand(DeskWindow& window, int command) {
    const HWND handle = window.handle;
    if (command == SW_HIDE) {
        HideWindow(window);
        return;
    }
    const bool wasVisible = (window.style & WS_VISIBLE) != 0;
    ChangeState(window, command);
    window.style |= WS_VISIBLE;
    if (!wasVisible)
        Invalidate(window, nullptr, true);
    if (command == SW_MINIMIZE || command == SW_SHOWMINNOACTIVE)
        PassForeground(handle);
    if (Activates(command, wasVisible))
        Activate(handle);
}

BOOL ShowWindow(HWND window, int command) {
    DeskWindow* record = CallFails("ShowWindow") ? nullptr : ResolveForChange(window);
    if (!record)
        return FALSE;
    const BOOL wasVisible = (record->style & WS_VISIBLE) != 0;
    if (record->style & WS_CHILD)
        ShowChild(*record, command != SW_HIDE);
    else
        ApplyShowCommand(*record, command);
    return wasVisible;
}

BOOL IsWindowVisible(HWND window) {
    return !CallFails("IsWindowVisible") && ResolveHandle(window) && IsShown(window);
}

BOOL IsIconic(HWND window) {
    const DeskWindow* record = CallFails("IsIconic") ? nullptr : ResolveHandle(window);
    return record && (record->style & WS_MINIMIZE);
}

BOOL IsZoomed(HWND window) {
    const DeskWindow* record = CallFails("IsZoomed") ? nullptr : ResolveHandle(window);
    return record && (record->style & WS_MAXIMIZE);
}
