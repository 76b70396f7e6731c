#include "menus/tray.h"

#include "core/state.h"
#include "menus/action_menu.h"
#include "toolwin/placement.h"

#include <cstring>

static const UINT TRAY_ICON_ID = 1125;

// The short form of the record, which every version of the shell accepts: its tip has 64 characters.
void TrayIcon(HWND window, DWORD operation) {
    NOTIFYICONDATAA data{};
    data.cbSize = NOTIFYICONDATAA_V1_SIZE;
    data.hWnd = window;
    data.uID = TRAY_ICON_ID;
    data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    data.uCallbackMessage = TRAY_MESSAGE;
    data.hIcon = TrayImage;
    std::strcpy(data.szTip, "Quorl");
    Shell_NotifyIconA(operation, &data);
}

LRESULT OnTrayMessage(HWND window, LPARAM lParam) {
    switch (lParam) {
    case WM_RBUTTONDOWN: return ShowActionMenu(window);
    case WM_LBUTTONDBLCLK: ToggleToolwin({}); return 0;
    default: return 0;
    }
}
