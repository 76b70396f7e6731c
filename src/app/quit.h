// Exit: confirmation, saving, folding, and the end of the session.
#pragma once

#include "actions/action_table.h"

// Call once the settings are loaded and the hotkeys registered: quitting before that saves nothing.
void EnableSaving();

// Asks "QUIT?". On Yes posts the quit message, saves the settings if the user wants that, releases the
// hotkeys, folds all windows back onto the screen, and returns true. Any other answer changes nothing.
bool ConfirmQuit(HWND window);

// Handler. 1 if the user confirmed.
int QuitAction(const ActionCall& call);

// WM_ENDSESSION: Windows ends the process without returning to the message loop. Saves the settings if action
// 72 is on. `bOnlyQuorl`: the session continues, for example after an update, so also folds the windows.
void EndWithSession(bool bOnlyQuorl);
