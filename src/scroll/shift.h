// Moving all windows together.
#pragma once

#include "windows/other_window.h"

// Moves every managed, unlocked window by (dx, dy) pixels and shows it. A window that does not respond stays
// and costs SCROLL_TIMEOUT. Does nothing once the user has quit.
void ShiftWindows(int dx, int dy);

// Pure: the position, in screen pixels, of a window moved by (dx, dy) and clamped to the desktop. The far
// edges are compared with the desktop's size in screen pixels, without the view's corner.
WindowPosition ShiftedPosition(const RECT& window, int dx, int dy, const RECT& vdesk, const RECT& quorl,
                               int border);
