#include "scroll/follow.h"

#include "actions/action_table.h"
#include "core/keys.h"
#include "core/rect.h"
#include "core/state.h"
#include "scroll/scroll_view.h"
#include "windows/locked_windows.h"
#include "windows/other_window.h"
#include "windows/window_table.h"

static const int SLACK = 4; // pixels: the frame of a maximized window lies this far outside the screen

namespace {

// A window that did not move when the view scrolled to it, as a locked one does, and the circumstances.
struct UnmovedRecord {
    HWND window;
    RECT rect, quorl;
    bool bLocked;
};

} // namespace

static UnmovedRecord Unmoved;

bool NeedToFollow(const RECT& rect, int screenW, int screenH, const RECT& quorl) {
    const POINT middle = MiddleOf(rect);
    if (rect.left >= -SLACK && rect.top >= -SLACK && middle.x <= screenW + SLACK &&
        middle.y <= screenH + SLACK)
        return false;
    return middle.x <= quorl.right && middle.y <= quorl.bottom;
}

// The user drags something and does not want the view to move.
static bool IsSuppressed() {
    return IsOn(ACTION_SUPPRESS_FOLLOW) && IsAnyButtonHeld();
}

// Scrolling to it again and again would move the view to the corner of the desktop.
static bool IsKnownUnmoved(HWND active, const RECT& rect) {
    return active == Unmoved.window && IsSameRect(rect, Unmoved.rect) && IsSameRect(Quorl, Unmoved.quorl) &&
           IsLockedWindow(active) == Unmoved.bLocked;
}

// Wait until a hung window responds: it cannot move with the others, so the view would scroll past it.
static void ScrollToActive(HWND active, const RECT& rect) {
    if (IsKnownUnmoved(active, rect) || !IsAlive(active))
        return;
    RECT now{};
    CenterOnWindow(MainWnd, active);
    const bool bStayed = GetVisibleRect(active, &now) && IsSameRect(now, rect);
    Unmoved = {bStayed ? active : nullptr, rect, Quorl, IsLockedWindow(active)};
}

bool FollowActiveWindow() {
    if (!IsOn(ACTION_FOLLOW_ACTIVE))
        return false;
    const HWND active = GetForegroundWindow();
    WindowFrame frame{};
    if (active && active != Unmoved.window) // null while the foreground changes
        Unmoved.window = nullptr;
    const bool bLeftBehind = IsLeftBehind(active);
    if (!IsManagedWindow(active, &frame) || frame.bMinimized)
        return false;
    if (NeedToFollow(frame.visible, ScreenW(), ScreenH(), Quorl) && !bLeftBehind && !IsSuppressed())
        ScrollToActive(active, frame.visible);
    return true;
}

void CenterOnWindow(HWND window, HWND target) {
    WindowFrame frame{};
    if (!IsManagedWindow(target, &frame))
        return;
    const POINT middle = MiddleOf(frame.visible);
    ScrollView(window, Wrap(0LL + middle.x + VDesk.left), Wrap(0LL + middle.y + VDesk.top), SV_WINDOW,
               ACTION_VIEW_TO_ACTIVE);
    ReturnForeground(target);
}
