// Scaled displays: sizes that do not scale by themselves are written in pixels at 96 DPI.
#pragma once

#include "core/platform.h"

constexpr int DEFAULT_DPI = 96; // a display that is not scaled

// The resolution of the window's display, in dots per inch.
int DpiOf(HWND window);

// Whether Windows scales the window because its program cannot draw at the scale of its display. Such a
// window is moved in whole pixels of its own scale. False if Windows does not say.
bool IsScaledByWindows(HWND window);
