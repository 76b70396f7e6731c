// The Options dialog: the size of the desktop, the scroll steps, and edge scrolling.
#pragma once

#include "core/platform.h"

// Nothing changes until OK.
INT_PTR CALLBACK OptionsDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
