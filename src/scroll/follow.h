// Following: keeping the active window in view.
#pragma once

#include "core/platform.h"

// Brings `target` to the middle of the view and gives it the foreground; `window` is repainted. False if the
// target is not managed or does not get the foreground.
bool CenterOnWindow(HWND window, HWND target);

// The same for the active window.
bool CenterOnActiveWindow(HWND window);

// One tick of following, if the user has switched it on. True if there is an active window to follow, whether
// or not the view moved: then the map must be refreshed.
bool FollowActiveWindow();

enum FollowNeed {
    FOLLOW_NOTHING, // minimized
    FOLLOW_IN_VIEW, // in view, or out of reach of the view
    FOLLOW_SCROLL,  // out of view
};

// Pure: whether to scroll to a window with this rectangle. Screen pixels; `quorl` in desktop pixels.
FollowNeed NeedToFollow(const RECT& rect, int screenW, int screenH, const RECT& quorl);
