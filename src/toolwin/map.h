// Painting the map: background, regions, a box for each window, and the view above them.
#pragma once

#include "core/platform.h"

// WM_PAINT, BeginPaint and EndPaint included: the background with its frame, the regions in order, the last
// on top, the windows' boxes in the order of WindowTable, then the view. WM_ERASEBKGND must draw nothing.
// Starts and stops the timer that makes the box of a dialog flash while its owner is disabled.
void PaintMap(HWND window);

// Pure: the next brightness of the flash, in steps of 25. It exceeds 255 once per cycle; the pen uses the low
// byte.
int NextFlashLevel(int level);
