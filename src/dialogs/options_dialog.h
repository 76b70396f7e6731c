// The Options dialog: the desktop's size, the scroll steps, and how an edge scroll goes.
#pragma once

#include "core/platform.h"

// Opens or raises the dialog, owned by `window`. Always 1.
int OpenOptionsDialog(HWND window);

// The procedure of template 101. Nothing changes until OK.
INT_PTR CALLBACK OptionsDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
