// The dialog that sets the opacity of the map while the slider moves.
#pragma once

#include "core/platform.h"

// If the running system cannot do it, says so and stays hidden.
INT_PTR CALLBACK TransparencyDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
