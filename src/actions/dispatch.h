// The dispatcher: hotkeys, mouse combinations, the menu and dialogs all end here.
#pragma once

#include "actions/action_table.h"

constexpr int FIRST_REGION_ID = 33000; // hotkey and menu ids from here on are regions: this plus the index

// Runs action `id`, or for FIRST_REGION_ID + i the jump to region i. A number below 0, NUM_ACTIONS and an
// action without a handler show a message box; other numbers that are no region do nothing. `target` is the
// window that commands on the active window act on, or null. Does nothing once the user has quit.
void DoAction(HWND window, int id, HWND target, ActionPoint point = {0, 0});
