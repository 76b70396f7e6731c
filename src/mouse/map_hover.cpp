// The mouse moving over the map.
#include "mouse/map_hover.h"

#include "core/coordinates.h"
#include "mouse/drag_window.h"
#include "mouse/map_buttons.h"
#include "regions/region_table.h"
#include "toolwin/placement.h"
#include "toolwin/tip.h"

static int bMoving; // the Toolwin is being dragged; only a move that means something else ends that

// Map coordinates of the last move that was not a step of a Toolwin drag: where the Toolwin was grabbed.
static ActionPoint LastMapPoint;

static int ButtonsIn(WPARAM buttons) {
    return (buttons & MK_LBUTTON ? LBUTTON : 0) | (buttons & MK_RBUTTON ? RBUTTON : 0) |
           (buttons & MK_MBUTTON ? MBUTTON : 0);
}

// The flags stand in for the button as well. So Shift alone, which is 1, looks like the left button's number.
static ActionId GestureOf(HWND window, int flags) {
    return MatchMouseAction(window, ACTION_MOUSE, flags, flags, nullptr, 0);
}

static void BeginGesture(HWND window, int flags, int x, int y) {
    const ActionId gesture = GestureOf(window, flags);
    if (gesture == ROW_DRAG_TOOLWIN)
        bMoving = 1;
    if (gesture == ROW_DRAG_WINDOW)
        DragStep(window, x, y);
}

// The map moves along, so in its own coordinates the cursor keeps coming back to where it was grabbed, and
// the way from there is the way to move. 0: the combination has changed, and the drag is over.
static int DragToolwin(HWND window, int flags, int x, int y) {
    bMoving = GestureOf(window, flags) == ROW_DRAG_TOOLWIN;
    if (bMoving)
        MoveToolwin(window, x - LastMapPoint.x, y - LastMapPoint.y, MOVE_BY_DISTANCE);
    return bMoving;
}

static void TellWindow(HWND window, const ActionPoint& desktop) {
    char title[32] = "";
    GetWindowTextA(window, title, sizeof title);
    Tell("%s: [%d, %d]", title, desktop.x, desktop.y);
}

static void TellWhatLiesAt(int x, int y) {
    ActionPoint desktop{x, y};
    MapToDesktop(&desktop);
    char name[33] = "";
    int region = 0;
    if (const HWND under = WindowAtDesktopPoint(desktop.x, desktop.y))
        TellWindow(under, desktop);
    else if (FindRegionAt(desktop.x, desktop.y, name, &region, nullptr))
        Tell("Region %d: %s [%d, %d]", region, name, desktop.x, desktop.y);
    else
        Tell("Quorl: %d, %d", desktop.x, desktop.y);
}

void OnToolwinMouseMove(HWND window, int x, int y, WPARAM buttons) {
    const int flags = GetHeldFlags(KEYS_AND_BUTTONS) | ButtonsIn(buttons);
    if (ButtonsIn(buttons))
        BeginGesture(window, flags, x, y);
    if (bMoving && DragToolwin(window, flags, x, y))
        return;
    ActionPoint point{x, y};
    if (!MatchMouseAction(window, ACTION_MOUSE, flags, 0, &point, 1))
        TellWhatLiesAt(x, y);
    LastMapPoint = {x, y};
}
