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

TEST_F(Dialogs, TheEndHidesOneAndWhatAWindowOwnsGoesWithItUnlessItWasHandedOver) {
    const HWND first = OpenOwn(WS_POPUP | WS_VISIBLE);
    const HWND second = OpenTemplate(101, first);
    ShowWindow(second, SW_SHOW);
    EXPECT_TRUE(EndDialog(second, 2));
    EXPECT_TRUE(IsWindow(second) && !IsWindowVisible(second));
    EXPECT_EQ(GetForegroundWindow(), first);
    const HWND stays = OpenTemplate(107, second);
    const HWND goes = OpenTemplate(106, second);
    EXPECT_EQ(GetParent(stays), second) << "the owner of a pop-up";
    SetWindowLongPtrA(stays, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(first));
    EXPECT_TRUE(DestroyWindow(second));
    EXPECT_TRUE(IsWindow(stays) && !IsWindow(goes));
    EXPECT_TRUE(DestroyWindow(first));
    EXPECT_FALSE(IsWindow(stays));
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
    EXPECT_TRUE(Offer(dialog, name, VK_TAB) && Offer(dialog, name, VK_TAB) && Offer(dialog, name, VK_RETURN));
    EXPECT_EQ(Told(BN_CLICKED), Numbers{2}) << "Enter presses the button that has the focus";
    SendMessageA(dialog, WM_CLOSE, 0, 0);
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
    for (const auto& [text, number] : {
             std::pair("4294967295", 4294967295U), {"99999999999", 0}
    }) {
        BOOL bRead = -1;
        EXPECT_TRUE(SetDlgItemTextA(dialog, 1000, text));
        EXPECT_EQ(GetDlgItemInt(dialog, 1000, &bRead, FALSE), number);
        EXPECT_EQ(bRead, number != 0);
    }
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
}

TEST_F(Dialogs, AListTellsWhereARowWentKeepsItsNumberAndFindsWholeTexts) {
    constexpr int SORTED = 1062, PLAIN = 1061, DROP_DOWN = 1038;
    const HWND dialog = ShowTemplate(116);
    Ask(dialog, SORTED, LB_ADDSTRING, 0, "pear");
    Ask(dialog, SORTED, LB_SETITEMDATA, 0, reinterpret_cast<const void*>(7));
    EXPECT_EQ(Ask(dialog, SORTED, LB_ADDSTRING, 0, "Apple"), 0);
    EXPECT_EQ(Ask(dialog, SORTED, LB_ADDSTRING, 0, "orange"), 1);
    EXPECT_EQ(Ask(dialog, SORTED, LB_GETITEMDATA, 2), 7);
    EXPECT_EQ(Ask(dialog, SORTED, LB_SETCURSEL, 2), 2);
    Ask(dialog, SORTED, LB_RESETCONTENT);
    EXPECT_EQ(Ask(dialog, SORTED, LB_GETCURSEL), LB_ERR);
    Ask(dialog, PLAIN, LB_ADDSTRING, 0, "b");
    EXPECT_EQ(Ask(dialog, PLAIN, LB_ADDSTRING, 0, "a"), 1) << "one that does not sort appends";
    const HWND actions = OpenTemplate(113);
    for (const char* text : {"Left", "F1", "F10"})
        Ask(actions, DROP_DOWN, CB_INSERTSTRING, NONE, text);
    EXPECT_EQ(Ask(actions, DROP_DOWN, CB_FINDSTRINGEXACT, NONE, "f10"), 2);
    EXPECT_EQ(Ask(actions, DROP_DOWN, CB_FINDSTRINGEXACT, NONE, "F"), CB_ERR);
}

} // namespace
