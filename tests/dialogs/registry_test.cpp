// Which dialogs are open, by dialogs that do nothing but count.
#include "dialogs/registry.h"

#include "support/quorl_test.h"

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

class Registry : public RunningQuorl {};

HWND Open(int id) {
    EXPECT_EQ(OpenDialog(MainWnd, id, CountingDlgProc), 1);
    return Desk.foreground;
}

TEST_F(Registry, ASecondRequestRaisesTheDialogNearTheMiddleAsItStands) {
    const HWND about = Open(DIALOG_ABOUT);
    RowOf(about).place = {0, 0, 300, 200};
    const HWND other = Open(DIALOG_NAME_REGION);
    TypeInto(ControlOf(other, 1025), "typed");
    ASSERT_NE(other, about);

    EXPECT_EQ(Open(DIALOG_ABOUT), about);
    EXPECT_EQ(PlaceOf(about), Rect(437, 334, 737, 534));
    EXPECT_EQ(Open(DIALOG_NAME_REGION), other);
    EXPECT_EQ(RowOf(ControlOf(other, 1025)).title, "typed");
    EXPECT_EQ(Opened, 2) << "no dialog is filled again";
}

TEST_F(Registry, OnlyTheOpenDialogOfItsTemplateCanBeClosedAndOpensAnew) {
    EXPECT_EQ(OpenDialog(MainWnd, 999, CountingDlgProc), 0);
    const HWND help = Open(DIALOG_HELP);
    EXPECT_EQ(CloseDialog(MainWnd, DIALOG_HELP, 0), 0);
    EXPECT_EQ(CloseDialog(help, DIALOG_ABOUT, 0), 0);
    EXPECT_TRUE(Desk.beeps.empty());
    EXPECT_EQ(CloseDialog(help, 999, 0), 0);
    EXPECT_EQ(Desk.beeps, std::vector<UINT>{0});
    EXPECT_TRUE(IsWindow(help));

    DialogHandles[KEYS_HELP] = help;
    EXPECT_EQ(CloseDialog(help, DIALOG_HELP, 0), 1);
    EXPECT_FALSE(IsWindow(help));
    EXPECT_EQ(DialogHandles[KEYS_HELP], nullptr);
    EXPECT_NE(Open(DIALOG_HELP), help);
}

TEST_F(Registry, ADialogThatIsBeingMadeIsNotMadeTwice) {
    const DLGPROC reopening = [](HWND, UINT message, WPARAM, LPARAM) -> INT_PTR {
        EXPECT_TRUE(message != WM_INITDIALOG || OpenDialog(MainWnd, DIALOG_ABOUT, CountingDlgProc) == 0);
        return 0;
    };
    EXPECT_EQ(OpenDialog(MainWnd, DIALOG_ABOUT, reopening), 1);
    EXPECT_EQ(CallsOf("CreateDialogParamA"), 1);
    Open(DIALOG_NAME_REGION);
}

TEST_F(Registry, KeysWorkOnlyInDialogsThatHaveEnteredThemselves) {
    DialogHandles[KEYS_ABOUT] = Open(DIALOG_ABOUT);
    PressKey(VK_RETURN);
    Settle();
    EXPECT_EQ(Commands, 1);

    Open(DIALOG_TRANSPARENCY);
    PressKey(VK_RETURN);
    Settle();
    EXPECT_EQ(Commands, 1);
}

} // namespace
