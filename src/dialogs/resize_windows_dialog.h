// The dialog that sets a window's size by numbers.
#pragma once

#include "core/platform.h"

// The selected window stays selected when the dialog is closed and opened again. A window that is gone or
// does not respond keeps its size.
INT_PTR CALLBACK ResizeWindowsDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
