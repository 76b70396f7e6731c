// Growing and shrinking the desktop by whole screens.
#pragma once

#include "actions/dispatch.h"

// The handler of the eight rows that add and remove screens; `call.with` is a place in SizeChanges.
int ChangeDesktopSize(const ActionCall& call);

// One row's change of the desktop, in screens.
struct SizeChange {
    int wider, higher; // -1, 0 or 1
    int bShifts;       // the windows move along by the same distance ...
    int bPings;        // ... or are asked and put back where they stand
};

enum DesktopSide {
    ADD_RIGHT,
    ADD_LEFT,
    ADD_BOTTOM,
    ADD_TOP,
    REMOVE_RIGHT,
    REMOVE_LEFT,
    REMOVE_TOP,
    REMOVE_BOTTOM
};

// Pure: a size changed by `screens` screens, at least one screen and at most LARGEST_DESKTOP. Pixels.
int ChangedSize(int size, int screens, int screen);
