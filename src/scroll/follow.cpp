// Keeping the active window in view.
#include "scroll/follow.h"

#include "actions/action_table.h"
#include "core/foreground.h"
#include "core/keys.h"
#include "core/state.h"
#include "scroll/scroll_view.h"
#include "scroll/window_table.h"

static const int MINIMIZED = -32000; // where the platform keeps minimized windows
static const int SLACK = 4;          // pixels: a maximized window's frame stands this far outside the screen

POINT MiddleOf(const RECT& place) {
    return {(place.right - place.left) / 2 + place.left, (place.bottom - place.top) / 2 + place.top};
}

FollowNeed NeedToFollow(const RECT& place, int screenW, int screenH, const RECT& quorl) {
    if (place.left <= MINIMIZED)
        return FOLLOW_NOT;
    const POINT middle = MiddleOf(place);
    if (place.left >= -SLACK && place.top >= -SLACK && middle.x <= screenW + SLACK &&
        middle.y <= screenH + SLACK)
        return FOLLOW_IN_VIEW;
    return middle.x > quorl.right || middle.y > quorl.bottom ? FOLLOW_IN_VIEW : FOLLOW_SCROLL;
}

// The user is dragging something and wants no scrolling under it.
static int IsHeldBack() {
    return ActionTable[ROW_SUPPRESS_FOLLOW].value &&
           (IsHeld(VK_LBUTTON) || IsHeld(VK_MBUTTON) || IsHeld(VK_RBUTTON));
}

int FollowActiveWindow() {
    if (!ActionTable[ROW_KEEP_ACTIVE_IN_VIEW].value)
        return 0;
    const HWND active = GetForegroundWindow();
    RECT place{};
    if (!IsManagedWindow(active) || !GetWindowRect(active, &place))
        return 0;
    const FollowNeed need = NeedToFollow(place, ScreenW(), ScreenH(), Quorl);
    if (need == FOLLOW_SCROLL && !IsHeldBack())
        CenterOnActiveWindow(active);
    return need != FOLLOW_NOT;
}

int CenterOnActiveWindow(HWND window) {
    const HWND active = GetForegroundWindow();
    RECT place{};
    if (!IsManagedWindow(active) || !GetWindowRect(active, &place))
        return 0;
    const POINT middle = MiddleOf(place);
    ScrollView(window, middle.x + VDesk.left, middle.y + VDesk.top, SV_CENTER, ROW_CENTER_ON_ACTIVE);
    return GiveForeground(active);
}
