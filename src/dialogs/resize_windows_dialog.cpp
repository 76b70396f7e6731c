#include "dialogs/resize_windows_dialog.h"

#include "core/rect.h"
#include "core/state.h"
#include "dialogs/controls.h"
#include "dialogs/find_dialogs.h"
#include "dialogs/registry.h"
#include "resources/control_ids.h"
#include "windows/other_window.h"

#include <cstdio>

static HWND ResizeTarget;

static void OnInit(HWND dialog) {
    char size[32];
    std::snprintf(size, sizeof size, "%dx%d", Width(Quorl), Height(Quorl));
    SetDlgItemTextA(dialog, IDC_RESIZE_DESKTOP, size);
    EnumWindows(AddWindowToList, reinterpret_cast<LPARAM>(GetDlgItem(dialog, IDC_RESIZE_LIST)));
    ShowWindow(dialog, SW_SHOW);
}

static void OnSelect(HWND dialog) {
    const LRESULT data = SelectedData(dialog, IDC_RESIZE_LIST);
    if (data == LB_ERR)
        return;
    ResizeTarget = reinterpret_cast<HWND>(data);
    SIZE size{};
    if (!GetOtherWindowSize(ResizeTarget, &size))
        return;
    SetDlgItemInt(dialog, IDC_RESIZE_WIDTH, static_cast<UINT>(size.cx), FALSE);
    SetDlgItemInt(dialog, IDC_RESIZE_HEIGHT, static_cast<UINT>(size.cy), FALSE);
}

static void OnApply(HWND dialog) {
    if (!ResizeTarget)
        return;
    const int width = static_cast<int>(GetDlgItemInt(dialog, IDC_RESIZE_WIDTH, nullptr, FALSE));
    const int height = static_cast<int>(GetDlgItemInt(dialog, IDC_RESIZE_HEIGHT, nullptr, FALSE));
    ResizeIfAlive(ResizeTarget, {width, height});
}

static void OnCommand(HWND dialog, int id, int notification) {
    switch (id) {
    case IDC_RESIZE_APPLY: OnApply(dialog); break;
    case IDC_RESIZE_OK: CloseDialog(dialog); break;
    case IDC_RESIZE_LIST:
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
