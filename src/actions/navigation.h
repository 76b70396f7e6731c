// Moving among windows by geometry, and tiling those in view. None of this moves the view.
#pragma once

#include "actions/dispatch.h"
#include "actions/neighbour_sweep.h"

// Activates the neighbour of the active window (or of the one under the cursor) in a direction. 0, with a
// beep, if there is none or it has no title.
int FocusNeighbour(HWND window, SweepDirection direction);

// Row 24 goes to the second window from the top that lies wholly in view, row 25 to the last. 0 if there are
// fewer than two.
int CycleView(HWND window, ActionId row);

// Hands every window that shares a pixel with the screen to the platform: row 80 side by side, any other row
// one above the other. The platform's result.
int TileView(HWND window, ActionId row);

// 1 if a managed window lies in the rectangle (null: the screen): wholly if `strict`, else with a corner in
// it. Screen pixels.
int IsWindowInRect(HWND window, const RECT* rect, int strict);

// Pure: the two tests of IsWindowInRect. Both ends of each side count.
int LiesWithin(const RECT& window, const RECT& rect);
int HasCornerIn(const RECT& window, const RECT& rect);

// The handlers.
int GoToNeighbour(const ActionCall& call); // `with` is a SweepDirection
int CycleInView(const ActionCall& call);
int TileInView(const ActionCall& call);
