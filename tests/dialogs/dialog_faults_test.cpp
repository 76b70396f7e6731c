#include "dialogs/registry.h"
#include "regions/region_table.h"
#include "support/faults.h"
#include "support/quorl_test.h"

namespace {

class DialogsBadLuck : public QuorlTest {};

constexpr int APPLY = 2, NAME = 1025, LIST = 1041, RESIZE_OK = 1044; // controls

void FillInAndClose(HWND dialog) {
    if (const HWND name = ControlOf(dialog, NAME))
        TypeInto(name, "here");
    if (const HWND list = ControlOf(dialog, LIST))
        ChooseRow(list, 0);
    if (ControlOf(dialog, RESIZE_OK))
        ClickControl(ControlOf(dialog, APPLY));
    ClickControl(ControlOf(dialog, ControlOf(dialog, RESIZE_OK) ? RESIZE_OK : IDOK));
}

// The user opens each dialog that comes, fills in what it asks for, and closes it.
void GoThroughDialogs() {
    for (const int row : {49, 52, 53, 111, 116, 56, 57, 54, 55, 74}) {
        Command(row);
        for (const DialogSlot& slot : DialogSlots)
            if (slot.handle)
                FillInAndClose(slot.handle);
    }
}

int CountOpen(DWORD visible) {
    int open = 0;
    for (const DialogSlot& slot : DialogSlots)
        open += slot.handle && (RowOf(slot.handle).style & WS_VISIBLE) == visible;
    return open;
}

// Something fails in the first round, and nothing in the second. A dialog that could not be shown stays
// hidden: only that one may be left.
void TwoRounds() {
    OpenWindow("mail", {2000, 300, 2400, 500});
    Desk.answers.assign(20, IDOK);
    GoThroughDialogs();
    Desk.fault.callsLeft = 0;
    GoThroughDialogs();
    EXPECT_EQ(CountOpen(WS_VISIBLE), 0);
    EXPECT_LE(CountOpen(0), 1);
    EXPECT_GE(num_regions + CountOpen(0), 1);
    for (int row = 0; row < num_regions; ++row)
        EXPECT_STREQ(RegionTable[row].name, "here");
    EXPECT_EQ(Desk.surprises, 0);
}

TEST_F(DialogsBadLuck, NoPlatformCallThatFailsLeavesADialogThatCannotBeUsedAgain) {
    ASSERT_EQ(StartQuorl(), 1);
    EXPECT_GT(FailEachCall(TwoRounds), 100);
}

} // namespace
