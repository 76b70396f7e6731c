// Finds a window's neighbour: a strip one pixel thick sweeps the desktop until it meets a window.
#pragma once

#include "core/steps.h"

// The input of the sweep. Screen pixels, except for vdesk and quorl, which define where the desktop ends.
struct Sweep {
    Direction direction;
    RECT start; // the strip starts on this rectangle's outermost pixels in the direction
    const RECT* windows;
    int count;
    RECT vdesk, quorl;
};

// Pure: the index of the window that the sweep finds, or -1. Each round tests all windows in order; after
// each miss the strip moves by one pixel, so it can pass a narrow window. The sweep ends with the round in
// which a window is hit or the strip leaves the desktop; the last hit of that round is returned. Computed
// without simulating the rounds.
int FindNeighbour(const Sweep& sweep);

// Pure: the edge of the screen opposite to the direction, where a sweep without a window starts.
RECT FarSide(RECT screen, Direction direction);
