// Mouse events anywhere on the screen, which the hook library posts to the map.
#pragma once

#include "core/platform.h"

// Handles one mouse message. Reads the cursor's current position, so that a message that waited in the queue
// is not stale. 1 if it is a click at an edge of the screen while edge scrolling is on, else 0.
int OnHookMouse(HWND window, UINT mouseMessage);
