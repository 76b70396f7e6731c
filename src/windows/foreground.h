// The window that actions from the menu and the map act on: while one of these is in use, the foreground
// window is Quorl's own or the taskbar.
#pragma once

#include "core/platform.h"

// Notes the foreground window if it is managed. Call regularly, and before Quorl takes the foreground.
void NoteForeground();

// The managed window last seen in the foreground; null if there was none or it is no longer managed.
HWND LastActiveWindow();
