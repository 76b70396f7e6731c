#include "scroll/desktop_size.h"

#include "support/quorl_test.h"

TEST_F(RunningQuorl, DesktopGrowsOnTheNearSideByShiftingTheWindows) {
    const HWND editor = OpenAndList("editor", {100, 100, 500, 400});
    for (const ActionId id : {ACTION_ADD_RIGHT, ACTION_ADD_LEFT, ACTION_ADD_BOTTOM, ACTION_ADD_TOP})
        RunAction(id);
    EXPECT_EQ(Quorl, Rect(0, 0, 6144, 3072));
    EXPECT_EQ(RectOf(editor), Rect(1124, 868, 1524, 1168));
    Quorl.right = 31744;
    RunAction(ACTION_ADD_RIGHT);
    EXPECT_EQ(Quorl.right, LARGEST_DESKTOP);
}

TEST_F(RunningQuorl, DesktopShrinksToOneScreen) {
    const HWND editor = OpenAndList("editor", {100, 100, 500, 400});
    RunAction(ACTION_REMOVE_LEFT);
    EXPECT_EQ(RectOf(editor), Rect(0, 100, 400, 400));
    for (int press = 0; press < 4; ++press)
        RunAction(ACTION_REMOVE_RIGHT);
    EXPECT_EQ(ChosenDesktop, Rect(0, 0, 1024, 1536));
    EXPECT_EQ(WindowOf(editor).received.size(), 5U) << "clamped to the desktop";
    EXPECT_EQ(RectOf(editor), Rect(0, 100, 400, 400));
    RunAction(ACTION_ADD_BOTTOM);
    RunAction(ACTION_REMOVE_BOTTOM);
    RunAction(ACTION_REMOVE_TOP);
    EXPECT_EQ(ChosenDesktop, Rect(0, 0, 1024, 768));
    EXPECT_EQ(RectOf(editor), Rect(0, 0, 400, 300));
}
