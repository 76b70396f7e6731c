// The dialog in which the user composes the popup menu.
#pragma once

#include "core/platform.h"

// The procedure of template 116. Every edit changes MenuList at once; Cancel puts back what stood there when
// the dialog opened.
INT_PTR CALLBACK CustomizeMenuDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
