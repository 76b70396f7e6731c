// The dialog that marks the view's place as a region, or renames and recolours the one that starts there.
#pragma once

#include "core/platform.h"

// For template 108. The place that counts is the view's when OK is pressed, not when the dialog opened. With
// all rows of the table in use it says so and stays open, and the table stays as it is.
INT_PTR CALLBACK NameRegionDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
