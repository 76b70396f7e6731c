// The icon in the notification area.
#pragma once

#include "core/platform.h"

constexpr UINT TRAY_MESSAGE = 1125; // to the map; lParam is the mouse message on the icon

// Adds (NIM_ADD) or removes (NIM_DELETE) the icon that reports to `window`.
void TrayIcon(HWND window, DWORD operation);

// A press of the right button opens the menu, a double click of the left one shows or hides the map. The
// result of the chosen action, else 0.
LRESULT OnTrayMessage(HWND window, LPARAM lParam);
