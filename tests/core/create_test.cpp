#include "core/create.h"

#include "actions/action_table.h"
#include "core/state.h"
#include "scroll/locked_windows.h"
#include "scroll/refresh.h"
#include "scroll/window_table.h"
#include "support/quorl_test.h"

namespace {

class Creation : public QuorlTest {};

TEST_F(Creation, TheDesktopIsFourScreensWideAndTwoHigh) {
    OpenWindow("editor", {100, 100, 500, 400});
    ASSERT_EQ(StartQuorl(), 1);
    EXPECT_EQ(Quorl, Rect(0, 0, 4096, 1536));
    EXPECT_EQ(VDesk, Rect(0, 0, 1024, 768));
    EXPECT_EQ(num_windows, 2) << "the program's and the Toolwin";
    ASSERT_FALSE(Desk.timers.empty());
    EXPECT_EQ(Desk.timers[0].id, REFRESH_TIMER);
    EXPECT_EQ(Desk.timers[0].period, 100U);
}

TEST_F(Creation, AMonitorLeftOfThePrimaryOneMakesTheDesktopBeginThere) {
    Desk.monitors.push_back({-1280, -20, 0, 1004});
    ASSERT_EQ(StartQuorl(), 1);
    EXPECT_EQ(ScreenW(), 1024);
    EXPECT_EQ(ScreenH(), 1004);
    EXPECT_EQ(Quorl, Rect(-1280, -20, 4096, 2008));
    EXPECT_EQ(VDesk, Rect(-1280, -20, 1024, 1004));
}

TEST_F(Creation, FillsInEveryDefault) {
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
    const OptionsRecord expected{5, 100, 5, 800, 100, 255, 3, 0, 1};
    EXPECT_EQ(Options.border, expected.border);
    EXPECT_EQ(Options.maxscroll, expected.maxscroll);
    EXPECT_EQ(Options.minscroll, expected.minscroll);
    EXPECT_EQ(Options.mousescroll, expected.mousescroll);
    EXPECT_EQ(Options.mousescroll_delay_time, expected.mousescroll_delay_time);
    EXPECT_EQ(Options.alpha, expected.alpha);
    EXPECT_EQ(Options.mousescroll_type, expected.mousescroll_type);
    EXPECT_EQ(Options.mousescroll_delay, expected.mousescroll_delay);
    EXPECT_EQ(TipWnd, nullptr);
    EXPECT_EQ(LockedWindows[0], nullptr);
}

TEST_F(Creation, ComesInItsOrder) {
    ASSERT_EQ(StartQuorl(), 1);
    EXPECT_TRUE(CameInOrder({"CreateWindowExA", "EnumDisplayMonitors", "SetTimer", "EnumWindows",
                             "RegisterHotKey", "SetLayeredWindowAttributes"}));
}

} // namespace
