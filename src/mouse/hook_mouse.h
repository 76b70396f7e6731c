// News of the mouse from wherever it is, which the hook library posts to the main window.
#pragma once

#include "core/platform.h"

constexpr UINT HOOK_MOUSE_MESSAGE = 1124; // wParam: the number of a mouse message

// Answers one piece of news; the cursor's place is asked for afresh, so that news which waited is not stale.
// 1 if it is a click at a screen edge while edge scrolling is on, else 0.
int OnHookMouse(HWND window, UINT mouseMessage);
