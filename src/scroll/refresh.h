// Polling: detects that windows of other programs have moved, appeared or vanished.
#pragma once

#include "core/platform.h"

constexpr UINT_PTR REFRESH_TIMER = 2000;
constexpr UINT REFRESH_PERIOD = 100; // milliseconds

// The timer's callback: follows the active window, then rebuilds the window table and repaints the map if a
// rectangle has changed, on every 12th tick, and while it follows a window.
void CALLBACK RefreshTimer(HWND window, UINT message, UINT_PTR id, DWORD time);
