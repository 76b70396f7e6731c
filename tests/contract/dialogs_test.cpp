// Dialogs: creation, end, ownership and keys; what the standard controls store and report.
#include "contract/contract_test.h"

#include "resources/control_ids.h"

#include <utility>

namespace {

using Dialogs = Contract;
constexpr WPARAM NONE = static_cast<WPARAM>(-1);

LRESULT Ask(HWND dialog, int id, UINT message, WPARAM wParam = 0, const void* lParam = nullptr) {
    return SendDlgItemMessageA(dialog, id, message, wParam, reinterpret_cast<LPARAM>(lParam));
}

std::string TextOf(HWND dialog, int id) {
    char text[256] = "";
    GetDlgItemTextA(dialog, id, text, sizeof text);
    return text;
}

TEST_F(Dialogs, ControlsExistBeforeWmInitDialog) {
    int calls = 0;
    Handlers[WM_INITDIALOG] = [&calls](const MSG& received) {
        EXPECT_EQ(TextOf(received.hwnd, IDC_OPTIONS_AT_ONCE), "Just Go, Baybeee");
        EXPECT_FALSE(IsWindowVisible(received.hwnd));
        EXPECT_EQ(received.lParam, 77);
        return ++calls;
    };
    const HWND dialog = OpenTemplate(IDD_OPTIONS);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(GetDlgItem(dialog, 4711), nullptr);
    EXPECT_EQ(Order({dialog, GetDlgItem(dialog, IDOK)}), std::vector{dialog}) << "no top-level controls";
}

TEST_F(Dialogs, EndHidesAndDestructionTakesOwnedWindowsAlong) {
    const HWND first = OpenOwn(WS_POPUP | WS_VISIBLE);
    const HWND second = OpenTemplate(IDD_OPTIONS, first);
    ShowWindow(second, SW_SHOW);
    EXPECT_TRUE(EndDialog(second, 2));
    EXPECT_TRUE(IsWindow(second) && !IsWindowVisible(second));
    EXPECT_EQ(GetForegroundWindow(), first);
    const HWND stays = OpenTemplate(IDD_ABOUT, second);
    const HWND goes = OpenTemplate(IDD_HELP, second);
    EXPECT_EQ(GetParent(stays), second) << "the owner of a pop-up";
    SetWindowLongPtrA(stays, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(first));
    EXPECT_TRUE(DestroyWindow(second));
    EXPECT_TRUE(IsWindow(stays) && !IsWindow(goes));
    EXPECT_TRUE(DestroyWindow(first));
    EXPECT_FALSE(IsWindow(stays));
}

// The buttons that are pressed as a message loop passes the keys to the dialog.
Numbers Pressed(HWND dialog, HWND to, std::initializer_list<WPARAM> keys) {
    for (const WPARAM key : keys) {
        MSG offered{to, WM_KEYDOWN, key, 0, 0, {}};
        EXPECT_EQ(IsDialogMessageA(dialog, &offered), GetParent(to) == dialog);
    }
    return Notified(BN_CLICKED);
}

TEST_F(Dialogs, KeysAreHandledForOwnControlsOnlyAndClosingMeansCancel) {
    const HWND dialog = ShowTemplate(IDD_NAME_REGION);
    const HWND name = GetDlgItem(dialog, IDC_REGION_NAME);
    EXPECT_EQ(Pressed(dialog, OpenOwn(), {VK_RETURN}), Numbers{});
    EXPECT_EQ(Pressed(dialog, name, {VK_ESCAPE, VK_RETURN}), (Numbers{IDCANCEL, IDOK}));
    EXPECT_EQ(Pressed(dialog, name, {VK_TAB, VK_TAB, VK_RETURN}), Numbers{IDCANCEL}) << "the focused button";
    SendMessageA(dialog, WM_CLOSE, 0, 0);
    HandleFor(20);
    EXPECT_EQ(Notified(BN_CLICKED), Numbers{IDCANCEL});

    const HWND find = ShowTemplate(IDD_FIND); // has no default button and no Cancel
    const HWND list = GetDlgItem(find, IDC_FIND_LIST);
    EXPECT_EQ(Pressed(find, list, {VK_RETURN, VK_ESCAPE}), (Numbers{IDOK, IDCANCEL})) << "all the same";
    EnableWindow(GetDlgItem(find, IDOK), FALSE);
    EXPECT_EQ(Pressed(find, list, {VK_RETURN}), Numbers{});
}

TEST_F(Dialogs, NumberHas32BitsAndIsZeroIfInvalid) {
    const HWND dialog = OpenTemplate(IDD_OPTIONS);
    for (const auto& [text, number] : {std::pair("4294967295", 4294967295U), {"99999999999", 0}}) {
        BOOL valid = -1;
        EXPECT_TRUE(SetDlgItemTextA(dialog, IDC_OPTIONS_HEIGHT, text));
        EXPECT_EQ(GetDlgItemInt(dialog, IDC_OPTIONS_HEIGHT, &valid, FALSE), number);
        EXPECT_EQ(valid, number != 0);
    }
    EXPECT_TRUE(SetDlgItemInt(dialog, IDC_OPTIONS_WIDTH, static_cast<UINT>(-5), TRUE));
    EXPECT_EQ(TextOf(dialog, IDC_OPTIONS_WIDTH), "-5");
}

TEST_F(Dialogs, PressedRadioButtonUnchecksTheVisibleOnesOfItsGroup) {
    const HWND dialog = ShowTemplate(IDD_OPTIONS);
    const int other_group = IDC_OPTIONS_BY_MAX, hidden = IDC_OPTIONS_RIGHT_CLICK;
    const auto checked = [dialog](int id) { return IsDlgButtonChecked(dialog, id) == BST_CHECKED; };
    for (const int id : {other_group, IDC_OPTIONS_AT_ONCE, hidden})
        CheckDlgButton(dialog, id, BST_CHECKED);
    EXPECT_TRUE(checked(IDC_OPTIONS_AT_ONCE)) << "CheckDlgButton changes one only";
    for (const UINT message : {WM_KEYDOWN, WM_KEYUP})
        Ask(dialog, IDC_OPTIONS_LEFT_CLICK, message, VK_SPACE);
    EXPECT_FALSE(checked(IDC_OPTIONS_AT_ONCE));
    EXPECT_TRUE(checked(IDC_OPTIONS_LEFT_CLICK) && checked(other_group) && checked(hidden));
    EXPECT_EQ(Notified(BN_CLICKED), Numbers{IDC_OPTIONS_LEFT_CLICK});
}

TEST_F(Dialogs, ListBoxOfADialogCreatedByAnACallKeepsUtf16) {
    const std::wstring text = L"\u0416\u6f22 a";
    const HWND box = GetDlgItem(OpenTemplate(IDD_CUSTOMIZE_MENU), IDC_MENU_LIST);
    EXPECT_EQ(SendMessageW(box, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str())), 0);
    WCHAR read[16] = {};
    EXPECT_EQ(SendMessageW(box, LB_GETTEXT, 0, reinterpret_cast<LPARAM>(read)), 4);
    EXPECT_EQ(read, text);
}

TEST_F(Dialogs, ListsReturnInsertedIndicesKeepItemDataAndFindWholeTexts) {
    constexpr int SORTED = IDC_MENU_ACTIONS, UNSORTED = IDC_MENU_LIST;
    const HWND dialog = ShowTemplate(IDD_CUSTOMIZE_MENU);
    const auto add = [dialog](int list, const char* text) {
        return Ask(dialog, list, LB_ADDSTRING, 0, text);
    };
    add(SORTED, "pear");
    Ask(dialog, SORTED, LB_SETITEMDATA, 0, reinterpret_cast<const void*>(7));
    EXPECT_TRUE(add(SORTED, "Apple") == 0 && add(SORTED, "orange") == 1);
    EXPECT_EQ(Ask(dialog, SORTED, LB_GETITEMDATA, 2), 7);
    EXPECT_EQ(Ask(dialog, SORTED, LB_SETCURSEL, 2), 2);
    Ask(dialog, SORTED, LB_RESETCONTENT);
    EXPECT_EQ(Ask(dialog, SORTED, LB_GETCURSEL), LB_ERR);
    EXPECT_TRUE(add(UNSORTED, "b") == 0 && add(UNSORTED, "a") == 1);
    const HWND actions = OpenTemplate(IDD_ACTIONS);
    EXPECT_EQ(Ask(actions, IDC_ACTIONS_LIST, LVM_SETITEMCOUNT, 3), TRUE);
    EXPECT_EQ(Ask(actions, IDC_ACTIONS_LIST, LVM_GETNEXTITEM, NONE, reinterpret_cast<void*>(LVNI_SELECTED)),
              -1);
    for (const char* text : {"Left", "F1", "F10"})
        Ask(actions, IDC_ACTIONS_KEYS, CB_INSERTSTRING, NONE, text);
    EXPECT_EQ(Ask(actions, IDC_ACTIONS_KEYS, CB_FINDSTRINGEXACT, NONE, "f10"), 2);
    EXPECT_EQ(Ask(actions, IDC_ACTIONS_KEYS, CB_FINDSTRINGEXACT, NONE, "F"), CB_ERR);
}

} // namespace
