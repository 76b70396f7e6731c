// The dialogs that find a window or a region by its name; choosing a row of the list acts at once.
#include "dialogs/find_dialogs.h"

#include "core/foreground.h"
#include "dialogs/controls.h"
#include "dialogs/registry.h"
#include "regions/region_table.h"
#include "scroll/follow.h"
#include "scroll/scroll_view.h"
#include "scroll/window_table.h"

static const int ID_LIST = 1041;
static const int FROM_DIALOG = 0; // to ScrollView: no row of the action table asked

BOOL CALLBACK AddWindowToList(HWND window, LPARAM listBox) {
    if (!IsManagedWindow(window))
        return TRUE;
    char title[256] = "";
    GetWindowTextA(window, title, sizeof title);
    AddListRow(reinterpret_cast<HWND>(listBox), title, reinterpret_cast<LPARAM>(window));
    return TRUE;
}

static void OnInitWindows(HWND dialog) {
    EnumWindows(AddWindowToList, reinterpret_cast<LPARAM>(GetDlgItem(dialog, ID_LIST)));
    ShowWindow(dialog, SW_SHOW);
    DialogHandles[KEYS_FIND_WINDOW] = dialog;
}

// A window of another program has the foreground only once its thread has taken it, which may be later than
// this: the view goes to the window itself. One that hangs or is gone is not gone to.
static void GoToWindow(HWND window) {
    if (!IsAlive(window))
        return;
    GiveForeground(window);
    CenterOnWindow(window, window);
}

static void OnSelectWindow(HWND dialog) {
    const LRESULT data = SelectedData(dialog, ID_LIST);
    if (data && data != LB_ERR)
        GoToWindow(reinterpret_cast<HWND>(data));
}

static void OnInitRegions(HWND dialog) {
    ShowWindow(dialog, SW_SHOW);
    SetWindowTextA(dialog, "Find Region...");
    DialogHandles[KEYS_FIND_REGION] = dialog;
    for (int row = 0; row < num_regions; ++row)
        AddListRow(GetDlgItem(dialog, ID_LIST), RegionTable[row].name, row);
}

// A region that has been unmarked meanwhile leads to what its row holds now, as its hotkey does.
static void OnSelectRegion(HWND dialog) {
    const LRESULT row = SelectedData(dialog, ID_LIST);
    if (row != LB_ERR)
        ScrollView(dialog, RegionTable[row].left, RegionTable[row].top, SV_ABSOLUTE, FROM_DIALOG);
}

// What the two have in common, but for what choosing a row does.
static void OnCommand(HWND dialog, WPARAM command, void (*OnSelect)(HWND)) {
    if (LOWORD(command) == IDOK)
        CloseDialog(dialog, DIALOG_FIND, 0);
    else if (LOWORD(command) == ID_LIST && HIWORD(command) == LBN_SELCHANGE)
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
