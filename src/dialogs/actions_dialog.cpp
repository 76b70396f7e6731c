#include "dialogs/actions_dialog.h"

#include "actions/hotkeys.h"
#include "actions/key_names.h"
#include "core/arithmetic.h"
#include "core/dpi.h"
#include "dialogs/binding_text.h"
#include "dialogs/controls.h"
#include "dialogs/registry.h"
#include "resources/control_ids.h"

#include <algorithm>

namespace {

struct FlagControl {
    int id;
    int flag;
};

struct TabControl {
    int id;
    bool bKeyboard; // visible on the keyboard tab, else on the mouse tab
};

struct ListColumn {
    int width; // pixels at 96 DPI
    const char* title;
};

struct NotificationRow {
    UINT code;
    void (*handler)(HWND dialog, NMHDR* notification);
};

} // namespace

static const FlagControl Modifiers[] = {
    {IDC_ACTIONS_SHIFT, KEY_SHIFT},
    {IDC_ACTIONS_CTRL, KEY_CTRL},
    {IDC_ACTIONS_ALT, KEY_ALT},
    {IDC_ACTIONS_WIN, KEY_WIN},
};

// If several are checked, which an edited settings file can cause, the last one counts.
static const FlagControl Buttons[] = {
    {IDC_ACTIONS_LEFT, LBUTTON},
    {IDC_ACTIONS_MIDDLE, MBUTTON},
    {IDC_ACTIONS_RIGHT, RBUTTON},
};

static const TabControl TabControls[] = {
    {IDC_ACTIONS_MIDDLE, false}, {IDC_ACTIONS_LEFT, false}, {IDC_ACTIONS_RIGHT, false},
    {IDC_ACTIONS_WIN, true},     {IDC_ACTIONS_KEYS, true},  {IDC_ACTIONS_WARNING, true},
};

static const char* const TabTitles[] = {"Keyboard Actions", "Mouse Actions"};

static const ListColumn Columns[] = {
    {120, "ActionKeys"},
    {250, "Description"},
};

// Windows only reads these texts, though the records are declared writable.
static LPSTR ReadOnly(const char* text) {
    return const_cast<LPSTR>(text);
}

static int CurrentTab(HWND dialog) {
    return static_cast<int>(SendDlgItemMessageA(dialog, IDC_ACTIONS_TABS, TCM_GETCURSEL, 0, 0));
}

static DWORD FlagOfTab(int tab) {
    return tab ? ACTION_MOUSE : ACTION_KEY;
}

// The list's selection mark would stay at an item that a click into the empty part has unselected.
static int SelectedItem(HWND dialog) {
    return static_cast<int>(SendDlgItemMessageA(dialog, IDC_ACTIONS_LIST, LVM_GETNEXTITEM,
                                                static_cast<WPARAM>(-1), LVNI_SELECTED));
}

static void ShowControlsOfTab(HWND dialog, bool bKeyboard) {
    for (const TabControl& control : TabControls)
        ShowWindow(GetDlgItem(dialog, control.id), control.bKeyboard == bKeyboard ? SW_SHOW : SW_HIDE);
    SetDlgItemTextA(dialog, IDC_ACTIONS_GROUP, bKeyboard ? "Keyboard" : "Mouse");
}

// The list does not store data: it only counts its items and requests their texts when it paints. Some
// systems update the scroll bar only on LVM_SETITEMCOUNT.
static void FillActionList(HWND dialog, bool bKeyboard) {
    ShowControlsOfTab(dialog, bKeyboard);
    const HWND list = GetDlgItem(dialog, IDC_ACTIONS_LIST);
    const int count = NumListItems(bKeyboard ? ACTION_KEY : ACTION_MOUSE);
    SendMessageA(list, LVM_DELETEALLITEMS, 0, 0);
    LVITEMA item{};
    item.mask = LVIF_TEXT;
    item.pszText = LPSTR_TEXTCALLBACKA;
    for (; item.iItem < count; ++item.iItem)
        SendMessageA(list, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
    SendMessageA(list, LVM_SETITEMCOUNT, static_cast<WPARAM>(count), 0);
}

// Beeps for each key whose number the list does not store.
static void FillKeyCombo(HWND dialog) {
    const HWND keys = GetDlgItem(dialog, IDC_ACTIONS_KEYS);
    SendMessageA(keys, CB_RESETCONTENT, 0, 0);
    for (const KeyName* key = KeyNames; key->vk >= 0; ++key) {
        const LRESULT entry =
            SendMessageA(keys, CB_INSERTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(key->name));
        if (entry < 0) {
            MessageBeep(0);
            return;
        }
        const WPARAM position = static_cast<WPARAM>(entry);
        if (SendMessageA(keys, CB_SETITEMDATA, position, key->vk) == CB_ERR ||
            SendMessageA(keys, CB_GETITEMDATA, position, 0) != key->vk)
            MessageBeep(0);
    }
    SendMessageA(keys, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(KeyNames[0].name));
}

template <int COUNT>
static void CheckFlags(HWND dialog, const FlagControl (&controls)[COUNT], int flags) {
    for (const FlagControl& control : controls)
        CheckDlgButton(dialog, control.id, flags > 0 && (flags & control.flag) ? BST_CHECKED : BST_UNCHECKED);
}

static void ShowButtons(HWND dialog, int flags) {
    CheckFlags(dialog, Buttons, flags);
    if (flags < 0 || !(flags & (LBUTTON | MBUTTON | RBUTTON)))
        KeepTabStop(GetDlgItem(dialog, IDC_ACTIONS_LEFT));
}

// If the list does not offer the key, its selection stays.
static void ShowKey(HWND dialog, int vk) {
    LRESULT entry = -1;
    if (vk > 0) {
        char text[KEY_TEXT_SIZE];
        KeyText(text, vk);
        entry = SendDlgItemMessageA(dialog, IDC_ACTIONS_KEYS, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                    reinterpret_cast<LPARAM>(text));
        if (entry < 0) {
            MessageBeep(0);
            return;
        }
    }
    SendDlgItemMessageA(dialog, IDC_ACTIONS_KEYS, CB_SETCURSEL, static_cast<WPARAM>(entry), 0);
}

static void ShowBinding(HWND dialog, int tab, const NMLISTVIEW& change) {
    if (!(change.uNewState & LVIS_SELECTED))
        return;
    const int row = ActionAtItem(change.iItem, FlagOfTab(tab));
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

// Takes effect at once. If Windows refuses the key, the action is unbound: the old one is released.
static void BindKey(HWND dialog, int row, int mods) {
    const LRESULT entry = SendDlgItemMessageA(dialog, IDC_ACTIONS_KEYS, CB_GETCURSEL, 0, 0);
    const LRESULT key = entry < 0 ? 0
                                  : SendDlgItemMessageA(dialog, IDC_ACTIONS_KEYS, CB_GETITEMDATA,
                                                        static_cast<WPARAM>(entry), 0);
    if (key == 0) {
        MessageBeep(0);
        return;
    }
    ClearActionKey(row, ACTION_KEY);
    SetActionKey(row, mods, static_cast<int>(key));
}

static void ApplyBinding(HWND dialog, int tab, int row) {
    int mods = 0;
    for (const FlagControl& modifier : Modifiers)
        if (IsDlgButtonChecked(dialog, modifier.id))
            mods |= modifier.flag;
    if (tab)
        BindMouse(dialog, ActionTable[row], mods);
    else
        BindKey(dialog, row, mods);
}

static void ClearBinding(HWND, int tab, int action) {
    ClearActionKey(action, FlagOfTab(tab));
}

// Changes the selected action and redraws its item. If none is selected, it beeps.
static void ChangeSelectedAction(HWND dialog, void (*change)(HWND, int, int)) {
    const int tab = CurrentTab(dialog);
    const int item = SelectedItem(dialog);
    const int row = ActionAtItem(item, FlagOfTab(tab));
    if (row < 0) {
        MessageBeep(0);
        return;
    }
    change(dialog, tab, row);
    SendDlgItemMessageA(dialog, IDC_ACTIONS_LIST, LVM_REDRAWITEMS, static_cast<WPARAM>(item), item);
}

static void OnApply(HWND dialog) {
    ChangeSelectedAction(dialog, ApplyBinding);
}

static void OnClear(HWND dialog) {
    ChangeSelectedAction(dialog, ClearBinding);
}

static void OnClose(HWND dialog) {
    CloseDialog(dialog);
}

static const CommandRow Commands[] = {
    {IDOK, OnClose},
    {IDCANCEL, OnClose},
    {IDC_ACTIONS_APPLY, OnApply},
    {IDC_ACTIONS_CLEAR, OnClear},
};

// Sent before the change, so CurrentTab is the tab being left; with two tabs, that determines the new one.
static void OnTabChanging(HWND dialog, NMHDR*) {
    FillActionList(dialog, CurrentTab(dialog) != 0);
}

static void OnActionListText(HWND dialog, NMHDR* notification) {
    LVITEMA& item = reinterpret_cast<NMLVDISPINFOA*>(notification)->item;
    const int tab = CurrentTab(dialog);
    const int row = ActionAtItem(item.iItem, FlagOfTab(tab));
    if (row < 0 || !(item.mask & LVIF_TEXT))
        return;
    ActionRow& action = ActionTable[row];
    if (item.iSubItem)
        item.pszText = ReadOnly(action.desc);
    else
        item.pszText = ReadOnly(tab ? MouseText(action) : HotkeyText(action));
}

static void OnItemChanged(HWND dialog, NMHDR* notification) {
    ShowBinding(dialog, CurrentTab(dialog), *reinterpret_cast<const NMLISTVIEW*>(notification));
}

static const NotificationRow Notifications[] = {
    {LVN_GETDISPINFOA, OnActionListText},
    {LVN_ITEMCHANGED, OnItemChanged},
    {TCN_SELCHANGING, OnTabChanging},
};

static void OnNotify(HWND dialog, NMHDR* notification) {
    for (const NotificationRow& row : Notifications)
        if (row.code == notification->code)
            row.handler(dialog, notification);
}

static void InsertTabs(HWND tabs) {
    SendMessageA(tabs, TCM_DELETEALLITEMS, 0, 0);
    WPARAM position = 0;
    for (const char* title : TabTitles) {
        TCITEMA tab{};
        tab.mask = TCIF_TEXT;
        tab.pszText = ReadOnly(title);
        SendMessageA(tabs, TCM_INSERTITEMA, position++, reinterpret_cast<LPARAM>(&tab));
    }
    SendMessageA(tabs, TCM_SETCURSEL, 0, 0);
}

// On a scaled display the columns grow with the texts.
static void InsertColumns(HWND list) {
    const int dpi = DpiOf(list);
    WPARAM position = 0;
    for (const ListColumn& row : Columns) {
        LVCOLUMNA column{};
        column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT;
        column.fmt = LVCFMT_LEFT;
        column.cx = Scale(row.width, dpi, DEFAULT_DPI);
        column.pszText = ReadOnly(row.title);
        SendMessageA(list, LVM_INSERTCOLUMNA, position++, reinterpret_cast<LPARAM>(&column));
    }
}

static void OnInit(HWND dialog) {
    const HWND list = GetDlgItem(dialog, IDC_ACTIONS_LIST);
    SendMessageA(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    InsertTabs(GetDlgItem(dialog, IDC_ACTIONS_TABS));
    InsertColumns(list);
    FillKeyCombo(dialog);
    FillActionList(dialog, true);
    ShowWindow(dialog, SW_SHOW);
}

INT_PTR CALLBACK ActionsDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: OnInit(dialog); return TRUE;
    case WM_COMMAND: return RunCommand(Commands, dialog, wParam);
    case WM_NOTIFY: // the result 0 also allows the tab to change
        OnNotify(dialog, reinterpret_cast<NMHDR*>(lParam));
        return 0;
    default: return 0;
    }
}
