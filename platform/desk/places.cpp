// Where windows stand and whether they show: rectangles, moving with its limits, showing, minimizing.
#include "ground.h"

#include <algorithm>

BOOL GetWindowRect(HWND window, RECT* rect) {
    const DeskWindow* row = Fails("GetWindowRect") ? nullptr : Named(window);
    if (row)
        *rect = row->place;
    return row != nullptr;
}

// A sizing frame is 4 pixels wide, that of a dialog 3, a thin border 1. A title bar takes 19 more on top.
RECT FrameOf(const DeskWindow& window) {
    const int bTitle = (window.style & WS_CAPTION) == WS_CAPTION;
    LONG width = window.style & WS_BORDER ? 1 : 0;
    if (bTitle)
        width = 3;
    if (window.style & WS_THICKFRAME)
        width = 4;
    return {width, bTitle ? width + 19 : width, width, width};
}

RECT ClientArea(const DeskWindow& window) {
    const RECT frame = FrameOf(window);
    return {0, 0, std::max(0, window.place.right - window.place.left - frame.left - frame.right),
            std::max(0, window.place.bottom - window.place.top - frame.top - frame.bottom)};
}

BOOL GetClientRect(HWND window, RECT* rect) {
    const DeskWindow* row = Fails("GetClientRect") ? nullptr : Named(window);
    if (row)
        *rect = ClientArea(*row);
    return row != nullptr;
}

// All monitors together.
static RECT WholeScreen() {
    RECT all = Desk.monitors.front();
    for (const RECT& monitor : Desk.monitors)
        all = {std::min(all.left, monitor.left), std::min(all.top, monitor.top),
               std::max(all.right, monitor.right), std::max(all.bottom, monitor.bottom)};
    return all;
}

// What the system allows a window that does not say otherwise: room for its title bar, and the whole screen
// with the frame outside.
static MINMAXINFO UsualLimits(const DeskWindow& window) {
    const LONG frames = 2 * FrameOf(window).left;
    const RECT screen = WholeScreen();
    MINMAXINFO limits{};
    limits.ptMaxTrackSize = {screen.right - screen.left + frames, screen.bottom - screen.top + frames};
    limits.ptMinTrackSize = {frames, frames};
    if ((window.style & WS_CAPTION) == WS_CAPTION)
        limits.ptMinTrackSize = {112, 27};
    return limits;
}

// A window of this process says its limits itself: when it has a sizing frame, or is neither popup nor child.
static void AskLimits(DeskWindow& window) {
    if (!window.procedure || !(window.style & WS_THICKFRAME || !(window.style & (WS_POPUP | WS_CHILD))))
        return;
    MINMAXINFO limits = UsualLimits(window);
    CallProcedure(window.handle, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    window.least = {limits.ptMinTrackSize.x, limits.ptMinTrackSize.y};
    window.most = {limits.ptMaxTrackSize.x, limits.ptMaxTrackSize.y};
}

static LONG Within(LONG size, LONG least, LONG most) {
    return std::max({std::min(size, most), least, 0});
}

void ApplyLimits(DeskWindow& window) {
    AskLimits(window);
    RECT& place = window.place;
    place.right = place.left + Within(place.right - place.left, window.least.cx, window.most.cx);
    place.bottom = place.top + Within(place.bottom - place.top, window.least.cy, window.most.cy);
}

void TellSize(HWND window) {
    RECT client{};
    if (const DeskWindow* row = Living(window))
        client = ClientArea(*row);
    CallProcedure(window, WM_SIZE, 0, MAKELPARAM(client.right, client.bottom));
}

// What the place of a window counts from, in screen pixels: a child's from its parent's client area.
static POINT OriginOf(const DeskWindow& window) {
    return window.style & WS_CHILD ? OnScreen(window.owner, 0, 0) : POINT{0, 0};
}

void TellPlace(HWND window) {
    POINT origin{};
    if (const DeskWindow* row = Living(window)) {
        const POINT corner = OnScreen(window, 0, 0);
        const POINT from = OriginOf(*row);
        origin = {corner.x - from.x, corner.y - from.y};
    }
    CallProcedure(window, WM_MOVE, 0, MAKELPARAM(origin.x, origin.y));
}

static int IsOnScreen(const RECT& place) {
    const RECT screen = WholeScreen();
    return place.left >= screen.left && place.top >= screen.top && place.right <= screen.right &&
           place.bottom <= screen.bottom;
}

// What stands in a window moves with it.
static void Shift(const DeskWindow& window, LONG dx, LONG dy) {
    for (const HWND handle : window.children) {
        DeskWindow& child = RowOf(handle);
        RECT& place = child.place;
        place = {place.left + dx, place.top + dy, place.right + dx, place.bottom + dy};
        Shift(child, dx, dy);
    }
}

// The picture moves with its window: it is painted again when its size is new or some of it was off the
// screen.
BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint) {
    DeskWindow* row = Fails("MoveWindow") ? nullptr : Named(window);
    if (!row)
        return FALSE;
    const RECT before = row->place;
    const POINT from = OriginOf(*row);
    row->place = {from.x + x, from.y + y, from.x + x + width, from.y + y + height};
    ApplyLimits(*row);
    const RECT now = row->place;
    Shift(*row, now.left - before.left, now.top - before.top);
    const bool bResized = now.right - now.left != before.right - before.left ||
                          now.bottom - now.top != before.bottom - before.top;
    if (repaint && (bResized || !IsOnScreen(before)))
        Invalidate(*row, nullptr, 1);
    if (now.left != before.left || now.top != before.top)
        TellPlace(window);
    if (bResized)
        TellSize(window);
    return TRUE;
}

static void Minimize(DeskWindow& window) {
    if (window.style & WS_MINIMIZE)
        return;
    window.bMaximizeAgain = (window.style & WS_MAXIMIZE) != 0;
    if (!window.bMaximizeAgain)
        window.restored = window.place;
    window.style = (window.style & ~WS_MAXIMIZE) | WS_MINIMIZE;
    window.place = {-32000, -32000, -31840, -31972};
}

static void Maximize(DeskWindow& window) {
    if (!(window.style & (WS_MINIMIZE | WS_MAXIMIZE)))
        window.restored = window.place;
    window.style = (window.style & ~WS_MINIMIZE) | WS_MAXIMIZE;
    window.place = Desk.monitors.front();
}

static void Restore(DeskWindow& window) {
    if (!(window.style & (WS_MINIMIZE | WS_MAXIMIZE)))
        return;
    if (window.style & WS_MINIMIZE && window.bMaximizeAgain) {
        Maximize(window);
        return;
    }
    window.style &= ~(WS_MINIMIZE | WS_MAXIMIZE);
    window.place = window.restored;
}

// The next window in sight takes the foreground from one that goes out of sight.
static void PassForeground(HWND from) {
    if (Desk.foreground != from)
        return;
    const auto inSight = [from](HWND handle) {
        return handle != from && (RowOf(handle).style & (WS_VISIBLE | WS_MINIMIZE)) == WS_VISIBLE;
    };
    const auto next = std::find_if(Desk.order.begin(), Desk.order.end(), inSight);
    Desk.foreground = next == Desk.order.end() ? nullptr : *next;
}

void Hide(DeskWindow& window) {
    window.style &= ~WS_VISIBLE;
    PassForeground(window.handle);
}

int IsInSight(HWND window) {
    const DeskWindow* row = Living(window);
    while (row && (row->style & WS_VISIBLE) && (row->style & WS_CHILD))
        row = Living(row->owner);
    return row && (row->style & WS_VISIBLE);
}

// A child neither becomes active nor takes a place among the windows of the desktop.
static void ShowChild(DeskWindow& child, int bVisible) {
    child.style = bVisible ? child.style | WS_VISIBLE : child.style & ~WS_VISIBLE;
    if (bVisible)
        Invalidate(child, nullptr, 1);
    else if (Desk.focus == child.handle)
        MoveFocus(child.owner);
}

static void ChangeState(DeskWindow& window, int command) {
    switch (command) {
    case SW_MINIMIZE: Minimize(window); break;
    case SW_MAXIMIZE: Maximize(window); break;
    case SW_RESTORE:
    case SW_SHOWNOACTIVATE: Restore(window); break;
    default: break;
    }
}

// SW_SHOW on a window that shows already does nothing.
static int Activates(int command, BOOL wasVisible) {
    return command == SW_SHOW ? !wasVisible : command == SW_RESTORE || command == SW_MAXIMIZE;
}

BOOL ShowWindow(HWND window, int command) {
    DeskWindow* row = Fails("ShowWindow") ? nullptr : Named(window);
    if (!row)
        return FALSE;
    const BOOL wasVisible = (row->style & WS_VISIBLE) != 0;
    if (row->style & WS_CHILD) {
        ShowChild(*row, command != SW_HIDE);
        return wasVisible;
    }
    if (command == SW_HIDE) {
        Hide(*row);
        return wasVisible;
    }
    ChangeState(*row, command);
    row->style |= WS_VISIBLE;
    if (!wasVisible)
        Invalidate(*row, nullptr, 1);
    if (command == SW_MINIMIZE)
        PassForeground(window);
    if (Activates(command, wasVisible))
        Activate(window);
    return wasVisible;
}

BOOL IsWindowVisible(HWND window) {
    return !Fails("IsWindowVisible") && Named(window) && IsInSight(window);
}

BOOL IsIconic(HWND window) {
    const DeskWindow* row = Fails("IsIconic") ? nullptr : Named(window);
    return row && (row->style & WS_MINIMIZE);
}

BOOL IsZoomed(HWND window) {
    const DeskWindow* row = Fails("IsZoomed") ? nullptr : Named(window);
    return row && (row->style & WS_MAXIMIZE);
}

static int Contains(const RECT& rect, POINT point) {
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top && point.y < rect.bottom;
}

HWND WindowFromPoint(POINT point) {
    if (Fails("WindowFromPoint"))
        return nullptr;
    for (const HWND handle : Desk.order)
        if ((RowOf(handle).style & WS_VISIBLE) && Contains(RowOf(handle).place, point))
            return handle;
    return nullptr;
}

// Hidden and disabled ones, too; the parent itself where no child is.
HWND ChildWindowFromPoint(HWND parent, POINT point) {
    const DeskWindow* row = Fails("ChildWindowFromPoint") ? nullptr : Named(parent);
    if (!row || !Contains(ClientArea(*row), point))
        return nullptr;
    const POINT at = OnScreen(parent, point.x, point.y);
    for (const HWND child : row->children)
        if (Contains(RowOf(child).place, at))
            return child;
    return parent;
}

BOOL ScreenToClient(HWND window, POINT* point) {
    if (Fails("ScreenToClient") || !Named(window))
        return FALSE;
    const POINT origin = OnScreen(window, 0, 0);
    *point = {point->x - origin.x, point->y - origin.y};
    return TRUE;
}

BOOL IntersectRect(RECT* shared, const RECT* a, const RECT* b) {
    *shared = {};
    if (Fails("IntersectRect"))
        return FALSE;
    const RECT both{std::max(a->left, b->left), std::max(a->top, b->top), std::min(a->right, b->right),
                    std::min(a->bottom, b->bottom)};
    if (both.left >= both.right || both.top >= both.bottom)
        return FALSE;
    *shared = both;
    return TRUE;
}

WORD TileWindows(HWND, UINT how, const RECT* rect, UINT count, const HWND* windows) {
    if (Fails("TileWindows"))
        return 0;
    Desk.tilings.push_back({
        how, *rect, {windows, windows + count}
    });
    return static_cast<WORD>(count);
}

BOOL FlashWindow(HWND window, BOOL) {
    return !Fails("FlashWindow") && Named(window);
}
