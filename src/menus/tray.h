// The icon in the notification area.
#pragma once

#include "core/platform.h"

constexpr UINT TRAY_MESSAGE = 1125; // to the map; lParam is the mouse message on the icon

// Adds the icon that reports to `window`, with its image loaded for the current scale. If the taskbar does
// not accept it, tries again for a minute. Does nothing once the user has confirmed "QUIT?".
void AddTrayIcon(HWND window);

void RemoveTrayIcon(HWND window);

// Whether the message says that the taskbar was created, or the scale changed: it has lost all icons, or
// shows them in a different size.
bool IsTaskbarCreated(UINT message);

// A press of the right button opens the menu, a double click of the left one shows or hides the map.
void OnTrayMessage(HWND window, LPARAM lParam);
