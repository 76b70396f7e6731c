// The status strip: one line of text above the map that says what happened, for one to two seconds.
#pragma once

#include "core/platform.h"

extern HWND TipWnd; // the strip; null until its first text

// Registers the strip's class; call once, before the map exists.
void RegisterTipClass(HINSTANCE instance);

// Formats a text as printf does, at most 255 characters, and shows it above the map, or below it if there is
// no space above. Does nothing while the user has switched texts off, or if the strip cannot be created.
__attribute__((format(printf, 1, 2))) void ShowTip(const char* format, ...);

// The same for a text that contains a window's title: `before`, the title, `after`. Titles are UTF-16,
// because the ANSI code page lacks the characters of most alphabets.
void ShowTitleTip(const char* before, LPCWSTR title, const char* after);

void HideTip();
