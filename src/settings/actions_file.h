// Bindings and values of all rows, as they lie in the settings file.
#pragma once

#include "actions/action_table.h"
#include "core/platform.h"

// Takes every row that has a line in the file from it and registers its hotkey, which the user is told about
// if it is refused; such a row keeps the values of the file. Rows without a line stay as they are. Fields
// that a line lacks leave the row unbound, or its value as it was. Always 1.
int LoadActions(HWND window, LPCSTR file);

// Writes a line for each of the 123 rows. Always 1.
int SaveActions(HWND window, LPCSTR file);

// What the file says of row 71: whether the settings are to be loaded. Without a line, what the row holds.
int WillLoadSettings(LPCSTR file);

// 1 if the row has a line of its own.
int HasActionLine(LPCSTR file, ActionId row);

// Takes row 71 alone from the file, before anything else is read. Its hotkey is registered only if the
// settings are not to be loaded, since LoadActions would do it again at once and report a refusal twice. The
// row's value.
int LoadLoadSetting(HWND window, LPCSTR file);
