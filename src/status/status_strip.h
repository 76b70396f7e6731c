// The status strip: one line of text above the map that says what happened, for one to two seconds.
#pragma once

#include "core/platform.h"

extern HWND TipWnd; // the strip; null until its first text

// Registers the strip's class; call once, before the map exists.
void RegisterTipClass(HINSTANCE instance);

// Formats a text as printf does, at most 255 characters, and shows it above the map, or below it if there is
// no space above. Does nothing while the user has switched texts off, or if the strip cannot be created.
__attribute__((format(printf, 1, 2))) void ShowTip(const char* format, ...);

void HideTip();
