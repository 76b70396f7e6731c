// The dialog that sets the opacity of the Toolwin, live.
#pragma once

#include "core/platform.h"

// For template 120. Where the running system cannot do it, says so and stays hidden.
INT_PTR CALLBACK TransparencyDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
