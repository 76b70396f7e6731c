// Polling: detects that windows of other programs have moved, appeared or vanished.
#pragma once

#include "core/platform.h"

constexpr UINT_PTR REFRESH_TIMER = 2000;
constexpr UINT REFRESH_PERIOD = 100; // milliseconds

// The timer's callback: follows the active window, compares the window table with the windows' rectangles,
// and refreshes table and map if they differ.
void CALLBACK RefreshTimer(HWND window, UINT message, UINT_PTR id, DWORD time);
