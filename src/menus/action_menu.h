// The popup menu: the actions that the user put into it, and the regions.
#pragma once

#include "actions/action_table.h"

// Brings `window` to the foreground, opens the menu at the cursor and runs the chosen action. The result of
// the action; 0 if nothing was chosen or the menu could not be created.
int ShowActionMenu(HWND window);

// Handler: opens the menu. Always 0.
int DisplayMenu(const ActionCall& call);
