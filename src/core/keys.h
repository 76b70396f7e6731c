// Which keys and buttons the user holds.
#pragma once

#include "core/platform.h"

// The state of the moment: for timers and news from outside, which come without an input message of our own.
// (GetKeyState is out of date on a thread whose windows do not have the focus.)
inline int IsHeld(int key) {
    return GetAsyncKeyState(key) < 0;
}
