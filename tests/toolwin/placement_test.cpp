#include "toolwin/placement.h"

#include "core/main_window.h"
#include "support/quorl_test.h"

class Placement : public RunningQuorl {};

TEST_F(Placement, PullsAWindowFlushWithTheEdgesThatItComesNearOrCrosses) {
    const auto snapped = [](const RECT& asked) { return SnappedPlace(asked, 5, 1024, 768); };
    EXPECT_EQ(snapped({5, 4, 205, 104}), Rect(5, 0, 205, 100));
    EXPECT_EQ(snapped({-300, 5, -100, 105}), Rect(0, 5, 200, 105));
    EXPECT_EQ(snapped({819, 664, 1019, 764}), Rect(819, 668, 1019, 768));
    EXPECT_EQ(snapped({2000, 663, 2200, 763}), Rect(824, 663, 1024, 763));
    EXPECT_EQ(snapped({50, 300, 1150, 400}), Rect(-76, 300, 1024, 400)) << "wider than the screen";
}

TEST_F(Placement, TheSwitchForSnappingDecidesWhetherTheMapCanLeaveTheScreen) {
    Options.maxscroll = 300;
    Command(16);
    EXPECT_EQ(PlaceOf(MainWnd), Rect(0, 100, 200, 200));
    Command(ROW_SNAP);
    Command(16);
    Command(18);
    EXPECT_EQ(PlaceOf(MainWnd), Rect(-300, -200, -100, -100));
}

TEST_F(Placement, SnapsToTheScreenAsItIsNowNotAsItWasAtTheStart) {
    RowOf(MainWnd).place = {820, 100, 1020, 200};
    Desk.monitors = {
        {0, 0, 1600, 1200}
    };
    Command(13);
    EXPECT_EQ(PlaceOf(MainWnd), Rect(825, 100, 1025, 200)) << "the old edge is none any more";
    EXPECT_EQ(ScreenRect, Rect(0, 0, 1600, 1200));
}

TEST_F(Placement, ACornerInPlaceOfADistanceIsTakenAsItStands) {
    EXPECT_EQ(MoveToolwin(MainWnd, 300, 250, 0), 1);
    EXPECT_EQ(PlaceOf(MainWnd), Rect(300, 250, 500, 350));
    Desk.fault = {"GetWindowRect", 1};
    EXPECT_EQ(MoveToolwin(MainWnd, 7, 7, 3), 0);
    EXPECT_EQ(PlaceOf(MainWnd).left, 300) << "no place to start from, so it stays";
}

TEST_F(Placement, SaysWhereTheMapWillLieBeforeItMoves) {
    Command(14);
    EXPECT_EQ(LastTip(), "Toolwin: 200,100 - 400,200");
    EXPECT_EQ(PlaceOf(TipWnd).left, 100) << "placed against the map's old position";
}

TEST_F(Placement, ResizingMovesTheFarEdgesByTheSmallStepAndStopsAtTheLimits) {
    Options.minscroll = 30;
    Command(43);
    Command(45);
    EXPECT_EQ(PlaceOf(MainWnd), Rect(100, 100, 330, 230));
    Command(42);
    EXPECT_EQ(PlaceOf(MainWnd), Rect(100, 100, 300, 230));
    Command(44);
    EXPECT_EQ(PlaceOf(MainWnd), Rect(100, 100, 300, 200));
    for (int press = 0; press < 10; ++press) {
        Command(42);
        Command(44);
    }
    EXPECT_EQ(PlaceOf(MainWnd), Rect(100, 100, 100 + LEAST_TOOLWIN.cx, 100 + LEAST_TOOLWIN.cy));
}

TEST_F(Placement, HidingTwiceGivesTheMapBack) {
    EXPECT_TRUE(IsWindowVisible(MainWnd));
    Command(ROW_SHOW_TOOLWIN);
    EXPECT_FALSE(IsWindowVisible(MainWnd));
    Command(ROW_SHOW_TOOLWIN);
    EXPECT_TRUE(IsWindowVisible(MainWnd));
    EXPECT_EQ(ActionTable[ROW_SHOW_TOOLWIN].value, 1);
}
