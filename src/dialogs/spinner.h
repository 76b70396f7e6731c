// An up and a down button, one above the other: while one is held, the control steps its own value and tells
// its parent after each step. What the value means is the parent's affair.
#pragma once

#include "core/platform.h"

#define SPINNER_CLASS "Orne Spinner"

enum SpinnerFlag {
    SPINNER_UP_HELD = 1,
    SPINNER_DOWN_HELD = 2,
};

// One a control; lives from the window's creation to its destruction.
struct SpinnerState {
    int value;     // steps go from 0 to `max`; what is set may lie anywhere
    UINT interval; // milliseconds between two steps while a button is held
    int min;       // 0, and read by nobody: a value never goes below 0
    int max;
    int flags;  // SpinnerFlag
    int paused; // not 0: what is held does not repeat
};

// The parent is told of a step by WM_NOTIFY, sent, with the control's id and a pointer to the SpinnerState
// (no NMHDR), whose `value` it may change for the next step. It is told at a limit too, where nothing
// changed.

// A child of `parent`, visible, in the parent's client pixels. Null if it cannot be made: it beeps for a
// window that fails, not for the class.
HWND CreateSpinner(HWND parent, int x, int y, int width, int height, int id, int flags);

// Null for a window that is no spinner, or is one no longer.
SpinnerState* StateOfSpinner(HWND spinner);

// Neither tests nor repaints. 0 for a window without a state.
int SetSpinnerValue(HWND spinner, int value);
int SetSpinnerInterval(HWND spinner, UINT milliseconds); // counts from the next press
int SetSpinnerFlags(HWND spinner, int flags);

// What is drawn, in client pixels. The row between the buttons of an odd height is left out.
struct SpinnerShapes {
    RECT up, down;
    POINT up_arrow[4], down_arrow[4];
};

// Pure.
SpinnerShapes ShapesOfSpinner(int width, int height);
