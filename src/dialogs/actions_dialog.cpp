// The dialog in which the user binds actions to keys and to mouse combinations on the map.
#include "dialogs/actions_dialog.h"

#include "actions/hotkeys.h"
#include "actions/key_names.h"
#include "core/arithmetic.h"
#include "dialogs/binding_text.h"
#include "dialogs/controls.h"
#include "dialogs/registry.h"

#include <algorithm>

namespace {

enum ControlId {
    ID_SHIFT = 1028,
    ID_ALT = 1030,
    ID_CTRL = 1031,
    ID_RIGHT = 1033,
    ID_LEFT = 1034,
    ID_MIDDLE = 1035,
    ID_WIN = 1036,
    ID_KEYS = 1038,
    ID_BINDING_GROUP = 1049,
    ID_TABS = 1050,
    ID_LIST = 1051,
    ID_CLEAR = 1052,
    ID_APPLY = 1053,
    ID_WARNING = 1069,
};

struct FlagControl {
    int id;
    int flag;
};

struct TabControl {
    int id;
    int bKeyboard; // on show on the keyboard tab, else on the mouse tab
};

struct ListColumn {
    int width; // pixels, on a display that is not scaled
    const char* title;
};

struct NotificationRow {
    UINT code;
    void (*does)(HWND dialog, NMHDR* notification);
};

} // namespace

static const FlagControl Modifiers[] = {
    {ID_SHIFT, KEY_SHIFT},
    {ID_CTRL,  KEY_CTRL },
    {ID_ALT,   KEY_ALT  },
    {ID_WIN,   KEY_WIN  },
};

// Where more than one is checked, as a file edited by hand can have it, the last one counts.
static const FlagControl Buttons[] = {
    {ID_LEFT,   LBUTTON},
    {ID_MIDDLE, MBUTTON},
    {ID_RIGHT,  RBUTTON},
};

static const TabControl TabControls[] = {
    {ID_MIDDLE,  0},
    {ID_LEFT,    0},
    {ID_RIGHT,   0},
    {ID_WIN,     1},
    {ID_KEYS,    1},
    {ID_WARNING, 1},
};

static const char* const TabTitles[] = {"Keyboard Actions", "Mouse Actions"};

static const int NOT_SCALED = 96; // pixels an inch

static const ListColumn Columns[] = {
    {120, "ActionKeys" },
    {250, "Description"},
};

// Windows only reads these texts, though its records want to write to them.
static LPSTR ReadOnly(const char* text) {
    return const_cast<LPSTR>(text);
}

static int CurrentTab(HWND dialog) {
    return static_cast<int>(SendDlgItemMessageA(dialog, ID_TABS, TCM_GETCURSEL, 0, 0));
}

static DWORD FlagOfTab(int tab) {
    return tab ? ACTION_MOUSE : ACTION_KEY;
}

static int SelectedItem(HWND dialog) {
    return static_cast<int>(SendDlgItemMessageA(dialog, ID_LIST, LVM_GETSELECTIONMARK, 0, 0));
}

static void ShowControlsOfTab(HWND dialog, int bKeyboard) {
    for (const TabControl& control : TabControls)
        ShowWindow(GetDlgItem(dialog, control.id), control.bKeyboard == bKeyboard ? SW_SHOW : SW_HIDE);
    SetDlgItemTextA(dialog, ID_BINDING_GROUP, bKeyboard ? "Keyboard" : "Mouse");
}

// The list owns no data: it only counts its items, and asks for their texts when it paints. Some systems look
// at their number for the scroll bar only when it is told as such.
static void FillActionList(HWND dialog, int bKeyboard) {
    ShowControlsOfTab(dialog, bKeyboard != 0);
    const HWND list = GetDlgItem(dialog, ID_LIST);
    const int count = NumListItems(bKeyboard ? ACTION_KEY : ACTION_MOUSE);
    SendMessageA(list, LVM_DELETEALLITEMS, 0, 0);
    LVITEMA item{};
    item.mask = LVIF_TEXT;
    item.pszText = LPSTR_TEXTCALLBACKA;
    for (; item.iItem < count; ++item.iItem)
        SendMessageA(list, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
    SendMessageA(list, LVM_SETITEMCOUNT, static_cast<WPARAM>(count), 0);
}

// A beep for each key whose number the list does not give back as it was given.
static int FillKeyCombo(HWND dialog) {
    const HWND keys = GetDlgItem(dialog, ID_KEYS);
    SendMessageA(keys, CB_RESETCONTENT, 0, 0);
    for (const KeyName* key = KeyNames; key->vk >= 0; ++key) {
        const LRESULT entry =
            SendMessageA(keys, CB_INSERTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(key->name));
        if (entry < 0) {
            MessageBeep(0);
            return 0;
        }
        const WPARAM place = static_cast<WPARAM>(entry);
        if (SendMessageA(keys, CB_SETITEMDATA, place, key->vk) == CB_ERR ||
            SendMessageA(keys, CB_GETITEMDATA, place, 0) != key->vk)
            MessageBeep(0);
    }
    SendMessageA(keys, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(KeyNames[0].name));
    return 1;
}

template <int COUNT>
static void CheckFlags(HWND dialog, const FlagControl (&controls)[COUNT], int flags) {
    for (const FlagControl& control : controls)
        CheckDlgButton(dialog, control.id, flags > 0 && (flags & control.flag) ? BST_CHECKED : BST_UNCHECKED);
}

static void ShowButtons(HWND dialog, int flags) {
    CheckFlags(dialog, Buttons, flags);
    if (flags < 0 || !(flags & (LBUTTON | MBUTTON | RBUTTON)))
        KeepTabStop(GetDlgItem(dialog, ID_LEFT));
}

// A key that the list does not offer leaves its choice as it was.
static void ShowKey(HWND dialog, int vk) {
    LRESULT entry = -1;
    if (vk > 0) {
        char text[KEY_TEXT_ROOM];
        KeyText(text, vk);
        entry = SendDlgItemMessageA(dialog, ID_KEYS, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                    reinterpret_cast<LPARAM>(text));
        if (entry < 0) {
            MessageBeep(0);
            return;
        }
    }
    SendDlgItemMessageA(dialog, ID_KEYS, CB_SETCURSEL, static_cast<WPARAM>(entry), 0);
}

static void ShowRowBinding(HWND dialog, int tab, const NMLISTVIEW& change) {
    if (!(change.uNewState & LVIS_SELECTED))
        return;
    const ActionId row = RowOfListItem(change.iItem, FlagOfTab(tab));
    if (row < 0)
        return;
    const ActionRow& action = ActionTable[row];
    CheckFlags(dialog, Modifiers, tab ? action.mouse_mods : action.key_mods);
    if (tab)
        ShowButtons(dialog, action.mouse_btn);
    else
        ShowKey(dialog, action.vk);
}

static void BindMouse(HWND dialog, ActionRow& action, int mods) {
    action.mouse_mods = mods;
    action.mouse_btn = 0;
    for (const FlagControl& button : Buttons)
        if (IsDlgButtonChecked(dialog, button.id))
            action.mouse_btn = button.flag;
}

// A new hotkey works at once. If the platform refuses it, the row stands unbound: the old one is gone.
static void BindKey(HWND dialog, ActionId row, int mods) {
    const LRESULT entry = SendDlgItemMessageA(dialog, ID_KEYS, CB_GETCURSEL, 0, 0);
    const LRESULT key =
        entry < 0 ? 0 : SendDlgItemMessageA(dialog, ID_KEYS, CB_GETITEMDATA, static_cast<WPARAM>(entry), 0);
    if (key == 0) {
        MessageBeep(0);
        return;
    }
    ClearActionKey(dialog, row, ACTION_KEY);
    SetActionKey(dialog, row, ACTION_KEY, mods, static_cast<int>(key));
}

static void ApplyToRow(HWND dialog, int tab, ActionId row) {
    int mods = 0;
    for (const FlagControl& modifier : Modifiers)
        if (IsDlgButtonChecked(dialog, modifier.id))
            mods |= modifier.flag;
    if (tab)
        BindMouse(dialog, ActionTable[row], mods);
    else
        BindKey(dialog, row, mods);
}

static void ClearRow(HWND dialog, int tab, ActionId row) {
    ClearActionKey(dialog, row, FlagOfTab(tab));
}

// Changes the selected row and has its binding read anew. Without one, a beep says that nothing was done.
static void ChangeSelectedRow(HWND dialog, void (*change)(HWND, int, ActionId)) {
    const int tab = CurrentTab(dialog);
    const int item = SelectedItem(dialog);
    const ActionId row = RowOfListItem(item, FlagOfTab(tab));
    if (row < 0) {
        MessageBeep(0);
        return;
    }
    change(dialog, tab, row);
    SendDlgItemMessageA(dialog, ID_LIST, LVM_REDRAWITEMS, static_cast<WPARAM>(item), item);
}

static void OnApply(HWND dialog) {
    ChangeSelectedRow(dialog, ApplyToRow);
}

static void OnClear(HWND dialog) {
    ChangeSelectedRow(dialog, ClearRow);
}

static void OnClose(HWND dialog) {
    CloseDialog(dialog, DIALOG_ACTIONS, 0);
}

static const CommandRow Commands[] = {
    {IDOK,     OnClose},
    {IDCANCEL, OnClose},
    {ID_APPLY, OnApply},
    {ID_CLEAR, OnClear},
};

// It comes before the tab changes: of two tabs, the one that is left says which one is entered.
static void OnTabChanging(HWND dialog, NMHDR*) {
    FillActionList(dialog, CurrentTab(dialog));
}

static void OnActionListText(HWND dialog, NMHDR* notification) {
    LVITEMA& item = reinterpret_cast<NMLVDISPINFOA*>(notification)->item;
    const int tab = CurrentTab(dialog);
    const ActionId row = RowOfListItem(item.iItem, FlagOfTab(tab));
    if (row < 0 || !(item.mask & LVIF_TEXT))
        return;
    ActionRow& action = ActionTable[row];
    if (item.iSubItem)
        item.pszText = ReadOnly(action.desc);
    else
        item.pszText = ReadOnly(tab ? MouseText(action) : HotkeyText(action));
}

static void OnItemChanged(HWND dialog, NMHDR* notification) {
    ShowRowBinding(dialog, CurrentTab(dialog), *reinterpret_cast<const NMLISTVIEW*>(notification));
}

static const NotificationRow Notifications[] = {
    {LVN_GETDISPINFOA, OnActionListText},
    {LVN_ITEMCHANGED,  OnItemChanged   },
    {TCN_SELCHANGING,  OnTabChanging   },
};

static void OnNotify(HWND dialog, NMHDR* notification) {
    for (const NotificationRow& row : Notifications)
        if (row.code == notification->code)
            row.does(dialog, notification);
}

static void InsertTabs(HWND tabs) {
    SendMessageA(tabs, TCM_DELETEALLITEMS, 0, 0);
    WPARAM place = 0;
    for (const char* title : TabTitles) {
        TCITEMA tab{};
        tab.mask = TCIF_TEXT;
        tab.pszText = ReadOnly(title);
        SendMessageA(tabs, TCM_INSERTITEMA, place++, reinterpret_cast<LPARAM>(&tab));
    }
    SendMessageA(tabs, TCM_SETCURSEL, 0, 0);
}

static int PixelsPerInch(HWND window) {
    const HDC context = GetDC(window);
    const int pixels = GetDeviceCaps(context, LOGPIXELSX);
    ReleaseDC(window, context);
    return pixels ? pixels : NOT_SCALED;
}

// On a scaled display the columns grow with the texts, which would be cut off.
static void InsertColumns(HWND list) {
    const int inch = PixelsPerInch(list);
    WPARAM place = 0;
    for (const ListColumn& row : Columns) {
        LVCOLUMNA column{};
        column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT;
        column.fmt = LVCFMT_LEFT;
        column.cx = Scaled(row.width, inch, NOT_SCALED);
        column.pszText = ReadOnly(row.title);
        SendMessageA(list, LVM_INSERTCOLUMNA, place++, reinterpret_cast<LPARAM>(&column));
    }
}

static void OnInit(HWND dialog) {
    const HWND list = GetDlgItem(dialog, ID_LIST);
    DialogHandles[KEYS_ACTIONS] = dialog;
    SendMessageA(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    InsertTabs(GetDlgItem(dialog, ID_TABS));
    InsertColumns(list);
    FillKeyCombo(dialog);
    FillActionList(dialog, 1);
    ShowWindow(dialog, SW_SHOW);
}

INT_PTR CALLBACK ActionsDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: OnInit(dialog); return TRUE;
    case WM_COMMAND: return RunCommand(Commands, dialog, wParam);
    case WM_NOTIFY: // 0 also lets a tab change
        OnNotify(dialog, reinterpret_cast<NMHDR*>(lParam));
        return 0;
    default: return 0;
    }
}
