// The contents of the lists of the Actions dialog: which actions, and the text of their bindings.
#pragma once

#include "actions/action_table.h"

constexpr int KEY_TEXT_SIZE = 16;

// The action at an index of the list for `flag` (ACTION_KEY or ACTION_MOUSE), or NO_ACTION.
int ActionAtItem(int item, DWORD flag);

// The number of actions offered for `flag`.
int NumListItems(DWORD flag);

// Pure: the name of a key, or the character with the code in its low byte. Tab and F13 to F24 have no name
// here.
void KeyText(char (&text)[KEY_TEXT_SIZE], int vk);

// The hotkey or mouse combination of an action as "S-C-A-W-F5" or "S-LB", built in the action's own `text`.
const char* HotkeyText(ActionRow& row);
const char* MouseText(ActionRow& row);
