// The one road by which the view moves.
#pragma once

#include "core/platform.h"

// What x and y mean; exactly one.
enum ScrollMode {
    SV_ABSOLUTE = 1, // the new top left corner, in desktop pixels
    SV_RELATIVE = 2, // the distance, in pixels
    SV_CENTER = 4,   // the desktop point that shall come to the middle
};

// Moves VDesk, held inside Quorl, and all windows the opposite way; then repaints `window` and tells the tip.
// `id` is the caller's number, for the tip alone. 1 if the view's corner changed.
int ScrollView(HWND window, int x, int y, int mode, int id);

// Pure: the distance that (x, y) in that mode asks for, from where the view stands.
POINT AskedDistance(const RECT& vdesk, int x, int y, int mode);

// Where the view comes to lie, and how far the windows must give way. The two differ from each other where
// the view is not exactly a screen in size, as after a change of display.
struct ViewStep {
    RECT view;  // desktop pixels
    int dx, dy; // the view's way
};

// Pure: the step held inside the desktop, whose near edges lie at 0.
ViewStep ClampedStep(const RECT& vdesk, POINT distance, const RECT& quorl, int screenW, int screenH);
