// Keeping the active window in view.
#include "scroll/follow.h"

#include "actions/action_table.h"
#include "core/foreground.h"
#include "core/keys.h"
#include "core/state.h"
#include "scroll/locked_windows.h"
#include "scroll/scroll_view.h"
#include "scroll/shift.h"
#include "scroll/window_table.h"

#include <cstring>

static const int MINIMIZED = -32000; // where the platform keeps minimized windows
static const int SLACK = 4;          // pixels: a maximized window's frame stands this far outside the screen

namespace {

// A window that stayed where it was when the view went to it, as a locked one does, and what held then.
struct UnmovedRecord {
    HWND window;
    RECT place, quorl;
    int bLocked;
};

} // namespace

static UnmovedRecord Unmoved;

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

static int IsSameRect(const RECT& a, const RECT& b) {
    return !std::memcmp(&a, &b, sizeof a);
}

// The view cannot reach it; going there again would draw the view on, tick by tick, to the desktop's corner.
static int IsKnownUnmoved(HWND active, const RECT& place) {
    return active == Unmoved.window && IsSameRect(place, Unmoved.place) && IsSameRect(Quorl, Unmoved.quorl) &&
           IsLockedWindow(active) == Unmoved.bLocked;
}

// One that does not answer is gone to when it does: the view would leave and it could not come along.
static void GoTo(HWND active, const RECT& place) {
    if (IsKnownUnmoved(active, place) || !IsAlive(active))
        return;
    RECT now{};
    CenterOnActiveWindow(active);
    const int bStayed = GetWindowRect(active, &now) && IsSameRect(now, place);
    Unmoved = {bStayed ? active : nullptr, place, Quorl, IsLockedWindow(active)};
}

int FollowActiveWindow() {
    if (!ActionTable[ROW_KEEP_ACTIVE_IN_VIEW].value)
        return 0;
    const HWND active = GetForegroundWindow();
    RECT place{};
    if (active != Unmoved.window)
        Unmoved.window = nullptr;
    if (!IsManagedWindow(active, &place))
        return 0;
    const FollowNeed need = NeedToFollow(place, ScreenW(), ScreenH(), Quorl);
    if (need == FOLLOW_SCROLL && !IsHeldBack())
        GoTo(active, place);
    return need != FOLLOW_NOT;
}

int CenterOnWindow(HWND window, HWND target) {
    RECT place{};
    if (!IsManagedWindow(target, &place))
        return 0;
    const POINT middle = MiddleOf(place);
    ScrollView(window, middle.x + VDesk.left, middle.y + VDesk.top, SV_CENTER, ROW_CENTER_ON_ACTIVE);
    return GiveForeground(target);
}

int CenterOnActiveWindow(HWND window) {
    return CenterOnWindow(window, GetForegroundWindow());
}
