// The dialog that sets a window's size by numbers.
#include "dialogs/resize_windows_dialog.h"

#include "core/state.h"
#include "dialogs/controls.h"
#include "dialogs/find_dialogs.h"
#include "dialogs/registry.h"
#include "scroll/shift.h"

#include <cstdio>

// Apply has the number that other dialogs give to Cancel.
static const int ID_APPLY = 2;
static const int ID_HEIGHT = 1000;
static const int ID_WIDTH = 1001;
static const int ID_LIST = 1041;
static const int ID_DESKTOP = 1043;
static const int ID_OK = 1044;

static HWND ResizeTarget;

static void OnInit(HWND dialog) {
    char size[32];
    std::snprintf(size, sizeof size, "%dx%d", static_cast<int>(Quorl.right - Quorl.left),
                  static_cast<int>(Quorl.bottom - Quorl.top));
    SetDlgItemTextA(dialog, ID_DESKTOP, size);
    EnumWindows(AddWindowToList, reinterpret_cast<LPARAM>(GetDlgItem(dialog, ID_LIST)));
    ShowWindow(dialog, SW_SHOW);
}

static void OnSelect(HWND dialog) {
    const LRESULT data = SelectedData(dialog, ID_LIST);
    if (data == LB_ERR)
        return;
    ResizeTarget = reinterpret_cast<HWND>(data);
    RECT place{};
    if (!GetWindowRect(ResizeTarget, &place))
        return;
    SetDlgItemInt(dialog, ID_WIDTH, static_cast<UINT>(place.right - place.left), FALSE);
    SetDlgItemInt(dialog, ID_HEIGHT, static_cast<UINT>(place.bottom - place.top), FALSE);
}

static void OnApply(HWND dialog) {
    RECT place{};
    if (!ResizeTarget || !GetWindowRect(ResizeTarget, &place) || !IsAlive(ResizeTarget))
        return;
    const int width = static_cast<int>(GetDlgItemInt(dialog, ID_WIDTH, nullptr, FALSE));
    const int height = static_cast<int>(GetDlgItemInt(dialog, ID_HEIGHT, nullptr, FALSE));
    MoveWindow(ResizeTarget, place.left, place.top, width, height, TRUE);
}

static void OnCommand(HWND dialog, int id, int notification) {
    switch (id) {
    case ID_APPLY: OnApply(dialog); break;
    case ID_OK: CloseDialog(dialog, DIALOG_RESIZE_WINDOWS, 0); break;
    case ID_LIST:
        if (notification == LBN_SELCHANGE)
            OnSelect(dialog);
        break;
    default: break;
    }
}

INT_PTR CALLBACK ResizeWindowsDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG: OnInit(dialog); return 1;
    case WM_COMMAND: OnCommand(dialog, LOWORD(wParam), HIWORD(wParam)); break;
    default: break;
    }
    return 0;
}
