// The view: ScrollView moves it and the windows; SetView moves no window, and is for the start and for a
// change of displays.
#pragma once

#include "core/platform.h"

// What x and y of ScrollView are, in pixels.
enum ScrollMode {
    SV_ABSOLUTE = 1, // the view's new top left corner on the desktop
    SV_RELATIVE = 2, // the distance to move the view
    SV_CENTER = 4,   // the desktop point that becomes the middle of the view
    SV_WINDOW = 8,   // the same, the middle of a window that is activated afterwards
};

// Moves VDesk, clamped to Quorl, and all windows by the opposite distance; then shows the result in the
// status strip and repaints `window`. `id` is the caller's action, for the status strip only. True if the
// view's corner changed. Does nothing unless MayScroll.
bool ScrollView(HWND window, int x, int y, ScrollMode mode, int id);

// Whether a scroll has left this window behind: Windows denied the foreground to the map, so the window is
// still the active one, although the user has scrolled away from it. True until another window is active or
// this one is elsewhere on the desktop.
bool IsLeftBehind(HWND active);

// Shows the view's position in the status strip.
void ShowView();

// Sets the view to the screen's size, with its corner at that desktop point or as near as the desktop allows.
// Moves no window.
void SetView(POINT corner);
