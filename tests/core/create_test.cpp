#include "core/create.h"

#include "actions/action_table.h"
#include "core/state.h"
#include "scroll/locked_windows.h"
#include "scroll/window_table.h"
#include "support/quorl_test.h"

namespace {

class Creation : public QuorlTest {};

TEST_F(Creation, AMonitorLeftOfThePrimaryOneMakesTheDesktopBeginThere) {
    Desk.monitors.push_back({-1280, -20, 0, 1004});
    ASSERT_EQ(StartQuorl(), 1);
    EXPECT_EQ(ScreenW(), 1024);
    EXPECT_EQ(ScreenH(), 1004);
    EXPECT_EQ(Quorl, Rect(-1280, -20, 4096, 2008));
    EXPECT_EQ(VDesk, Rect(-1280, -20, 1024, 1004));
    EXPECT_EQ(num_windows, 1) << "the first look at the desktop finds the Toolwin";
}

TEST_F(Creation, AWideScreenMakesNoDesktopPastTheLargest) {
    Desk.monitors = {
        {0, 0, 11520, 16001}
    };
    ASSERT_EQ(StartQuorl(), 1);
    EXPECT_EQ(Quorl, Rect(0, 0, 32000, 32000));
}

TEST_F(Creation, FillsInTheDefaultsWhateverWasThere) {
    for (const ActionId row : {58, 70, 71, 72, 73, 77})
        ActionTable[row].value = 0;
    for (const ActionId row : {79, 82, 83})
        ActionTable[row].value = 1;
    LockWindow(OpenWindow("locked by an earlier life", {1, 1, 2, 2}));
    TipWnd = GetDesktopWindow();

    ASSERT_EQ(StartQuorl(), 1);

    for (const ActionId row : {58, 70, 71, 72, 73, 77})
        EXPECT_EQ(ActionTable[row].value, 1) << row;
    for (const ActionId row : {79, 82, 83})
        EXPECT_EQ(ActionTable[row].value, 0) << row;
    EXPECT_EQ(TipWnd, nullptr);
    EXPECT_EQ(LockedWindows[0], nullptr);
}

} // namespace
