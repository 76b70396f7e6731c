// The mouse moving over the map: dragging, bindings that run while it moves, and the tip of what lies under
// it.
#pragma once

#include "core/platform.h"

// Takes one move. (x, y) are map coordinates and lie outside the map while it has the capture; `buttons` are
// the MK_ flags of the message. In this order: a held combination bound to the row for dragging the Toolwin
// or a window takes a step of that; a Toolwin drag ends here; then whatever else the combination is bound to
// runs; and if nothing ran, the tip tells what lies under the cursor.
void OnToolwinMouseMove(HWND window, int x, int y, WPARAM buttons);
