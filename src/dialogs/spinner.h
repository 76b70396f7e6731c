// A spinner: an up and a down button, one above the other. While one is held, the control steps its value and
// notifies its parent after each step. The parent gives the value a meaning.
#pragma once

#include "core/platform.h"

constexpr char SPINNER_CLASS[] = "Orne Spinner";

enum SpinnerFlag {
    SPINNER_UP_HELD = 1,
    SPINNER_DOWN_HELD = 2,
};

// One per control, from the creation of its window to its destruction. The parent is notified by WM_NOTIFY
// with the control's id and a pointer to this record (no NMHDR), whose value it may change for the next step;
// at a limit too, where the step changed nothing.
struct SpinnerState {
    int value;     // steps clamp it to 0..max; the parent may set any value
    UINT interval; // milliseconds between two steps while a button is held; counts from the next press
    int max;
    int flags; // SpinnerFlag
};

// Creates a visible child of `parent`, in client pixels. Null if it fails.
HWND CreateSpinner(HWND parent, const RECT& rect, int id);

// The window must be a spinner; null once it has been destroyed.
SpinnerState* StateOfSpinner(HWND spinner);
