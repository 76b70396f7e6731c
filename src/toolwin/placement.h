// Where the Toolwin stands on the screen: nudging, snapping, resizing, hiding.
#pragma once

#include "actions/action_table.h"

constexpr int MOVE_BY_DISTANCE = 2; // flag of MoveToolwin

// Moves `window`, the Toolwin, keeping its size, and tells the tip where it comes to lie. With
// MOVE_BY_DISTANCE (x, y) is a distance, without it the new corner; screen pixels. ScreenRect is measured
// anew first. The result of MoveWindow; 0 also when the window is gone.
int MoveToolwin(HWND window, int x, int y, int flags);

// Moves the right or the bottom edge by Options.minscroll, as row 42, 43, 44 or 45 says; any other row
// leaves the size. The window's own limits stop it. The result of MoveWindow; 0 also when it is gone.
int ResizeToolwin(HWND window, ActionId row);

// Shows or hides MainWnd, whichever window is named, and notes it in the row's value. Always 1.
int ToggleToolwin(HWND window);

// Pure: a place pulled flush to the screen's edges where it comes nearer to one than `border` or lies beyond
// it. The size stays; of two opposite edges the far one wins. Screen pixels.
RECT SnappedPlace(const RECT& place, int border, int screenW, int screenH);

// Pure: a place whose right or bottom edge is moved by `step` pixels, as the row says.
RECT ResizedPlace(const RECT& place, ActionId row, int step);
