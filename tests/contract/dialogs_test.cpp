// Dialogs: how they are made, end and own each other; numbers and texts; the keys that work in them.
#include "contract/dialogs_test.h"

std::vector<Told> News;
std::map<UINT, std::function<INT_PTR(const MSG&)>> DialogReplies;

static std::vector<HWND> Opened;

static INT_PTR CALLBACK KeepingDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND)
        News.push_back({LOWORD(wParam), HIWORD(wParam)});
    if (message == WM_NOTIFY)
        News.push_back({static_cast<int>(wParam), reinterpret_cast<const NMHDR*>(lParam)->code});
    const auto reply = DialogReplies.find(message);
    return reply == DialogReplies.end() ? 0 : reply->second({dialog, message, wParam, lParam, 0, {}});
}

void Dialogs::TearDown() {
    DialogReplies.clear();
    for (const HWND dialog : Opened)
        DestroyWindow(dialog);
    Opened.clear();
    Contract::TearDown();
    News.clear();
}

HWND OpenTemplate(int id, HWND owner) {
    const HWND dialog = CreateDialogParamA(Instance(), MAKEINTRESOURCEA(id), owner, KeepingDlgProc, 77);
    EXPECT_NE(dialog, nullptr) << id;
    Opened.push_back(dialog);
    return dialog;
}

HWND ShowTemplate(int id) {
    const HWND dialog = OpenTemplate(id);
    ShowWindow(dialog, SW_SHOW);
    SetForegroundWindow(dialog);
    Handle(100);
    News.clear();
    return dialog;
}

Codes CodesOf(int control) {
    Codes codes;
    for (const Told& told : News)
        if (told.control == control)
            codes.push_back(told.code);
    News.clear();
    return codes;
}

Ids Clicked() {
    Ids clicked;
    for (const Told& told : News)
        if (told.code == BN_CLICKED)
            clicked.push_back(told.control);
    News.clear();
    return clicked;
}

LRESULT Ask(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) {
    return SendDlgItemMessageA(dialog, id, message, wParam, lParam);
}

LRESULT Ask(HWND dialog, int id, UINT message, WPARAM wParam, const char* text) {
    return Ask(dialog, id, message, wParam, reinterpret_cast<LPARAM>(text));
}

std::string TextOf(HWND dialog, int id) {
    char text[256] = "";
    GetDlgItemTextA(dialog, id, text, sizeof text);
    return text;
}

namespace {

// A message as the loop would get it, offered to the dialog.
BOOL Offer(HWND dialog, HWND to, WPARAM key) {
    MSG offered{to, WM_KEYDOWN, key, 0, 0, {}};
    return IsDialogMessageA(dialog, &offered);
}

TEST_F(Dialogs, AllControlsStandAsTheTemplateHasThemWhenTheDialogIsToldToStart) {
    int calls = 0;
    DialogReplies[WM_INITDIALOG] = [&calls](const MSG& arrived) {
        const auto style = [&](int id) { return GetWindowLongPtrA(GetDlgItem(arrived.hwnd, id), GWL_STYLE); };
        EXPECT_TRUE(style(1079) & WS_VISIBLE);
        EXPECT_FALSE(style(1022) & WS_VISIBLE) << "its line says NOT WS_VISIBLE";
        EXPECT_FALSE(IsWindowVisible(arrived.hwnd) || IsWindowVisible(GetDlgItem(arrived.hwnd, 1079)));
        EXPECT_EQ(arrived.lParam, 77);
        return ++calls;
    };
    const HWND dialog = OpenTemplate(101);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(TextOf(dialog, 1079), "Just Go, Baybeee");
    EXPECT_EQ(GetDlgItem(dialog, 4711), nullptr);
    EXPECT_EQ(Order({dialog, GetDlgItem(dialog, 1)}), std::vector{dialog}) << "controls are not among them";
}

TEST_F(Dialogs, TheEndOfADialogHidesItAndTheFocusLeavesItsControlFirst) {
    const HWND owner = OpenOwn(WS_POPUP | WS_VISIBLE);
    const HWND dialog = OpenTemplate(101, owner);
    ShowWindow(dialog, SW_SHOW);
    SetFocus(GetDlgItem(dialog, 1001));
    Handle(50);
    News.clear();
    EXPECT_TRUE(EndDialog(dialog, 2));
    EXPECT_EQ(CodesOf(1001), Codes{EN_KILLFOCUS});
    EXPECT_TRUE(IsWindow(dialog));
    EXPECT_FALSE(IsWindowVisible(dialog));
    EXPECT_EQ(GetForegroundWindow(), owner);
}

TEST_F(Dialogs, WhatAWindowOwnsGoesWithItUnlessItWasHandedOver) {
    const HWND first = OpenOwn();
    const HWND second = OpenTemplate(101, first);
    const HWND stays = OpenTemplate(107, second);
    const HWND goes = OpenTemplate(106, second);
    EXPECT_EQ(GetParent(stays), second) << "the owner of a pop-up";
    EXPECT_EQ(GetParent(OpenOwn(WS_OVERLAPPEDWINDOW, 0, PLACE, first)), nullptr) << "of no other window";
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
    EXPECT_EQ(PlaceOf(child), Rect(210, 120, 215, 121));
    EXPECT_FALSE(IsWindowVisible(child)) << "the parent is hidden";
    Seen.clear();
    DestroyWindow(parent);
    std::vector<HWND> ended;
    for (const MSG& arrived : Seen)
        if (arrived.message == WM_DESTROY || arrived.message == WM_NCDESTROY)
            ended.push_back(arrived.hwnd);
    EXPECT_EQ(ended, (std::vector{parent, child, child, parent}));
}

TEST_F(Dialogs, NumbersAreReadInThirtyTwoBitsAndAreZeroWhenTheyAreNone) {
    const HWND dialog = OpenTemplate(101);
    const struct {
        const char* text;
        UINT number;
        BOOL bRead;
    } cases[] = {
        {"768",         768,         TRUE },
        {"4294967295",  4294967295U, TRUE },
        {"",            0,           FALSE},
        {"99999999999", 0,           FALSE},
    };
    for (const auto& row : cases) {
        BOOL bRead = -1;
        EXPECT_TRUE(SetDlgItemTextA(dialog, 1000, row.text));
        EXPECT_EQ(GetDlgItemInt(dialog, 1000, &bRead, FALSE), row.number) << row.text;
        EXPECT_EQ(bRead, row.bRead) << row.text;
    }
    EXPECT_TRUE(SetDlgItemInt(dialog, 1001, static_cast<UINT>(-5), FALSE));
    EXPECT_EQ(TextOf(dialog, 1001), "4294967291");
    SetDlgItemInt(dialog, 1001, static_cast<UINT>(-5), TRUE);
    EXPECT_EQ(TextOf(dialog, 1001), "-5");
}

TEST_F(Dialogs, KeysOfADialogAreTakenAndThoseOfOthersLeft) {
    const HWND dialog = ShowTemplate(108);
    const HWND name = GetDlgItem(dialog, 1025);
    EXPECT_FALSE(Offer(nullptr, name, VK_RETURN));
    EXPECT_FALSE(Offer(dialog, OpenOwn(), VK_RETURN));
    EXPECT_FALSE(Offer(dialog, nullptr, VK_RETURN));
    SetFocus(name);
    EXPECT_TRUE(Offer(dialog, name, VK_ESCAPE));
    EXPECT_TRUE(Offer(dialog, name, VK_RETURN));
    EXPECT_EQ(Clicked(), (Ids{2, 1}));
    EXPECT_TRUE(Offer(dialog, name, VK_TAB));
    EXPECT_TRUE(Offer(dialog, GetDlgItem(dialog, 1), VK_TAB));
    EXPECT_TRUE(Offer(dialog, GetDlgItem(dialog, 2), VK_RETURN));
    EXPECT_EQ(Clicked(), Ids{2}) << "Enter presses the button that has the focus";
    EXPECT_TRUE(Offer(dialog, GetDlgItem(dialog, 2), VK_TAB)) << "past the disabled one, round the end";
    EXPECT_FALSE(CodesOf(1025).empty());
}

TEST_F(Dialogs, ADisabledButtonIsNotPressedByAKeyAndANumberWithoutButtonIsToldAllTheSame) {
    const HWND find = ShowTemplate(117); // without default button and without a number 2
    const HWND list = GetDlgItem(find, 1041);
    EXPECT_TRUE(Offer(find, list, VK_RETURN));
    EXPECT_TRUE(Offer(find, list, VK_ESCAPE));
    EXPECT_EQ(Clicked(), (Ids{1, 2}));
    EnableWindow(GetDlgItem(find, 1), FALSE);
    EXPECT_TRUE(Offer(find, list, VK_RETURN));
    EXPECT_EQ(Clicked(), Ids{});
}

TEST_F(Dialogs, ClosingMeansCancelAndIsPosted) {
    const HWND dialog = ShowTemplate(113);
    SendMessageA(dialog, WM_CLOSE, 0, 0);
    EXPECT_EQ(Clicked(), Ids{});
    Handle(20);
    EXPECT_EQ(Clicked(), Ids{2});
    EXPECT_TRUE(IsWindowVisible(dialog));
}

} // namespace
