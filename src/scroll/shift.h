// Moving all windows together.
#pragma once

#include "core/displays.h"

// Whether windows may be moved together now: not once Quorl is ending, not while the displays change, and not
// during another scroll: a message box shown then runs a message loop.
bool MayScroll();

// Moves every managed, unlocked window by (dx, dy) pixels and shows it. A window that does not respond stays
// and costs SCROLL_TIMEOUT. Does nothing unless MayScroll.
void ShiftWindows(int dx, int dy);

// After a change of displays: moves every managed, unlocked window that no display showed when the window
// table was built to the position on the desktop that it had then. Windows moves all others itself.
void ReturnUnseenWindows();
