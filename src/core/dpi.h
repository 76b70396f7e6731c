// Scaled displays: sizes that do not scale by themselves are written in pixels at 96 DPI.
#pragma once

#include "core/platform.h"

constexpr int DEFAULT_DPI = 96; // a display that is not scaled

// The resolution of the window's display, in dots per inch.
int DpiOf(HWND window);
