#include "dialogs/customize_menu_dialog.h"

#include "actions/dispatch.h"
#include "core/state.h"
#include "dialogs/controls.h"
#include "dialogs/registry.h"
#include "menus/menu_list.h"
#include "resources/control_ids.h"

#include <algorithm>
#include <iterator>

static const int SEPARATOR_DATA =
    -2; // entry of a separator that this dialog inserts, and item data of every separator
static const int NO_SELECTION = -1;

// The menu when the dialog opened.
static int MenuBackup[MAX_MENU_ENTRIES];
static int MenuBackupCount;

static HICON UpIcon, DownIcon; // null while the dialog is closed

static bool IsAvailable(int row) {
    return (ActionTable[row].flags & ACTION_KEY) && FindMenuEntry(row) < 0;
}

static int Selection(HWND dialog, int list) {
    return static_cast<int>(SendDlgItemMessageA(dialog, list, LB_GETCURSEL, 0, 0));
}

static void Select(HWND dialog, int list, int position) {
    SendDlgItemMessageA(dialog, list, LB_SETCURSEL, static_cast<WPARAM>(position), 0);
}

// The item data of the selected row; NO_SELECTION if none is selected.
static int SelectedNumber(HWND dialog, int list) {
    return static_cast<int>(SelectedData(dialog, list));
}

// ACTION_SHOW_MENU is not offered: it would open the menu that contains it.
static void AddAvailableActions(HWND list) {
    for (int row = ACTION_SHOW_MENU + 1; row < NUM_ACTIONS; ++row)
        if (IsAvailable(row))
            AddListRow(list, ActionTable[row].desc, row);
}

static int ItemDataOf(int entry) {
    return entry > 0 ? entry : SEPARATOR_DATA;
}

static void AddMenuEntries(HWND list) {
    for (int position = 0; position < quorl_menu_count; ++position) {
        const int number = ItemDataOf(MenuList[position]);
        AddListRow(list, number == SEPARATOR_DATA ? "<---------------->" : ActionTable[number].desc, number);
    }
}

// Paint once: painting after each of up to 500 rows takes seconds.
static void FillMenuListBox(HWND dialog, int id) {
    const HWND list = GetDlgItem(dialog, id);
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    if (id == IDC_MENU_ACTIONS)
        AddAvailableActions(list);
    else
        AddMenuEntries(list);
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

static void FillBoth(HWND dialog) {
    FillMenuListBox(dialog, IDC_MENU_ACTIONS);
    FillMenuListBox(dialog, IDC_MENU_LIST);
}

// Loading the settings while the dialog is open can replace the menu. Show the new one before changing it.
static bool RefreshIfReplaced(HWND dialog) {
    const int position = Selection(dialog, IDC_MENU_LIST);
    const int number = SelectedNumber(dialog, IDC_MENU_LIST);
    if (position < 0 || (position < quorl_menu_count && ItemDataOf(MenuList[position]) == number))
        return false;
    MessageBeep(0);
    FillBoth(dialog);
    return true;
}

static void BackUpMenu() {
    std::copy(std::begin(MenuList), std::end(MenuList), MenuBackup);
    MenuBackupCount = quorl_menu_count;
}

static void RestoreMenu() {
    SetMenuEntries(MenuBackup, MAX_MENU_ENTRIES);
    SetMenuCount(MenuBackupCount);
}

static void OnAdd(HWND dialog) {
    const int row = SelectedNumber(dialog, IDC_MENU_ACTIONS);
    if (row == NO_SELECTION)
        return;
    if (FindMenuEntry(row) < 0)
        InsertMenuEntry(quorl_menu_count, row);
    FillBoth(dialog);
    Select(dialog, IDC_MENU_LIST, quorl_menu_count - 1);
}

static void OnRemove(HWND dialog) {
    const int entry = SelectedNumber(dialog, IDC_MENU_LIST);
    if (entry == NO_SELECTION || entry == ACTION_OPTIONS) {
        MessageBeep(0);
        return;
    }
    if (RefreshIfReplaced(dialog))
        return;
    RemoveMenuEntry(entry, Selection(dialog, IDC_MENU_LIST));
    FillBoth(dialog);
    Select(dialog, IDC_MENU_LIST, FindMenuEntry(entry));
}

// The selection moves down by one with its entry, even if the list was full and nothing was inserted.
static void OnInsertLine(HWND dialog) {
    const int position = Selection(dialog, IDC_MENU_LIST);
    if (position < 0 || RefreshIfReplaced(dialog))
        return;
    InsertMenuEntry(position, SEPARATOR_DATA);
    FillMenuListBox(dialog, IDC_MENU_LIST);
    Select(dialog, IDC_MENU_LIST, position + 1);
}

static void MoveEntry(HWND dialog, int delta) {
    const int position = Selection(dialog, IDC_MENU_LIST);
    if (RefreshIfReplaced(dialog))
        return;
    if (!SwapMenuEntries(position, delta)) {
        MessageBeep(0);
        return;
    }
    FillMenuListBox(dialog, IDC_MENU_LIST);
    Select(dialog, IDC_MENU_LIST, position + delta);
}

static void OnUp(HWND dialog) {
    MoveEntry(dialog, -1);
}

static void OnDown(HWND dialog) {
    MoveEntry(dialog, 1);
}

// The action may close this dialog, so it comes last.
static void OnTest(HWND dialog) {
    int row = SelectedNumber(dialog, IDC_MENU_ACTIONS);
    if (row == NO_SELECTION)
        row = SelectedNumber(dialog, IDC_MENU_LIST);
    if (row == NO_SELECTION)
        MessageBeep(0);
    else
        DoAction(MainWnd, row, GetForegroundWindow());
}

// Only one of the two lists has a selection.
static void OnMenuList(HWND dialog) {
    Select(dialog, IDC_MENU_ACTIONS, NO_SELECTION);
}

static void OnActionList(HWND dialog) {
    Select(dialog, IDC_MENU_LIST, NO_SELECTION);
}

static void OnOk(HWND dialog) {
    UpIcon = DownIcon = nullptr;
    CloseDialog(dialog);
}

static void OnCancel(HWND dialog) {
    RestoreMenu();
    OnOk(dialog);
}

static const CommandRow Commands[] = {
    {IDC_MENU_ADD, OnAdd},       {IDC_MENU_REMOVE, OnRemove},      {IDC_MENU_INSERT_LINE, OnInsertLine},
    {IDC_MENU_UP, OnUp},         {IDC_MENU_DOWN, OnDown},          {IDC_MENU_TEST, OnTest},
    {IDC_MENU_LIST, OnMenuList}, {IDC_MENU_ACTIONS, OnActionList}, {IDOK, OnOk},
    {IDCANCEL, OnCancel},
};

static void ShowIcons(HWND dialog) {
    const HINSTANCE instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(dialog, GWLP_HINSTANCE));
    UpIcon = LoadIconA(instance, MAKEINTRESOURCEA(IDI_ARROW_UP));
    if (!UpIcon)
        MessageBoxA(nullptr, "FAILED ICONUP", "fuck", MB_OK);
    DownIcon = LoadIconA(instance, MAKEINTRESOURCEA(IDI_ARROW_DOWN));
    SendDlgItemMessageA(dialog, IDC_MENU_UP, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(UpIcon));
    SendDlgItemMessageA(dialog, IDC_MENU_DOWN, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(DownIcon));
}

static void OnInit(HWND dialog) {
    BackUpMenu();
    FillBoth(dialog);
    ShowWindow(dialog, SW_SHOW);
    ShowIcons(dialog);
}

INT_PTR CALLBACK CustomizeMenuDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG: OnInit(dialog); return TRUE;
    case WM_COMMAND: return RunCommand(Commands, dialog, wParam);
    default: return FALSE;
    }
}
