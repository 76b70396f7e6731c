#include "mouse/map_hover.h"

#include "actions/dispatch.h"
#include "core/letters.h"
#include "mouse/drag_window.h"
#include "mouse/map_buttons.h"
#include "regions/region_table.h"
#include "status/status_strip.h"
#include "toolwin/map_coordinates.h"
#include "toolwin/placement.h"
#include "windows/foreground.h"

#include <cstdio>

static const int TITLE_LIMIT = 32; // characters, with the terminating 0

static bool bMoving; // the map is being dragged; the first move with another combination ends that

// Map coordinates of the last move that did not drag the map: where it was grabbed.
static ActionPoint LastMapPoint;

static int ButtonsIn(WPARAM buttons) {
    return (buttons & MK_LBUTTON ? LBUTTON : 0) | (buttons & MK_RBUTTON ? RBUTTON : 0) |
           (buttons & MK_MBUTTON ? MBUTTON : 0);
}

// The flags are passed as the button as well, so Shift alone, which is 1, matches the left button's number.
static int MatchGesture(int flags) {
    return MatchMouseAction(flags, flags);
}

static void BeginGesture(HWND window, int flags, int x, int y) {
    const int gesture = MatchGesture(flags);
    if (gesture == ACTION_DRAG_TOOLWIN)
        bMoving = true;
    if (gesture == ACTION_DRAG_WINDOW)
        DragStep(window, x, y);
}

// The map follows the cursor, so the cursor's distance from where it grabbed the map, in map coordinates, is
// the distance to move. False if the combination has changed, which ends the drag.
static bool DragToolwin(int flags, int x, int y) {
    bMoving = MatchGesture(flags) == ACTION_DRAG_TOOLWIN;
    if (bMoving)
        MoveToolwin(x - LastMapPoint.x, y - LastMapPoint.y);
    return bMoving;
}

static void DescribePoint(ActionPoint map) {
    const ActionPoint desktop = MapToDesktop(map);
    if (const HWND under = WindowAtDesktopPoint(desktop.x, desktop.y)) {
        WCHAR title[TITLE_LIMIT] = L"";
        GetWindowTextW(under, title, TITLE_LIMIT);
        char point[32];
        std::snprintf(point, sizeof point, ": [%d, %d]", desktop.x, desktop.y);
        ShowTitleTip("", title, point);
        return;
    }
    const int region = FindRegionAt(desktop.x, desktop.y);
    if (region >= 0) {
        const char* const name = RegionTable[region].name;
        const int length = static_cast<int>(WholeLetters(name, 32));
        ShowTip("Region %d: %.*s [%d, %d]", region, length, name, desktop.x, desktop.y);
    } else {
        ShowTip("Quorl: %d, %d", desktop.x, desktop.y);
    }
}

// The action that opens the menu does not replace the description.
void OnToolwinMouseMove(HWND window, int x, int y, WPARAM buttons) {
    if (!RecordMouseMessage(window, {x, y}, buttons))
        return; // the mouse has not moved
    const int flags = GetHeldFlags() | ButtonsIn(buttons);
    if (ButtonsIn(buttons))
        BeginGesture(window, flags, x, y);
    if (bMoving && DragToolwin(flags, x, y))
        return;
    const int action = MatchMouseAction(flags, 0);
    if (action != NO_ACTION)
        DoAction(window, action, LastActiveWindow(), {x, y});
    if (action == NO_ACTION || action == ACTION_SHOW_MENU)
        DescribePoint({x, y});
    LastMapPoint = {x, y};
}
