// The dialogs that find a window or a region by its name.
#include "dialogs/find_dialogs.h"

#include "dialogs/controls.h"
#include "dialogs/registry.h"
#include "regions/region_table.h"
#include "resources/control_ids.h"
#include "core/state.h"
#include "scroll/follow.h"
#include "scroll/scroll_view.h"
#include "windows/other_window.h"
#include "windows/window_table.h"

static const int NO_CALLER = 0; // to ScrollView: no action

BOOL CALLBACK AddWindowToList(HWND window, LPARAM listBox) {
    if (!IsManagedWindow(window))
        return TRUE;
    WCHAR title[256] = L"";
    GetWindowTextW(window, title, 256);
    AddTitleRow(reinterpret_cast<HWND>(listBox), title, reinterpret_cast<LPARAM>(window));
    return TRUE;
}

static void OnInitWindows(HWND dialog) {
    EnumWindows(AddWindowToList, reinterpret_cast<LPARAM>(GetDlgItem(dialog, IDC_FIND_LIST)));
    ShowWindow(dialog, SW_SHOW);
}

// GetForegroundWindow can return the new window only once its thread has processed the change, so scroll to
// the window itself. A window that is hung or gone is ignored.
static void GoToWindow(HWND window) {
    if (!IsAlive(window))
        return;
    ActivateWindow(window);
    CenterOnWindow(MainWnd, window);
}

static void OnSelectWindow(HWND dialog) {
    const LRESULT data = SelectedData(dialog, IDC_FIND_LIST);
    if (data && data != LB_ERR)
        GoToWindow(reinterpret_cast<HWND>(data));
}

static void OnInitRegions(HWND dialog) {
    ShowWindow(dialog, SW_SHOW);
    SetWindowTextA(dialog, "Find Region...");
    for (int row = 0; row < num_regions; ++row)
        AddListRow(GetDlgItem(dialog, IDC_FIND_LIST), RegionTable[row].name, row);
}

// If the region was unmarked meanwhile, go to what its index holds now, as its hotkey does.
static void OnSelectRegion(HWND dialog) {
    const LRESULT row = SelectedData(dialog, IDC_FIND_LIST);
    if (row != LB_ERR)
        ScrollView(dialog, RegionTable[row].left, RegionTable[row].top, SV_ABSOLUTE, NO_CALLER);
}

// Common to both dialogs, except for what a selection does.
static void OnCommand(HWND dialog, WPARAM command, void (*OnSelect)(HWND)) {
    if (LOWORD(command) == IDOK)
        CloseDialog(dialog);
    else if (LOWORD(command) == IDC_FIND_LIST && HIWORD(command) == LBN_SELCHANGE)
        OnSelect(dialog);
}

INT_PTR CALLBACK FindWindowDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG: OnInitWindows(dialog); return 1;
    case WM_COMMAND: OnCommand(dialog, wParam, OnSelectWindow); break;
    default: break;
    }
    return 0;
}

INT_PTR CALLBACK FindRegionDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG: OnInitRegions(dialog); return 1;
    case WM_COMMAND: OnCommand(dialog, wParam, OnSelectRegion); break;
    default: break;
    }
    return 0;
}
