// Following: keeping the active window in view.
#pragma once

#include "core/platform.h"

// Brings `target` to the middle of the view and gives it the foreground; `window` is repainted. Does nothing
// if the target is not managed.
void CenterOnWindow(HWND window, HWND target);

// One tick of following, if the user has switched it on. True if there is an active window to follow, whether
// or not the view moved: then the map must be refreshed.
bool FollowActiveWindow();

// Pure: whether the view should move to a window with this rectangle: its left or top edge or its middle is
// outside the screen, but its middle where the view can show it. Screen pixels; `quorl` in desktop pixels.
bool NeedToFollow(const RECT& rect, int screenW, int screenH, const RECT& quorl);
