// Dialogs: how they are made, end and own each other, their keys; what the plain controls keep and tell.
#include "contract/contract_test.h"

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

TEST_F(Dialogs, AllControlsStandAsTheTemplateHasThemWhenOneIsToldToStart) {
    int calls = 0;
    Replies[WM_INITDIALOG] = [&calls](const MSG& arrived) {
        EXPECT_EQ(TextOf(arrived.hwnd, 1079), "Just Go, Baybeee");
        EXPECT_FALSE(IsWindowVisible(arrived.hwnd));
        EXPECT_EQ(arrived.lParam, 77);
        return ++calls;
    };
    const HWND dialog = OpenTemplate(101);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(GetDlgItem(dialog, 4711), nullptr);
    EXPECT_EQ(Order({dialog, GetDlgItem(dialog, 1)}), std::vector{dialog}) << "controls are not among them";
}

TEST_F(Dialogs, TheEndHidesOneWithItsFocusAndWhatAWindowOwnsGoesWithItUnlessItWasHandedOver) {
    const HWND first = OpenOwn(WS_POPUP | WS_VISIBLE);
    const HWND second = OpenTemplate(101, first);
    ShowWindow(second, SW_SHOW);
    SetFocus(GetDlgItem(second, 1001));
    Handle(50);
    Seen.clear();
    EXPECT_TRUE(EndDialog(second, 2));
    EXPECT_EQ(Told(EN_KILLFOCUS), Numbers{1001});
    EXPECT_TRUE(IsWindow(second) && !IsWindowVisible(second));
    EXPECT_EQ(GetForegroundWindow(), first);

    const HWND stays = OpenTemplate(107, second);
    const HWND goes = OpenTemplate(106, second);
    EXPECT_EQ(GetParent(stays), second) << "the owner of a pop-up";
    SetWindowLongPtrA(stays, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(first));
    EXPECT_EQ(reinterpret_cast<HWND>(GetWindowLongPtrA(stays, GWLP_HWNDPARENT)), first);
    EXPECT_TRUE(DestroyWindow(second));
    EXPECT_FALSE(IsWindow(goes));
    EXPECT_TRUE(IsWindow(stays));
    EXPECT_TRUE(DestroyWindow(first));
    EXPECT_FALSE(IsWindow(stays));
}

TEST_F(Dialogs, AChildMovesWithItsParentAndIsToldOfTheEndAfterItAndGoneBeforeIt) {
    const HWND parent = OpenOwn(WS_POPUP, 0, {100, 100, 300, 300});
    const HWND child = OpenOwn(WS_CHILD | WS_VISIBLE, 0, {10, 20, 15, 21}, parent);
    MoveWindow(parent, 200, 100, 200, 200, FALSE);
    EXPECT_EQ(PlaceOf(child), (RECT{210, 120, 215, 121}));
    Seen.clear();
    DestroyWindow(parent);
    std::vector<HWND> ended;
    for (const MSG& arrived : Seen)
        if (arrived.message == WM_DESTROY || arrived.message == WM_NCDESTROY)
            ended.push_back(arrived.hwnd);
    EXPECT_EQ(ended, (std::vector{parent, child, child, parent}));
}

// A key as the loop would get it, offered to the dialog.
BOOL Offer(HWND dialog, HWND to, WPARAM key) {
    MSG offered{to, WM_KEYDOWN, key, 0, 0, {}};
    return IsDialogMessageA(dialog, &offered);
}

TEST_F(Dialogs, KeysOfOneAreTakenAndThoseOfOthersLeftAndClosingMeansCancel) {
    const HWND dialog = ShowTemplate(108);
    const HWND name = GetDlgItem(dialog, 1025);
    EXPECT_FALSE(Offer(nullptr, name, VK_RETURN) || Offer(dialog, OpenOwn(), VK_RETURN));
    EXPECT_TRUE(Offer(dialog, name, VK_ESCAPE) && Offer(dialog, name, VK_RETURN));
    EXPECT_EQ(Told(BN_CLICKED), (Numbers{2, 1}));
    for (int tab = 0; tab < 2; ++tab)
        EXPECT_TRUE(Offer(dialog, name, VK_TAB));
    EXPECT_TRUE(Offer(dialog, name, VK_RETURN));
    EXPECT_EQ(Told(BN_CLICKED), Numbers{2}) << "Enter presses the button that has the focus";
    SendMessageA(dialog, WM_CLOSE, 0, 0);
    EXPECT_EQ(Told(BN_CLICKED), Numbers{}) << "it is posted";
    Handle(20);
    EXPECT_EQ(Told(BN_CLICKED), Numbers{2});

    const HWND find = ShowTemplate(117); // without default button and without a number 2
    const HWND text = GetDlgItem(find, 1041);
    EXPECT_TRUE(Offer(find, text, VK_RETURN) && Offer(find, text, VK_ESCAPE));
    EXPECT_EQ(Told(BN_CLICKED), (Numbers{1, 2})) << "told all the same";
    EnableWindow(GetDlgItem(find, 1), FALSE);
    EXPECT_TRUE(Offer(find, text, VK_RETURN));
    EXPECT_EQ(Told(BN_CLICKED), Numbers{});
}

TEST_F(Dialogs, ANumberHas32BitsAndIsZeroWhenItIsNone) {
    const HWND dialog = OpenTemplate(101);
    const auto read = [dialog](const char* text) {
        BOOL bRead = -1;
        EXPECT_TRUE(SetDlgItemTextA(dialog, 1000, text));
        const UINT number = GetDlgItemInt(dialog, 1000, &bRead, FALSE);
        return std::pair(number, bRead);
    };
    EXPECT_EQ(read("4294967295"), std::pair(4294967295U, TRUE));
    EXPECT_EQ(read("99999999999"), std::pair(0U, FALSE));
    EXPECT_TRUE(SetDlgItemInt(dialog, 1001, static_cast<UINT>(-5), TRUE));
    EXPECT_EQ(TextOf(dialog, 1001), "-5");
}

TEST_F(Dialogs, ARadioButtonUnchecksWhatShowsOfItsGroupWhenItIsPressedOnly) {
    const HWND dialog = ShowTemplate(101);
    const auto checked = [dialog] {
        Numbers ids;
        for (const int id : {1073, 1076, 1079, 1080, 1082})
            if (IsDlgButtonChecked(dialog, id) == BST_CHECKED)
                ids.push_back(static_cast<UINT>(id));
        return ids;
    };
    for (const int id : {1073, 1079, 1082}) // the last one is hidden
        CheckDlgButton(dialog, id, BST_CHECKED);
    EXPECT_EQ(checked(), (Numbers{1073, 1079, 1082})) << "the program's own check is alone";
    for (const UINT message : {WM_KEYDOWN, WM_KEYUP})
        Ask(dialog, 1080, message, VK_SPACE);
    EXPECT_EQ(checked(), (Numbers{1073, 1080, 1082}));
    EXPECT_EQ(Told(BN_CLICKED), Numbers{1080});
    const auto isStop = [dialog] {
        return GetWindowLongPtrA(GetDlgItem(dialog, 1080), GWL_STYLE) & WS_TABSTOP;
    };
    EXPECT_TRUE(isStop()) << "Tab stops at a group's checked button";
    CheckDlgButton(dialog, 1080, BST_UNCHECKED);
    EXPECT_FALSE(isStop());
}

TEST_F(Dialogs, AListTellsWhereARowWentKeepsItsNumberAndFindsWholeTexts) {
    constexpr int SORTED = 1062, PLAIN = 1061, DROP_DOWN = 1038;
    const HWND dialog = ShowTemplate(116);
    EXPECT_EQ(Ask(dialog, SORTED, LB_ADDSTRING, 0, "pear"), 0);
    EXPECT_NE(Ask(dialog, SORTED, LB_SETITEMDATA, 0, reinterpret_cast<const void*>(7)), LB_ERR);
    EXPECT_EQ(Ask(dialog, SORTED, LB_ADDSTRING, 0, "Apple"), 0);
    EXPECT_EQ(Ask(dialog, SORTED, LB_ADDSTRING, 0, "orange"), 1);
    EXPECT_EQ(Ask(dialog, SORTED, LB_GETITEMDATA, 2), 7);
    EXPECT_EQ(Ask(dialog, SORTED, LB_SETCURSEL, 2), 2);
    EXPECT_EQ(Ask(dialog, SORTED, LB_GETCURSEL), 2);
    Ask(dialog, SORTED, LB_RESETCONTENT);
    EXPECT_EQ(Ask(dialog, SORTED, LB_GETCURSEL), LB_ERR);
    EXPECT_EQ(Ask(dialog, PLAIN, LB_ADDSTRING, 0, "b"), 0);
    EXPECT_EQ(Ask(dialog, PLAIN, LB_ADDSTRING, 0, "a"), 1) << "one that does not sort appends";
    SetFocus(GetDlgItem(dialog, 10));
    Seen.clear();
    SetFocus(GetDlgItem(dialog, PLAIN));
    EXPECT_EQ(Told(LBN_SETFOCUS), Numbers{PLAIN}) << "without LBS_NOTIFY, too";

    const HWND actions = OpenTemplate(113);
    for (const char* text : {"Left", "F1", "F10"})
        Ask(actions, DROP_DOWN, CB_INSERTSTRING, NONE, text);
    EXPECT_EQ(Ask(actions, DROP_DOWN, CB_FINDSTRINGEXACT, NONE, "f10"), 2);
    EXPECT_EQ(Ask(actions, DROP_DOWN, CB_FINDSTRINGEXACT, NONE, "F"), CB_ERR);
    Ask(actions, DROP_DOWN, CB_SETCURSEL, 1);
    EXPECT_EQ(Ask(actions, DROP_DOWN, CB_GETCURSEL), 1);
}

} // namespace
