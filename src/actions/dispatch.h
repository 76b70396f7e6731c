// The one dispatcher: hotkeys, mouse combinations, the menu and dialogs all end here.
#pragma once

#include "actions/action_table.h"
#include "core/coordinates.h"

constexpr int FIRST_REGION_ID = 33000; // ids from here on name regions: hotkeys and menu entries

// What a handler is called with.
struct ActionCall {
    HWND window; // what the work repaints, or uses as owner
    ActionId row;
    ActionPoint* point; // never null
    int with;           // from the table: what tells this row from others with the same handler
};

using ActionHandler = int (*)(const ActionCall& call);

// Runs a row, or for FIRST_REGION_ID + i row 3 with region i. `point` may be null and then stands for (0, 0);
// a row may overwrite it. The result is the row's own and says little. A number without a handler shows a
// box.
int DoAction(HWND window, int id, ActionPoint* point);
