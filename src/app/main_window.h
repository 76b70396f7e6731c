// The map's window procedure.
#pragma once

#include "core/platform.h"

LRESULT CALLBACK MainWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
