// The popup menu: the actions that the user put into it, and the regions.
#pragma once

#include "actions/action_table.h"

// Brings `window` to the foreground, opens the menu at the cursor and runs the chosen action.
void ShowActionMenu(HWND window);

// Handler: opens the menu.
void DisplayMenu(const ActionCall& call);
