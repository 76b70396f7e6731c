// Moving among windows by geometry, and tiling those in view.
#include "actions/navigation.h"

#include "core/foreground.h"
#include "core/state.h"
#include "scroll/window_table.h"
#include "toolwin/tip.h"

static const ActionId ROW_NEXT_IN_VIEW = 24;
static const ActionId ROW_TILE_VERTICALLY = 80;

// What the sweep may find: handles and places side by side, each window read once.
static HWND Candidates[MAX_WINDOWS];
static RECT CandidatePlaces[MAX_WINDOWS];

static HWND OwnWindow() {
    const HWND active = GetForegroundWindow();
    if (IsManagedWindow(active))
        return active;
    POINT cursor{};
    GetCursorPos(&cursor);
    const HWND under = WindowFromPoint(cursor);
    return IsManagedWindow(under) ? under : nullptr;
}

static int CollectCandidates(HWND own) {
    int count = 0;
    for (int row = 0; row < num_windows; ++row) {
        const HWND window = WindowTable[row].hwnd;
        if (window != own && IsManagedWindow(window, &CandidatePlaces[count]))
            Candidates[count++] = window;
    }
    return count;
}

int FocusNeighbour(HWND, SweepDirection direction) {
    const HWND own = OwnWindow();
    RECT start = FoldedToFarSide(ScreenRect, direction);
    if (own && !GetWindowRect(own, &start))
        return 0;
    const int count = CollectCandidates(own);
    const int found = FindNeighbour({direction, start, CandidatePlaces, count, VDesk, Quorl});
    char title[128] = "";
    if (found < 0 || !GetWindowTextA(Candidates[found], title, 127)) {
        MessageBeep(0);
        return 0;
    }
    Tell("%s", title);
    return GiveForeground(Candidates[found]);
}

int LiesWithin(const RECT& window, const RECT& rect) {
    return window.left >= rect.left && window.right <= rect.right && window.top >= rect.top &&
           window.bottom <= rect.bottom;
}

static int IsBetween(LONG at, LONG first, LONG last) {
    return at >= first && at <= last;
}

int HasCornerIn(const RECT& window, const RECT& rect) {
    return (IsBetween(window.left, rect.left, rect.right) ||
            IsBetween(window.right, rect.left, rect.right)) &&
           (IsBetween(window.top, rect.top, rect.bottom) || IsBetween(window.bottom, rect.top, rect.bottom));
}

int IsWindowInRect(HWND window, const RECT* rect, int strict) {
    RECT place{};
    if (!IsManagedWindow(window, &place))
        return 0;
    const RECT& in = rect ? *rect : ScreenRect;
    return strict ? LiesWithin(place, in) : HasCornerIn(place, in);
}

// The table has the topmost window first, so the second is the one under it: going there again and again
// swaps two windows, and going to the last walks through all.
int CycleView(HWND, ActionId row) {
    HWND second = nullptr;
    HWND last = nullptr;
    int found = 0;
    for (int at = 0; at < num_windows; ++at) {
        if (!IsWindowInRect(WindowTable[at].hwnd, nullptr, 1))
            continue;
        last = WindowTable[at].hwnd;
        if (++found == 2)
            second = last;
    }
    if (found < 2)
        return 0;
    return GiveForeground(row == ROW_NEXT_IN_VIEW ? second : last);
}

int TileView(HWND, ActionId row) {
    static HWND tiles[MAX_WINDOWS];
    UINT count = 0;
    for (int at = 0; at < num_windows; ++at) {
        RECT place{};
        RECT shared{};
        if (GetWindowRect(WindowTable[at].hwnd, &place) && IntersectRect(&shared, &place, &ScreenRect))
            tiles[count++] = WindowTable[at].hwnd;
    }
    return TileWindows(nullptr, row == ROW_TILE_VERTICALLY ? MDITILE_VERTICAL : MDITILE_HORIZONTAL,
                       &ScreenRect, count, tiles);
}

int GoToNeighbour(const ActionCall& call) {
    return FocusNeighbour(call.window, static_cast<SweepDirection>(call.with));
}

int CycleInView(const ActionCall& call) {
    return CycleView(call.window, call.row);
}

int TileInView(const ActionCall& call) {
    TileView(call.window, call.row);
    return 0;
}
