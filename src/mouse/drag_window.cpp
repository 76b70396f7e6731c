#include "mouse/drag_window.h"

#include "core/rect.h"
#include "core/state.h"
#include "status/status_strip.h"
#include "toolwin/map_coordinates.h"
#include "windows/other_window.h"
#include "windows/window_table.h"

#include <algorithm>
#include <cstdlib>

namespace {

struct DragRecord {
    bool bDragging; // from the first step on a window; survives the release of the button
    HWND window;    // the dragged window, also after the drag; may be gone
    int x, y;       // map coordinates of the last step
};

} // namespace

static DragRecord DragState;

static bool IsBetween(long long value, long long first, long long last) {
    return std::abs(value) >= std::abs(first) && std::abs(value) <= std::abs(last);
}

// Desktop pixels, edges included. Only the part of the window right of the desktop's left edge and below its
// top edge counts.
static bool ContainsDesktopPoint(const RECT& window, int x, int y) {
    return IsBetween(x, std::max<int>(window.left, 0), window.right) &&
           IsBetween(y, std::max<int>(window.top, 0), window.bottom);
}

// Reads the current rectangle: that in the table is as old as the last refresh.
HWND WindowAtDesktopPoint(int x, int y) {
    for (int i = 0; i < num_windows; ++i) {
        const HWND window = WindowTable[i].hwnd;
        RECT rect{};
        if (GetVisibleRect(window, &rect) &&
            ContainsDesktopPoint(Offset(rect, VDesk.left, VDesk.top), x, y) && IsManagedWindow(window))
            return window;
    }
    return nullptr;
}

static void MoveByCursor(HWND target, int x, int y) {
    const POINT by = MapToDesktopDistance(Wrap(0LL + x - DragState.x), Wrap(0LL + y - DragState.y));
    DragState.x = x;
    DragState.y = y;
    WindowFrame frame{};
    if (!ReadWindowFrame(target, &frame))
        return;
    // Farther right or below, the window would no longer be managed.
    const RECT moved = Offset(frame.visible, by.x, by.y);
    MoveIfAlive(target, frame, {std::min(moved.left, Quorl.right), std::min(moved.top, Quorl.bottom)});
}

static void DragWindowOnMap(HWND target, int x, int y) {
    if (!target) {
        DragState.bDragging = false;
        return;
    }
    if (DragState.bDragging && DragState.window != target) {
        DragState = {false, nullptr, DragState.x, DragState.y};
        return;
    }
    if (DragState.bDragging) {
        MoveByCursor(target, x, y);
    } else {
        DragState = {true, target, x, y};
        FocusOtherWindow(target);
    }
    ShowTip("DRAG: %d  PREV: %d, %d  CUR: %d, %d", DragState.bDragging, DragState.x, DragState.y, x, y);
}

void DragStep(HWND window, int x, int y) {
    const ActionPoint desktop = MapToDesktop({x, y});
    DragWindowOnMap(WindowAtDesktopPoint(desktop.x, desktop.y), x, y);
    Repaint(window);
}
