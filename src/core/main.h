// The life of the process, in the three pieces that WinMain runs one after the other.
#pragma once

#include "core/platform.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show);

// Creates the Toolwin with all that belongs to it. 0: another instance runs already, or the Toolwin cannot be
// created, which the user has been told.
int StartUp(HINSTANCE instance);

// Runs until the quit message; gives its wParam.
int RunMessageLoop();

// Releases the mouse hook, its library and the tray icon's picture.
void ShutDown();
