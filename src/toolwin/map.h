// The picture in the Toolwin: background, regions, a box for each window, and the view over all of it.
// Nothing is kept from one paint to the next but the pulse.
#pragma once

#include "core/platform.h"

// WM_ERASEBKGND: the background with its frame, and the regions in their order, the last on top. Always 1.
int PaintBackground(HWND window, HDC context);

// WM_PAINT, BeginPaint and EndPaint included: the windows' boxes in the order of WindowTable, then the view.
// Starts and stops the timer that makes the box of a dialog pulse while its owner is disabled.
void PaintMap(HWND window);

enum BoxKind {
    PLAIN_BOX,
    ACTIVE_BOX,  // of the foreground window: red
    PULSING_BOX, // of a foreground dialog whose owner waits for it
};

// Pure: how a window's box is drawn. `ownerStyle` is 0 where there is no owner.
BoxKind KindOfBox(int bActive, const char* className, DWORD ownerStyle);

// Pure: the level of the paint after this one. It stands above 255 for one paint; the pen takes the low byte.
int NextFlashLevel(int level);
