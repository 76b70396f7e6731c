// The snapshot of all top-level windows, and which of them Quorl may touch.
#pragma once

#include "core/platform.h"

constexpr int MAX_WINDOWS = 32000;

// A top-level window as it stood when the table was built.
struct WindowRow {
    HWND hwnd;
    int locked;                   // what the user asked for; moving looks at LockedWindows instead
    int left, top, right, bottom; // screen pixels
};

// Every top-level window, eligible or not, in the order of EnumWindows: the topmost first.
extern WindowRow WindowTable[MAX_WINDOWS];
extern int num_windows;

// The EnumWindows callback. Appends a row; 0 ends the enumeration when the table is full.
BOOL CALLBACK AddWindowRow(HWND window, LPARAM parameter);

// Empties the table and enumerates again. An enumeration that fails at once leaves the old rows.
void RebuildWindowTable();

// 1 if Quorl may move and show this window. Asks the platform each time; a window that is gone, and the null
// handle, give 0. `place` receives where a managed window stands, in screen pixels.
int IsManagedWindow(HWND window, RECT* place = nullptr);

// The decision by numbers: has the window an area, and does it not stand past the desktop's far edges? Screen
// pixels are compared with the desktop's size as they are.
int IsManagedPlace(const RECT& place, const RECT& quorl);
