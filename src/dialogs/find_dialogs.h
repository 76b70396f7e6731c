// The dialogs that find a window or a region by its name; choosing a row of the list acts at once.
#pragma once

#include "core/platform.h"

// The EnumWindows callback that fills a list box with the windows that Quorl may touch: the title as text,
// the handle as item data. Always 1, so that the enumeration goes on.
BOOL CALLBACK AddWindowToList(HWND window, LPARAM listBox);

// For template 117. The list is that of the moment of opening. A window that is gone or does not answer is
// not gone to.
INT_PTR CALLBACK FindWindowDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
INT_PTR CALLBACK FindRegionDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
