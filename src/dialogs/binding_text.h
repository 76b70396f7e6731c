// Which rows the lists of the Actions dialog hold, and how their bindings read there.
#pragma once

#include "actions/action_table.h"

constexpr int KEY_TEXT_ROOM = 16;

// Pure, any input. The item-th row, from 0, that is offered for `flag`, ACTION_KEY or ACTION_MOUSE; -1 when
// there are not so many.
ActionId RowOfListItem(int item, DWORD flag);

// How many rows are offered for `flag`.
int NumListItems(DWORD flag);

// Pure, any input: the name of a key, or the one character with that code; its low byte counts. Tab and F13
// to F24 have no name here.
void KeyText(char (&text)[KEY_TEXT_ROOM], int vk);

// The hotkey or the mouse combination of a row as "S-C-A-W-F5" or "S-LB", built in the row's own `text`, to
// which the result points.
const char* HotkeyText(ActionRow& row);
const char* MouseText(ActionRow& row);
