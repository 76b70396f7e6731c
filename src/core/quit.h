// The way out.
#pragma once

#include "core/platform.h"

// From here on all that is stored has been read. A quit before that, out of a box of the start, would save
// defaults over it.
void SavingMakesSense();

// Asks "QUIT?". Yes: the quit message is posted, the settings are saved if row 72 says so, hotkeys are
// released, all windows fold back onto the screen, and 1 is returned. Any other answer changes nothing and
// gives 0.
int ConfirmQuit(HWND window);

// Windows ends the process after this, without the message loop: the settings are saved if row 72 says so.
// `bOthersStay`: only Quorl is ended, as for an update; then the windows fold back onto the screen too.
void EndWithSession(HWND window, int bOthersStay);
