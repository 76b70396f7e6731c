// The dialog in which the user binds actions to keys and to mouse combinations on the map.
#pragma once

#include "core/platform.h"

// The procedure of template 113. Apply and Clear change the row that is selected at once; OK only closes.
INT_PTR CALLBACK ActionsDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
