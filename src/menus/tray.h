// The icon in the notification area.
#pragma once

#include "core/platform.h"

constexpr UINT TRAY_MESSAGE = 1125; // to the main window; lParam is the mouse message over the icon

// Adds (NIM_ADD) or removes (NIM_DELETE) the icon that reports to `window`. 0 when the shell refuses.
int TrayIcon(HWND window, DWORD operation);

// A press of the right button opens the menu, a double click of the left one hides or shows the Toolwin. The
// result is that of the chosen action, else 0.
LRESULT OnTrayMessage(HWND window, WPARAM wParam, LPARAM lParam);
