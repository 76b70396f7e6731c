// Finding the neighbour of a window: a strip one pixel thick sweeps across the desktop until it meets a
// window.
#pragma once

#include "core/platform.h"

enum SweepDirection { SWEEP_UP = 8, SWEEP_DOWN = 16, SWEEP_LEFT = 32, SWEEP_RIGHT = 64 };

// What the sweep goes over. All in screen pixels, but for vdesk and quorl, which tell where the desktop ends.
struct Sweep {
    SweepDirection direction;
    RECT start; // the strip starts on this rectangle's outermost pixels in the direction
    const RECT* windows;
    int count;
    RECT vdesk, quorl;
};

// Pure: the place in `windows` of the one that the sweep finds, or -1. The windows are tested in turn, over
// and over, and the strip moves one pixel after each miss: a narrow window can be stepped over. When one is
// hit, or the strip has left the desktop, the sweep ends with that turn, in which a later hit replaces an
// earlier one. Costs a few steps a window, however far the strip has to go.
int FindNeighbour(const Sweep& sweep);

// Pure: the side of the screen that a sweep without an own window starts from: the one that it leaves.
RECT FoldedToFarSide(RECT screen, SweepDirection direction);
