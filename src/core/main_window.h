// The Toolwin's class and its procedure: where every message of the system arrives.
#pragma once

#include "core/platform.h"

constexpr char MAIN_CLASS[] = "Quorltop"; // class and title, and the test for another instance

constexpr SIZE LEAST_TOOLWIN{40, 13}; // pixels
constexpr SIZE MOST_TOOLWIN{32000, 32000};

LRESULT CALLBACK MainWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
