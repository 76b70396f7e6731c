// The dialog that sets a window's size by numbers.
#pragma once

#include "core/platform.h"

// For template 111. The window chosen last stays the one to resize when the dialog closes and opens again.
// One that is gone or does not answer keeps its size.
INT_PTR CALLBACK ResizeWindowsDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
