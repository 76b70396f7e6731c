// Which dialogs are open, by dialogs that do nothing but count, and by all of them when calls fail.
#include "dialogs/registry.h"

#include "regions/region_table.h"
#include "support/faults.h"
#include "support/quorl_test.h"

namespace {

class Registry : public RunningQuorl {};

int Opened; // WM_INITDIALOG

INT_PTR CALLBACK CountingDlgProc(HWND dialog, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG)
        return 0;
    ++Opened;
    EXPECT_EQ(OpenDialog(MainWnd, DIALOG_ACTIONS, CountingDlgProc), 0) << "one at a time is made";
    ShowWindow(dialog, SW_SHOW);
    return 1;
}

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
    EXPECT_EQ(Opened, 2) << "no dialog is filled again";
}

TEST_F(Registry, AClosedDialogOpensAnewAndLeavesThoseThatItHasOpened) {
    const HWND help = Open(DIALOG_HELP);
    EXPECT_EQ(OpenDialog(help, DIALOG_ABOUT, CountingDlgProc), 1);
    const HWND owned = Desk.foreground;
    EXPECT_EQ(CloseDialog(help, DIALOG_HELP, 0), 1);
    EXPECT_FALSE(IsWindow(help));
    EXPECT_EQ(RowOf(owned).owner, MainWnd);
    EXPECT_NE(Open(DIALOG_HELP), help);
}

constexpr int NAME = 1025, LIST = 1041, RESIZE_OK = 1044; // controls

// The user opens each dialog that comes, fills in what it asks for, and closes it.
void GoThroughDialogs() {
    for (const int row : {49, 52, 53, 111, 116, 56, 57, 54, 55, 74}) {
        Command(row);
        for (const auto& [dialog, id] : DialogSlots) {
            if (!dialog)
                continue;
            if (const HWND name = ControlOf(dialog, NAME))
                TypeInto(name, "here");
            if (const HWND list = ControlOf(dialog, LIST))
                ChooseRow(list, 0);
            ClickControl(ControlOf(dialog, id == DIALOG_RESIZE_WINDOWS ? RESIZE_OK : IDOK));
        }
    }
}

// Something fails in the first round, and nothing in the second. A dialog that could not be shown stays
// hidden: only that one may be left.
void TwoRounds() {
    OpenWindow("mail", {2000, 300, 2400, 500});
    Desk.answers.assign(20, IDOK);
    GoThroughDialogs();
    Desk.fault.callsLeft = 0;
    GoThroughDialogs();
    int hidden = 0;
    for (const DialogSlot& slot : DialogSlots) {
        hidden += slot.handle != nullptr;
        EXPECT_FALSE(IsWindowVisible(slot.handle));
    }
    EXPECT_LE(hidden, 1);
    EXPECT_GE(num_regions + hidden, 1);
    EXPECT_EQ(Desk.surprises, 0);
}

TEST_F(Registry, WhicheverCallFailsNoDialogIsLeftThatCannotBeUsedAgain) {
    EXPECT_GT(FailEachCall(TwoRounds), 100);
}

} // namespace
