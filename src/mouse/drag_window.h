// Dragging a window by its box on the map.
#pragma once

#include "core/platform.h"

// One step of a drag at a point in map coordinates; repaints `window`, the map. The first step on a window
// starts the drag and focuses the window, each further one moves it by the cursor's distance on the map. A
// step on no window or on another one ends the drag; releasing the button does not. Fractions of a pixel lost
// to the scale are not carried over.
void DragStep(HWND window, int x, int y);

// The topmost managed window at a desktop point, or null. Negative coordinates, which occur while the map has
// the capture, count by their absolute value.
HWND WindowAtDesktopPoint(int x, int y);
