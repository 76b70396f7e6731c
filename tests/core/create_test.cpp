#include "core/create.h"

#include "core/coordinates.h"
#include "scroll/locked_windows.h"
#include "support/quorl_test.h"

class Creation : public QuorlTest {};

TEST_F(Creation, MeasuresTheUnionOfTheMonitorsAndMakesNoDesktopPastTheLargest) {
    RECT all{9, 9, 9, 9};
    Desk.monitors.clear();
    EXPECT_EQ(MonitorUnion(&all), 1);
    EXPECT_EQ(all, Rect(0, 0, 0, 0));

    Desk.monitors = {Rect(-1280, 50, 0, 1004), Rect(100, -20, 11520, 16001)};
    ASSERT_EQ(StartQuorl(), 1);
    EXPECT_EQ(VDesk, Rect(-1280, -20, 11520, 16001));
    EXPECT_EQ(Quorl, Rect(-1280, -20, 32000, 32000));
}

TEST_F(Creation, FillsInTheDefaultsWhateverWasThere) {
    for (ActionRow& row : ActionTable)
        row.value = 7;
    LockWindow(OpenWindow("locked by an earlier life", {1, 1, 2, 2}));
    TipWnd = GetDesktopWindow();
    ASSERT_EQ(StartQuorl(), 1);
    std::string values;
    for (const ActionRow& row : ActionTable)
        if (row.value != 7)
            values += std::to_string(row.id) + "=" + std::to_string(row.value) + " ";
    EXPECT_EQ(values, "58=1 70=1 71=1 72=1 73=1 77=1 79=0 82=0 83=0 ");
    EXPECT_EQ(TipWnd, nullptr);
    EXPECT_EQ(LockedWindows[0], nullptr);
}
