// Window rectangles: reading them, size limits, moving.
#include "internal.h"

#include <algorithm>
#include <utility>

LONG Narrow(long long value) {
    return static_cast<LONG>(value);
}

LONG Width(const RECT& rect) {
    return Narrow(static_cast<long long>(rect.right) - rect.left);
}

LONG Height(const RECT& rect) {
    return Narrow(static_cast<long long>(rect.bottom) - rect.top);
}

RECT RectAt(long long left, long long top, long long width, long long height) {
    return {Narrow(left), Narrow(top), Narrow(left + width), Narrow(top + height)};
}

RECT OffsetBy(const RECT& rect, long long dx, long long dy) {
    return {Narrow(rect.left + dx), Narrow(rect.top + dy), Narrow(rect.right + dx), Narrow(rect.bottom + dy)};
}

bool Contains(const RECT& rect, POINT point) {
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top && point.y < rect.bottom;
}

BOOL IntersectRect(RECT* shared, const RECT* a, const RECT* b) {
    *shared = {};
    if (CallFails("IntersectRect"))
        return FALSE;
    const RECT both{std::max(a->left, b->left), std::max(a->top, b->top), std::min(a->right, b->right),
                    std::min(a->bottom, b->bottom)};
    if (both.left >= both.right || both.top >= both.bottom)
        return FALSE;
    *shared = both;
    return TRUE;
}

BOOL GetWindowRect(HWND window, RECT* rect) {
    const DeskWindow* record = CallFails("GetWindowRect") ? nullptr : ResolveHandle(window);
    if (record)
        *rect = record->rect;
    return record != nullptr;
}

// A sizing frame is 4 pixels wide, a dialog frame 3, a thin border 1. A caption adds 19 at the top.
RECT FrameWidths(const DeskWindow& window) {
    const bool hasCaption = (window.style & WS_CAPTION) == WS_CAPTION;
    LONG width = window.style & WS_BORDER ? 1 : 0;
    if (hasCaption)
        width = 3;
    if (window.style & WS_THICKFRAME)
        width = 4;
    return {width, hasCaption ? width + 19 : width, width, width};
}

RECT ClientRect(const DeskWindow& window) {
    const RECT frame = FrameWidths(window);
    const LONG width = std::max(Width(window.rect), 0);
    const LONG height = std::max(Height(window.rect), 0);
    return {0, 0, std::max(0, width - frame.left - frame.right),
            std::max(0, height - frame.top - frame.bottom)};
}

BOOL GetClientRect(HWND window, RECT* rect) {
    const DeskWindow* record = CallFails("GetClientRect") ? nullptr : ResolveHandle(window);
    if (record)
        *rect = ClientRect(*record);
    return record != nullptr;
}

POINT ToScreen(HWND window, int x, int y) {
    const DeskWindow& record = WindowOf(window);
    const RECT frame = FrameWidths(record);
    return {Narrow(0LL + record.rect.left + frame.left + x), Narrow(0LL + record.rect.top + frame.top + y)};
}

void ToClient(HWND window, POINT* point) {
    const POINT origin = ToScreen(window, 0, 0);
    *point = {Narrow(0LL + point->x - origin.x), Narrow(0LL + point->y - origin.y)};
}

BOOL ScreenToClient(HWND window, POINT* point) {
    if (CallFails("ScreenToClient") || !ResolveHandle(window))
        return FALSE;
    ToClient(window, point);
    return TRUE;
}

// By default a window is at least as large as its caption and at most as large as the desktop plus its frame.
static MINMAXINFO DefaultLimits(const DeskWindow& window) {
    const LONG frames = 2 * FrameWidths(window).left;
    const RECT desktop = DesktopBounds();
    MINMAXINFO limits{};
    limits.ptMaxTrackSize = {Width(desktop) + frames, Height(desktop) + frames};
    limits.ptMinTrackSize = {frames, frames};
    if ((window.style & WS_CAPTION) == WS_CAPTION)
        limits.ptMinTrackSize = {112, 27};
    return limits;
}

// Windows sends WM_GETMINMAXINFO only to sizable windows and to those that are neither popup nor child.
static void QueryLimits(DeskWindow& window) {
    if (!window.procedure || !(window.style & WS_THICKFRAME || !(window.style & (WS_POPUP | WS_CHILD))))
        return;
    MINMAXINFO limits = DefaultLimits(window);
    CallWndProc(window.handle, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    window.minSize = {limits.ptMinTrackSize.x, limits.ptMinTrackSize.y};
    window.maxSize = {limits.ptMaxTrackSize.x, limits.ptMaxTrackSize.y};
}

static LONG Clamped(LONG size, LONG min, LONG max) {
    return std::max({std::min(size, max), min, 0});
}

void ClampSize(DeskWindow& window) {
    QueryLimits(window);
    const RECT& rect = window.rect;
    window.rect = RectAt(rect.left, rect.top, Clamped(Width(rect), window.minSize.cx, window.maxSize.cx),
                         Clamped(Height(rect), window.minSize.cy, window.maxSize.cy));
}

void SendSize(HWND window) {
    RECT client{};
    if (const DeskWindow* record = LiveWindow(window))
        client = ClientRect(*record);
    CallWndProc(window, WM_SIZE, 0, MAKELPARAM(client.right, client.bottom));
}

// Positions of children are relative to the parent's client area.
static POINT OriginOf(const DeskWindow& window) {
    return window.style & WS_CHILD ? ToScreen(window.owner, 0, 0) : POINT{0, 0};
}

void SendMove(HWND window) {
    POINT client{};
    if (const DeskWindow* record = LiveWindow(window)) {
        const POINT corner = ToScreen(window, 0, 0);
        const POINT origin = OriginOf(*record);
        client = {Narrow(0LL + corner.x - origin.x), Narrow(0LL + corner.y - origin.y)};
    }
    CallWndProc(window, WM_MOVE, 0, MAKELPARAM(client.x, client.y));
}

static bool IsOnDesktop(const RECT& rect) {
    const RECT desktop = DesktopBounds();
    return rect.left >= desktop.left && rect.top >= desktop.top && rect.right <= desktop.right &&
           rect.bottom <= desktop.bottom;
}

static void MoveChildren(const DeskWindow& window, long long dx, long long dy) {
    for (const HWND handle : window.children) {
        DeskWindow& child = WindowOf(handle);
        child.rect = OffsetBy(child.rect, dx, dy);
        MoveChildren(child, dx, dy);
    }
}

// As a program does that carries its palettes along.
static void MoveOwned(HWND owner, long long dx, long long dy) {
    for (const HWND handle : Desk.zOrder)
        if (WindowOf(handle).owner == owner)
            WindowOf(handle).rect = OffsetBy(WindowOf(handle).rect, dx, dy);
}

// A moved window keeps its pixels. It is repainted if its size changed or parts of it were off the screen.
void SetRect(DeskWindow& window, const RECT& rect, bool repaint) {
    const HWND handle = window.handle;
    const RECT before = window.rect;
    window.rect = ScaledRect(window, rect);
    ClampSize(window);
    const RECT now = window.rect;
    const long long dx = 0LL + now.left - before.left;
    const long long dy = 0LL + now.top - before.top;
    const bool resized = Width(now) != Width(before) || Height(now) != Height(before);
    MoveChildren(window, dx, dy);
    if (window.movesOwned)
        MoveOwned(handle, dx, dy);
    if (repaint && (resized || !IsOnDesktop(before)))
        Invalidate(window, nullptr, true);
    if (dx || dy)
        SendMove(handle);
    if (resized)
        SendSize(handle);
    SendDpiChange(handle);
}

BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint) {
    DeskWindow* record = CallFails("MoveWindow") ? nullptr : ResolveForChange(window);
    if (!record)
        return FALSE;
    const POINT origin = OriginOf(*record);
    SetRect(*record, RectAt(0LL + origin.x + x, 0LL + origin.y + y, width, height), repaint);
    return TRUE;
}

static RECT TargetRect(const DeskWindow& window, const RECT& requested, UINT flags) {
    const POINT origin = OriginOf(window);
    RECT rect = window.rect;
    if (!(flags & SWP_NOMOVE))
        rect = RectAt(0LL + origin.x + requested.left, 0LL + origin.y + requested.top, Width(rect),
                      Height(rect));
    if (!(flags & SWP_NOSIZE))
        rect = RectAt(rect.left, rect.top, Width(requested), Height(requested));
    return rect;
}

// A responding window obeys an asynchronous request at once, another one when it wakes up.
static bool Postpone(HWND window, const RECT& requested, UINT flags) {
    DeskWindow* record = LiveWindow(window);
    if (!record || record->elevated || !(flags & SWP_ASYNCWINDOWPOS) ||
        record->response == DeskResponse::Responds)
        return false;
    record->pendingRect = TargetRect(*record, requested, flags);
    return true;
}

void WakeWindow(HWND window) {
    DeskWindow& record = WindowOf(window);
    record.response = DeskResponse::Responds;
    if (record.pendingRect)
        SetRect(record, *std::exchange(record.pendingRect, std::nullopt), true);
}

BOOL SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags) {
    const RECT requested = RectAt(x, y, width, height);
    if (CallFails("SetWindowPos"))
        return FALSE;
    if (Postpone(window, requested, flags))
        return TRUE;
    DeskWindow* record = ResolveForChange(window);
    if (!record)
        return FALSE;
    if (!(flags & SWP_NOZORDER))
        ChangeZOrder(*record, after);
    if ((flags & (SWP_NOMOVE | SWP_NOSIZE)) != (SWP_NOMOVE | SWP_NOSIZE))
        SetRect(*record, TargetRect(*record, requested, flags), !(flags & SWP_NOREDRAW));
    if (flags & SWP_SHOWWINDOW)
        ApplyShowCommand(*record, SW_SHOWNA);
    if (flags & SWP_HIDEWINDOW)
        HideWindow(*record);
    if (!(flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW)) && IsShown(window) && !(record->style & WS_CHILD))
        Activate(window);
    return TRUE;
}

WORD TileWindows(HWND, UINT how, const RECT* rect, UINT count, const HWND* windows) {
    if (CallFails("TileWindows"))
        return 0;
    Desk.tilings.push_back({how, *rect, {windows, windows + count}});
    return static_cast<WORD>(count);
}
