// The dialog that marks the view's position as a region, or renames and recolours the one that starts there.
#pragma once

#include "core/platform.h"

// OK uses the position of the view at that moment, not when the dialog opened. If all regions are in use, a
// box says so and the dialog stays open.
INT_PTR CALLBACK NameRegionDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
