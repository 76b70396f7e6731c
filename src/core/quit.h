// The way out.
#pragma once

#include "core/platform.h"

// Asks "QUIT?". Yes: the quit message is posted, the settings are saved if row 72 says so, hotkeys are
// released, all windows fold back onto the screen, and 1 is returned. Any other answer changes nothing and
// gives 0.
int ConfirmQuit(HWND window);

// 1 from the user's Yes on. News that still waits in the queue must not move windows that are folded back.
int IsQuitting();
