// Dragging a window by its box on the map: the box follows the cursor, and the window its box.
#include "mouse/drag_window.h"

#include "core/arithmetic.h"
#include "core/coordinates.h"
#include "core/state.h"
#include "scroll/shift.h"
#include "scroll/window_table.h"
#include "toolwin/tip.h"

#include <algorithm>

namespace {

struct DragRecord {
    int dragging;     // 1 from the first step on a window; outlives the release of the button
    HWND window;      // what is dragged, or was; may be gone
    ActionPoint prev; // map coordinates of the last step
};

} // namespace

static DragRecord DragState;

static int WithoutSign(int value) {
    return value < 0 ? 0 - value : value;
}

static int IsBetween(int value, int least, int most) {
    return WithoutSign(value) >= WithoutSign(least) && WithoutSign(value) <= WithoutSign(most);
}

int HoldsDesktopPoint(const RECT& window, int x, int y) {
    return IsBetween(x, std::max<int>(window.left, 0), window.right) &&
           IsBetween(y, std::max<int>(window.top, 0), window.bottom);
}

// The live rectangle counts: the table's is as old as its last refresh.
static int StandsAt(HWND window, int x, int y) {
    RECT place{};
    if (!GetWindowRect(window, &place))
        return 0;
    return HoldsDesktopPoint(
        {place.left + VDesk.left, place.top + VDesk.top, place.right + VDesk.left, place.bottom + VDesk.top},
        x, y);
}

HWND WindowAtDesktopPoint(int x, int y) {
    for (int row = 0; row < num_windows; ++row) {
        const HWND window = WindowTable[row].hwnd;
        if (StandsAt(window, x, y) && IsManagedWindow(window))
            return window;
    }
    return nullptr;
}

static void MoveByCursor(HWND target, int x, int y) {
    RECT place{};
    RECT map{};
    GetClientRect(MainWnd, &map);
    const int dx = Scaled(x - DragState.prev.x, Quorl.right, map.right);
    const int dy = Scaled(y - DragState.prev.y, Quorl.bottom, map.bottom);
    DragState.prev = {x, y};
    if (!GetWindowRect(target, &place) || !IsAlive(target))
        return; // it went this moment, or hangs
    // Past the desktop's far edges nothing would manage it any more, and the end not bring it back.
    MoveWindow(target, std::min(place.left + dx, Quorl.right), std::min(place.top + dy, Quorl.bottom),
               place.right - place.left, place.bottom - place.top, TRUE);
}

static void StartDrag(HWND target, int x, int y) {
    DragState = {
        1, target, {x, y}
    };
    if (!IsAlive(target))
        return; // it would not move either, and raising it could wait for as long as it hangs
    SetForegroundWindow(target);
    SetFocus(target);
    SetActiveWindow(target);
}

void DragWindowOnMap(HWND target, int x, int y) {
    if (!target) {
        DragState.dragging = 0;
        return;
    }
    if (DragState.dragging && DragState.window != target) {
        DragState.dragging = 0;
        DragState.window = nullptr;
        return;
    }
    if (DragState.dragging)
        MoveByCursor(target, x, y);
    else
        StartDrag(target, x, y);
    Tell("DRAG: %d  PREV: %d, %d  CUR: %d, %d", DragState.dragging, DragState.prev.x, DragState.prev.y, x, y);
}

int DragStep(HWND window, int x, int y) {
    ActionPoint point{x, y};
    MapToDesktop(&point);
    DragWindowOnMap(WindowAtDesktopPoint(point.x, point.y), x, y);
    Repaint(window);
    return 1;
}
