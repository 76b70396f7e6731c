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
    EXPECT_EQ(OpenDialog(MainWnd, DIALOG_ACTIONS, CountingDlgProc), 0) << "one at a time is made";
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
    ASSERT_NE(other, about);
    EXPECT_EQ(Open(DIALOG_ABOUT), about);
    EXPECT_EQ(PlaceOf(about), Rect(437, 334, 737, 534));
    EXPECT_EQ(Open(DIALOG_NAME_REGION), other);
    EXPECT_EQ(Opened, 2) << "no dialog is filled again";
}

TEST_F(Registry, OnlyTheOpenDialogOfItsTemplateCanBeClosedAndOpensAnew) {
    EXPECT_EQ(OpenDialog(MainWnd, 999, CountingDlgProc), 0);
    const HWND help = Open(DIALOG_HELP);
    EXPECT_EQ(CloseDialog(MainWnd, DIALOG_HELP, 0), 0);
    EXPECT_EQ(CloseDialog(help, DIALOG_ABOUT, 0), 0);
    EXPECT_TRUE(IsWindow(help));
    DialogHandles[KEYS_HELP] = help;
    EXPECT_EQ(CloseDialog(help, DIALOG_HELP, 0), 1);
    EXPECT_FALSE(IsWindow(help));
    EXPECT_EQ(DialogHandles[KEYS_HELP], nullptr);
    EXPECT_NE(Open(DIALOG_HELP), help);
}

TEST_F(Registry, KeysWorkOnlyInDialogsThatHaveEnteredThemselves) {
    for (const int id : {DIALOG_ABOUT, DIALOG_TRANSPARENCY}) {
        const HWND dialog = Open(id);
        if (id == DIALOG_ABOUT)
            DialogHandles[KEYS_ABOUT] = dialog;
        PressKey(VK_RETURN);
        Settle();
        EXPECT_EQ(Commands, 1) << id;
    }
}

} // namespace
