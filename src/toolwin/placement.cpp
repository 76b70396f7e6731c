// Where the Toolwin stands on the screen.
#include "toolwin/placement.h"

#include "core/coordinates.h"
#include "core/state.h"
#include "toolwin/tip.h"

// One direction of snapping: the near edge first, then the far one.
static void SnapEdges(LONG& first, LONG& last, int border, int screen) {
    const LONG size = last - first;
    if (first < border) {
        first = 0;
        last = size;
    }
    if (last > screen - border) {
        first += screen - last;
        last = screen;
    }
}

RECT SnappedPlace(const RECT& place, int border, int screenW, int screenH) {
    RECT snapped = place;
    SnapEdges(snapped.left, snapped.right, border, screenW);
    SnapEdges(snapped.top, snapped.bottom, border, screenH);
    return snapped;
}

RECT ResizedPlace(const RECT& place, ActionId row, int step) {
    RECT resized = place;
    switch (row) {
    case ROW_SHRINK_WIDTH: resized.right -= step; break;
    case ROW_EXPAND_WIDTH: resized.right += step; break;
    case ROW_SHRINK_HEIGHT: resized.bottom -= step; break;
    case ROW_EXPAND_HEIGHT: resized.bottom += step; break;
    default: break;
    }
    return resized;
}

static int MoveTo(HWND window, const RECT& place) {
    return MoveWindow(window, place.left, place.top, place.right - place.left, place.bottom - place.top,
                      TRUE);
}

int MoveToolwin(HWND window, int x, int y, int flags) {
    RECT before{};
    if (!GetWindowRect(window, &before))
        return 0;
    MeasureScreen(); // a display may have come or gone since the last move
    const LONG left = flags & MOVE_BY_DISTANCE ? before.left + x : x;
    const LONG top = flags & MOVE_BY_DISTANCE ? before.top + y : y;
    RECT place{left, top, left + before.right - before.left, top + before.bottom - before.top};
    if (ActionTable[ROW_SNAP].value)
        place = SnappedPlace(place, Options.border, ScreenW(), ScreenH());
    Tell("Toolwin: %d,%d - %d,%d", static_cast<int>(place.left), static_cast<int>(place.top),
         static_cast<int>(place.right), static_cast<int>(place.bottom));
    return MoveTo(window, place);
}

int ResizeToolwin(HWND window, ActionId row) {
    RECT place{};
    if (!GetWindowRect(window, &place))
        return 0;
    return MoveTo(window, ResizedPlace(place, row, Options.minscroll));
}

int ToggleToolwin(HWND) {
    int& bShown = ActionTable[ROW_SHOW_TOOLWIN].value;
    bShown = !bShown;
    ShowWindow(MainWnd, bShown ? SW_SHOW : SW_HIDE);
    return 1;
}
