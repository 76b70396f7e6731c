// Options, the desktop's size, the Toolwin's place and the menu, as they lie in the settings file.
#pragma once

#include "core/platform.h"

// Reads them; `window` is the Toolwin, which moves to its stored place if that has a left above 0. What is
// absent or negative stays as it is in memory. The number of regions becomes 0 until LoadRegions has run.
// Numbers with which windows would be lost are held to what the desktop can be, and an entry of the menu that
// names no action becomes a separator. Always 1.
int LoadOptions(HWND window, LPCSTR file);

// Writes them, each as one call. Always 1: a failed write leaves what was stored. A menu too long for its
// value loses its end, in the list as well.
int SaveOptions(HWND window, LPCSTR file);
