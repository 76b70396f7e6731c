// The dialog in which the user binds actions to keys and to mouse combinations on the map.
#pragma once

#include "core/platform.h"

// Apply and Clear change the selected action at once; OK only closes the dialog.
INT_PTR CALLBACK ActionsDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
