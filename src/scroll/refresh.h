// Polling: windows move, appear and vanish without notice.
#pragma once

#include "core/platform.h"

constexpr UINT_PTR REFRESH_TIMER = 2000;
constexpr UINT REFRESH_PERIOD = 100; // milliseconds
constexpr UINT_PTR FLASH_TIMER = 1234;

// The callback of both timers. FLASH_TIMER repaints the foreground window's box on the map; any other id
// follows the active window, compares the table with the windows' places, and refreshes table and map if they
// differ.
void CALLBACK RefreshTimer(HWND window, UINT message, UINT_PTR id, DWORD time);
