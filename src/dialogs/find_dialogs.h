// The dialogs that find a window or a region by its name; selecting a row acts at once.
#pragma once

#include "core/platform.h"

// The EnumWindows callback that fills a list box with the managed windows: the title as text, the handle as
// item data. Always TRUE.
BOOL CALLBACK AddWindowToList(HWND window, LPARAM listBox);

// The list is not updated while the dialog is open. A window that is gone or does not respond is ignored.
INT_PTR CALLBACK FindWindowDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
INT_PTR CALLBACK FindRegionDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
