// The dialog in which the user composes the popup menu.
#include "dialogs/customize_menu_dialog.h"

#include "actions/dispatch.h"
#include "core/state.h"
#include "dialogs/controls.h"
#include "dialogs/registry.h"
#include "menus/menu_list.h"

#include <algorithm>
#include <iterator>

namespace {

enum ControlId {
    ID_INTO_MENU = 3,
    ID_OUT_OF_MENU = 4,
    ID_INSERT_LINE = 5,
    ID_TEST = 10,
    ID_MENU_LIST = 1061,
    ID_ACTION_LIST = 1062,
    ID_UP = 1065,
    ID_DOWN = 1066,
};

} // namespace

static const int ICON_DOWN = 121;
static const int ICON_UP = 122;

static const int LINE = -2; // entry of a line that this dialog inserts, and number of every line it shows
static const int NOTHING = -1;
static const ActionId ROW_OPTIONS = 54; // the way back to this dialog

// The menu as it stood when the dialog opened.
static int MenuBackup[MAX_MENU_ENTRIES];
static int MenuBackupCount;

static HICON UpIcon, DownIcon; // null while the dialog is closed

static int IsAvailable(ActionId row) {
    return (ActionTable[row].flags & ACTION_KEY) && FindMenuEntry(row) < 0;
}

static int Selection(HWND dialog, int list) {
    return static_cast<int>(SendDlgItemMessageA(dialog, list, LB_GETCURSEL, 0, 0));
}

static void Select(HWND dialog, int list, int place) {
    SendDlgItemMessageA(dialog, list, LB_SETCURSEL, static_cast<WPARAM>(place), 0);
}

// The number that the selected row of the list carries; NOTHING when none is selected.
static int SelectedNumber(HWND dialog, int list) {
    return static_cast<int>(SelectedData(dialog, list));
}

// The menu's own row is not offered: it would open the menu that it stands in.
static void AddAvailableActions(HWND list) {
    for (ActionId row = 1; row < NUM_ACTIONS; ++row)
        if (IsAvailable(row))
            AddListRow(list, ActionTable[row].desc, row);
}

static int NumberOf(int entry) {
    return entry > 0 ? entry : LINE;
}

static void AddMenuEntries(HWND list) {
    for (int place = 0; place < quorl_menu_count; ++place) {
        const int number = NumberOf(MenuList[place]);
        AddListRow(list, number == LINE ? "<---------------->" : ActionTable[number].desc, number);
    }
}

// The list box paints once, not after each of its up to 500 rows, which takes seconds.
static int FillMenuListBox(HWND dialog, int id) {
    const HWND list = GetDlgItem(dialog, id);
    if (!list)
        return 0;
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    if (id == ID_ACTION_LIST)
        AddAvailableActions(list);
    else
        AddMenuEntries(list);
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
    return 1;
}

static void FillBoth(HWND dialog) {
    FillMenuListBox(dialog, ID_ACTION_LIST);
    FillMenuListBox(dialog, ID_MENU_LIST);
}

// Loading the settings may have put another menu under the open dialog. The user gets to see that one before
// the selected place in it changes.
static int ShowsOtherMenu(HWND dialog) {
    const int place = Selection(dialog, ID_MENU_LIST);
    const int number = SelectedNumber(dialog, ID_MENU_LIST);
    if (place < 0 || (place < quorl_menu_count && NumberOf(MenuList[place]) == number))
        return 0;
    MessageBeep(0);
    FillBoth(dialog);
    return 1;
}

static void BackUpMenu() {
    std::copy(std::begin(MenuList), std::end(MenuList), MenuBackup);
    MenuBackupCount = quorl_menu_count;
}

static void RestoreMenu() {
    quorl_menu_count = MenuBackupCount;
    std::copy(std::begin(MenuBackup), std::end(MenuBackup), MenuList);
}

static void OnIntoMenu(HWND dialog) {
    const int row = SelectedNumber(dialog, ID_ACTION_LIST);
    if (row == NOTHING)
        return;
    if (FindMenuEntry(row) < 0)
        AppendMenuEntry(row);
    FillBoth(dialog);
    Select(dialog, ID_MENU_LIST, quorl_menu_count - 1);
}

static void OnOutOfMenu(HWND dialog) {
    const int entry = SelectedNumber(dialog, ID_MENU_LIST);
    if (entry == NOTHING || entry == ROW_OPTIONS) {
        MessageBeep(0);
        return;
    }
    if (ShowsOtherMenu(dialog))
        return;
    RemoveMenuEntry(entry, Selection(dialog, ID_MENU_LIST));
    FillBoth(dialog);
    Select(dialog, ID_MENU_LIST, FindMenuEntry(entry));
}

// The row that was selected stays so: it has moved down, by one, also in a full list that takes no line.
static void OnInsertLine(HWND dialog) {
    const int place = Selection(dialog, ID_MENU_LIST);
    if (place < 0 || ShowsOtherMenu(dialog))
        return;
    InsertMenuEntry(place, LINE);
    FillMenuListBox(dialog, ID_MENU_LIST);
    Select(dialog, ID_MENU_LIST, place + 1);
}

static void MoveEntry(HWND dialog, int delta) {
    const int place = Selection(dialog, ID_MENU_LIST);
    if (ShowsOtherMenu(dialog))
        return;
    if (!SwapMenuEntries(place, delta)) {
        MessageBeep(0);
        return;
    }
    FillMenuListBox(dialog, ID_MENU_LIST);
    Select(dialog, ID_MENU_LIST, place + delta);
}

static void OnUp(HWND dialog) {
    MoveEntry(dialog, -1);
}

static void OnDown(HWND dialog) {
    MoveEntry(dialog, 1);
}

// What the action does may close this dialog, so it comes last.
static void OnTest(HWND dialog) {
    int row = SelectedNumber(dialog, ID_ACTION_LIST);
    if (row == NOTHING)
        row = SelectedNumber(dialog, ID_MENU_LIST);
    if (row == NOTHING)
        MessageBeep(0);
    else
        DoAction(MainWnd, row, nullptr);
}

// Only one of the lists holds a selection.
static void OnMenuList(HWND dialog) {
    Select(dialog, ID_ACTION_LIST, NOTHING);
}

static void OnActionList(HWND dialog) {
    Select(dialog, ID_MENU_LIST, NOTHING);
}

static void OnOk(HWND dialog) {
    DeleteObject(UpIcon);
    DeleteObject(DownIcon);
    UpIcon = DownIcon = nullptr;
    CloseDialog(dialog, DIALOG_CUSTOMIZE_MENU, 0);
}

static void OnCancel(HWND dialog) {
    RestoreMenu();
    OnOk(dialog);
}

static const CommandRow Commands[] = {
    {ID_INTO_MENU,   OnIntoMenu  },
    {ID_OUT_OF_MENU, OnOutOfMenu },
    {ID_INSERT_LINE, OnInsertLine},
    {ID_UP,          OnUp        },
    {ID_DOWN,        OnDown      },
    {ID_TEST,        OnTest      },
    {ID_MENU_LIST,   OnMenuList  },
    {ID_ACTION_LIST, OnActionList},
    {IDOK,           OnOk        },
    {IDCANCEL,       OnCancel    },
};

static void ShowIcons(HWND dialog) {
    const HINSTANCE instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(dialog, GWLP_HINSTANCE));
    UpIcon = LoadIconA(instance, MAKEINTRESOURCEA(ICON_UP));
    if (!UpIcon)
        MessageBoxA(nullptr, "FAILED ICONUP", "fuck", MB_OK);
    DownIcon = LoadIconA(instance, MAKEINTRESOURCEA(ICON_DOWN));
    SendDlgItemMessageA(dialog, ID_UP, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(UpIcon));
    SendDlgItemMessageA(dialog, ID_DOWN, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(DownIcon));
}

static void OnInit(HWND dialog) {
    BackUpMenu();
    FillBoth(dialog);
    ShowWindow(dialog, SW_SHOW);
    DialogHandles[KEYS_CUSTOMIZE_MENU] = dialog;
    ShowIcons(dialog);
}

INT_PTR CALLBACK CustomizeMenuDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG: OnInit(dialog); return TRUE;
    case WM_COMMAND: return RunCommand(Commands, dialog, wParam);
    default: return FALSE;
    }
}
