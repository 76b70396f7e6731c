#include "toolwin/placement.h"

#include "core/main_window.h"
#include "support/quorl_test.h"

class Placement : public RunningQuorl {};

TEST_F(Placement, PullsAWindowFlushWithTheEdgesThatItComesNearOrCrosses) {
    const auto snapped = [](const RECT& asked) { return SnappedPlace(asked, 5, 1024, 768); };
    EXPECT_EQ(snapped({5, 4, 205, 104}), Rect(5, 0, 205, 100));
    EXPECT_EQ(snapped({819, 664, 1019, 764}), Rect(819, 668, 1019, 768));
    EXPECT_EQ(snapped({50, 300, 1150, 400}), Rect(-76, 300, 1024, 400)) << "wider than the screen";
}

TEST_F(Placement, TheSwitchForSnappingDecidesWhetherTheMapCanLeaveTheScreen) {
    Options.maxscroll = 300;
    Command(16);
    EXPECT_EQ(PlaceOf(MainWnd), Rect(0, 100, 200, 200));
    Command(ROW_SNAP);
    Command(16);
    EXPECT_EQ(PlaceOf(MainWnd), Rect(-300, 100, -100, 200));
    EXPECT_EQ(LastTip(), "Toolwin: -300,100 - -100,200");
}

TEST_F(Placement, ResizingMovesTheFarEdgesByTheSmallStepAndStopsAtTheLimits) {
    Options.minscroll = 30;
    for (const int row : {43, 43, 45, 42})
        Command(row);
    EXPECT_EQ(PlaceOf(MainWnd), Rect(100, 100, 330, 230));
    for (int press = 0; press < 10; ++press)
        Command(44);
    EXPECT_EQ(PlaceOf(MainWnd), Rect(100, 100, 330, 100 + LEAST_TOOLWIN.cy));
}
