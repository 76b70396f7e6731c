// Where screen, desktop and map meet: measuring the screen, and the way from the map to the desktop.
#pragma once

#include "core/platform.h"

// Two int32, handed on by pointer: client coordinates of the map, or what the receiver makes of them.
struct ActionPoint {
    int x, y;
};

// Where a mouse message says that the cursor is: two signed 16-bit numbers, outside the client area too while
// a window has the capture.
inline ActionPoint PointOf(LPARAM lParam) {
    const auto both = static_cast<DWORD_PTR>(lParam);
    return {static_cast<SHORT>(LOWORD(both)), static_cast<SHORT>(HIWORD(both))};
}

// Sets `rect` to the union of all monitors and the origin, in screen pixels. Always 1; no monitor leaves it
// empty.
int MonitorUnion(RECT* rect);

// Measures `ScreenRect` anew. A desktop smaller than the screen grows to it, since nothing manages what would
// stand outside; as after a change to a larger display.
void MeasureScreen();

// Overwrites a point of the map's client area with desktop coordinates and returns it. A map without area
// gives 0.
ActionPoint* MapToDesktop(ActionPoint* point);
