// The dialog that says where to find the help; it can be resized.
#pragma once

#include "core/platform.h"

INT_PTR CALLBACK HelpDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
