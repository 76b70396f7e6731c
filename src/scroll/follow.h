// Keeping the active window in view.
#pragma once

#include "core/platform.h"

// Brings `target` to the middle of the view and gives it the foreground; `window` is what the scroll
// repaints. 0 if it is not managed or gone, else the result of SetForegroundWindow.
int CenterOnWindow(HWND window, HWND target);

// The same for the window that has the foreground.
int CenterOnActiveWindow(HWND window);

// One tick of following, when the user has switched it on. 1 if there is an active window to follow, whether
// or not the view moved: the map is then to be refreshed.
int FollowActiveWindow();

enum FollowNeed {
    FOLLOW_NOT,     // minimized, so there is nothing to follow
    FOLLOW_IN_VIEW, // near enough, or out of the desktop's reach
    FOLLOW_SCROLL,  // out of view
};

// Pure: what a window at that place (screen pixels) asks for.
FollowNeed NeedToFollow(const RECT& place, int screenW, int screenH, const RECT& quorl);

// Pure: the middle of a rectangle, its size halved first and truncated.
POINT MiddleOf(const RECT& place);
