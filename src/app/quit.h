// Exit: confirmation, saving, folding, and the end of the session.
#pragma once

#include "actions/action_table.h"

// Asks "QUIT?". On Yes saves the settings if the user wants that, releases the hotkeys, folds all windows
// back onto the screen, posts the quit message, and returns true. Any other answer changes nothing.
bool ConfirmQuit(HWND window);

// Handler: ConfirmQuit.
void QuitAction(const ActionCall& call);

// WM_ENDSESSION, at log-off or for an update: does all that exit does, within the few seconds that Windows
// allows, and asks nothing. Windows may end the process without returning to the message loop.
void EndSession(HWND window);

// Has Windows end Quorl before other programs, so that these do not remember positions off the screen.
void EndFirstAtLogoff();
