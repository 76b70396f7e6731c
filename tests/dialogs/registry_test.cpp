// Which dialogs are open, by dialogs that do nothing but count.
#include "dialogs/registry.h"

#include "core/state.h"
#include "support/quorl_test.h"

#include <algorithm>

namespace {

int Opened;   // WM_INITDIALOG
int Commands; // of button 1

INT_PTR CALLBACK CountingDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    Commands += message == WM_COMMAND && wParam == IDOK;
    if (message != WM_INITDIALOG)
        return 0;
    ++Opened;
    ShowWindow(dialog, SW_SHOW);
    return 1;
}

class Registry : public QuorlTest {
  protected:
    void SetUp() override {
        QuorlTest::SetUp();
        StartQuorl();
    }
};

HWND Open(int id, HWND parent = MainWnd) {
    EXPECT_EQ(OpenDialog(parent, id, CountingDlgProc), 1);
    return Desk.foreground;
}

HWND OwnerOf(HWND window) {
    return RowOf(window).owner;
}

TEST_F(Registry, ASecondRequestRaisesTheDialogNearTheMiddleAsItStands) {
    const HWND about = Open(DIALOG_ABOUT);
    RowOf(about).place = {0, 0, 300, 200};
    const HWND other = Open(DIALOG_NAME_REGION);
    TypeInto(ControlOf(other, 1025), "typed");
    ASSERT_NE(other, about);

    EXPECT_EQ(OpenDialog(MainWnd, DIALOG_ABOUT, CountingDlgProc), 1);
    EXPECT_EQ(PlaceOf(about), Rect(437, 334, 737, 534));
    EXPECT_EQ(Desk.foreground, about);
    EXPECT_EQ(OpenDialog(MainWnd, DIALOG_NAME_REGION, CountingDlgProc), 1);
    EXPECT_EQ(Desk.foreground, other);
    EXPECT_EQ(RowOf(ControlOf(other, 1025)).title, "typed");
    EXPECT_EQ(Opened, 2) << "no dialog is filled again";
}

TEST_F(Registry, TheTwoFindDialogsShareOnePlace) {
    const HWND find = Open(DIALOG_FIND);
    EXPECT_EQ(OpenDialog(MainWnd, DIALOG_FIND, nullptr), 1) << "the procedure of the other is not looked at";
    EXPECT_EQ(Desk.foreground, find);
    EXPECT_EQ(CallsOf("CreateDialogParamA"), 1);
}

TEST_F(Registry, AClosedDialogIsGoneAndOpensAnew) {
    const HWND first = Open(DIALOG_HELP);
    DialogHandles[KEYS_HELP] = first;
    EXPECT_EQ(CloseDialog(first, DIALOG_HELP, 0), 1);
    EXPECT_FALSE(IsWindow(first));
    EXPECT_EQ(DialogHandles[KEYS_HELP], nullptr);
    EXPECT_NE(Open(DIALOG_HELP), first);
    EXPECT_EQ(Opened, 2);
}

TEST_F(Registry, OnlyTheOpenDialogOfItsTemplateCanBeClosed) {
    const HWND help = Open(DIALOG_HELP);
    EXPECT_EQ(CloseDialog(MainWnd, DIALOG_HELP, 0), 0);
    EXPECT_EQ(CloseDialog(help, DIALOG_ABOUT, 0), 0);
    EXPECT_TRUE(Desk.beeps.empty());
    EXPECT_EQ(CloseDialog(help, 999, 0), 0);
    EXPECT_EQ(Desk.beeps.size(), 1u);
    EXPECT_TRUE(IsWindow(help));
}

TEST_F(Registry, WhatADialogHasOpenedOutlivesIt) {
    const HWND options = Open(DIALOG_OPTIONS);
    const HWND actions = Open(DIALOG_ACTIONS, options);
    const HWND help = Open(DIALOG_HELP);
    CloseDialog(options, DIALOG_OPTIONS, 0);
    EXPECT_TRUE(IsWindowVisible(actions));
    EXPECT_EQ(OwnerOf(actions), MainWnd);
    EXPECT_EQ(OwnerOf(help), MainWnd);
    EXPECT_EQ(CloseDialog(actions, DIALOG_ACTIONS, 0), 1);
}

TEST_F(Registry, ADialogThatCannotBeMadeIsNotOpen) {
    EXPECT_EQ(OpenDialog(MainWnd, 999, CountingDlgProc), 0);
    Desk.fault = {"CreateDialogParamA", 1};
    EXPECT_EQ(OpenDialog(MainWnd, DIALOG_HELP, CountingDlgProc), 0);
    EXPECT_EQ(Opened, 0);
    EXPECT_EQ(OpenDialog(MainWnd, DIALOG_HELP, CountingDlgProc), 1) << "the next try may succeed";
}

TEST_F(Registry, ADialogThatIsBeingMadeIsNotMadeTwice) {
    const DLGPROC reopening = [](HWND, UINT message, WPARAM, LPARAM) -> INT_PTR {
        EXPECT_TRUE(message != WM_INITDIALOG || OpenDialog(MainWnd, DIALOG_ABOUT, CountingDlgProc) == 0);
        return 0;
    };
    EXPECT_EQ(OpenDialog(MainWnd, DIALOG_ABOUT, reopening), 1);
    EXPECT_EQ(CallsOf("CreateDialogParamA"), 1);
    EXPECT_EQ(OpenDialog(MainWnd, DIALOG_NAME_REGION, CountingDlgProc), 1);
}

TEST_F(Registry, KeysWorkOnlyInDialogsThatHaveEnteredThemselves) {
    const HWND entered = Open(DIALOG_ABOUT);
    DialogHandles[KEYS_ABOUT] = entered;
    PressKey(VK_RETURN);
    Settle();
    EXPECT_EQ(Commands, 1);

    Open(DIALOG_TRANSPARENCY);
    PressKey(VK_RETURN);
    Settle();
    EXPECT_EQ(Commands, 1);

    MSG other{MainWnd, WM_KEYDOWN, VK_RETURN, 0, 0, {}};
    EXPECT_EQ(IsOpenDialogMessage(&other), 0);
}

} // namespace
