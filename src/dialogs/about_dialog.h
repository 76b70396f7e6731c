// The dialog that says what this program is.
#pragma once

#include "core/platform.h"

INT_PTR CALLBACK AboutDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
