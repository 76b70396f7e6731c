// The dialog that says where help is to be found; it can be resized.
#pragma once

#include "core/platform.h"

// For template 106.
INT_PTR CALLBACK HelpDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

// Pixels of the dialog's client area.
struct HelpLayout {
    RECT text, button;
};

// Pure: where the text and the OK button of that size stand in a client area of width by height. A client
// area too small for both gives a text of negative size.
HelpLayout LayOutHelp(int width, int height, int buttonWidth, int buttonHeight);
