// The dialog in which the user composes the popup menu.
#pragma once

#include "core/platform.h"

// Every edit changes MenuList at once; Cancel restores the menu of the moment when the dialog opened.
INT_PTR CALLBACK CustomizeMenuDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
