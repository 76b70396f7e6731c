// Dragging the window whose box on the map is under the cursor.
#pragma once

#include "core/platform.h"

// One step of a drag, from map coordinates; repaints `window`, the map. Always 1.
int DragStep(HWND window, int x, int y);

// The step for the window under the cursor, null for none; map coordinates. The first step on a window starts
// a drag and gives it the focus, each further one moves it by the way that the cursor has gone. No window, or
// another one, ends the drag: letting the button go does not. A part of a pixel lost to the scale is not made
// up for.
void DragWindowOnMap(HWND target, int x, int y);

// The topmost managed window at a desktop point, or null. Negative coordinates, which the mouse gives while
// it is captured, are taken without their sign.
HWND WindowAtDesktopPoint(int x, int y);

// Pure: does a window hold the point, edges included? Desktop pixels. What stands out over the desktop's left
// or top edge is cut off first, then only absolute values are compared.
int HoldsDesktopPoint(const RECT& window, int x, int y);
