// Bindings and values of all actions in the settings file.
#pragma once

#include "actions/action_table.h"

// Reads the action's line into the table, after releasing its bindings; registers nothing. Missing fields
// leave the action unbound or its value unchanged. False, and nothing changes, without a line.
bool ReadAction(LPCSTR file, int id);

// Reads all lines; `bStored` is set for each action that has one. Registers nothing: two actions may have
// swapped their hotkeys, and a box about a refused one lets the user quit, which saves the whole table.
void ReadActions(LPCSTR file, bool (&bStored)[NUM_ACTIONS]);

// Writes a line for each action.
void SaveActions(LPCSTR file);

// Whether the file contains the last line that SaveActions writes.
bool HasLastAction(LPCSTR file);
