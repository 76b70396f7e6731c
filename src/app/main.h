// Start-up, message loop and shutdown, in the order in which WinMain calls them.
#pragma once

#include "core/platform.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show);

// Creates the map and everything that belongs to it. False if another instance runs already, or if the map
// cannot be created, which a box reports.
bool StartUp(HINSTANCE instance);

// Runs until the quit message; returns its wParam.
int RunMessageLoop();

// Releases the mouse hook, its library and the icon of the notification area.
void ShutDown();
