// The keys and buttons that are down.
#pragma once

#include "core/platform.h"

// The current state: for timers and messages from the hook library, which come without an input message of
// our own. GetKeyState is out of date in a thread whose windows do not have the focus.
inline bool IsHeld(int key) {
    return GetAsyncKeyState(key) < 0;
}

inline bool IsAnyButtonHeld() {
    return IsHeld(VK_LBUTTON) || IsHeld(VK_MBUTTON) || IsHeld(VK_RBUTTON);
}
