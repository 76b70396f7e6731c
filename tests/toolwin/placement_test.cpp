#include "toolwin/placement.h"

#include "support/quorl_test.h"

class Placement : public RunningQuorl {};

TEST_F(Placement, SnapsToTheEdgesOfTheScreen) {
    const auto snapped = [](const RECT& rect) { return SnapRect(rect, 5, 1024, 768); };
    EXPECT_EQ(snapped({5, 4, 205, 104}), Rect(5, 0, 205, 100));
    EXPECT_EQ(snapped({819, 664, 1019, 764}), Rect(819, 668, 1019, 768));
    EXPECT_EQ(snapped({50, 300, 1150, 400}), Rect(-76, 300, 1024, 400)) << "wider than the screen";
}

TEST_F(Placement, StaysOnTheScreenOnlyWhileSnapping) {
    RunAction(ACTION_TOOLWIN_LEFT_MAX);
    EXPECT_EQ(RectOf(MainWnd), Rect(0, 100, 200, 200));
    RunAction(ACTION_SNAP);
    RunAction(ACTION_TOOLWIN_LEFT_MAX);
    EXPECT_EQ(RectOf(MainWnd), Rect(-100, 100, 100, 200));
    EXPECT_EQ(LastStatus(), "Toolwin: -100,100 - 100,200");
}

TEST_F(Placement, ResizesAtTheFarEdgesWithinTheLimits) {
    Options.minscroll = 60;
    for (const ActionId id : {ACTION_EXPAND_WIDTH, ACTION_EXPAND_HEIGHT, ACTION_SHRINK_WIDTH,
                              ACTION_SHRINK_WIDTH, ACTION_SHRINK_HEIGHT})
        RunAction(id);
    EXPECT_EQ(RectOf(MainWnd), Rect(100, 100, 240, 200));
    for (int press = 0; press < 2; ++press)
        RunAction(ACTION_SHRINK_HEIGHT);
    EXPECT_EQ(RectOf(MainWnd), Rect(100, 100, 240, 100 + MIN_TOOLWIN.cy));
}
