// The mouse moving over the map: dragging, bindings that run while it moves, and the description of what is
// under it.
#pragma once

#include "core/platform.h"

// Handles one move. (x, y) are map coordinates, outside the map while it has the capture; `buttons` are the
// MK_ flags of the message. A repetition of the last mouse message of the map is ignored.
void OnToolwinMouseMove(HWND window, int x, int y, WPARAM buttons);
