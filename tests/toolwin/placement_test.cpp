#include "toolwin/placement.h"

#include "core/main_window.h"
#include "core/state.h"
#include "support/quorl_test.h"

namespace {

class Placement : public RunningQuorl {};

TEST_F(Placement, PullsAWindowFlushWithTheEdgesThatItComesNearOrCrosses) {
    const struct {
        RECT asked, snapped;
    } cases[] = {
        {{5, 4, 205, 104},       {5, 0, 205, 100}     },
        {{-300, 5, -100, 105},   {0, 5, 200, 105}     },
        {{819, 664, 1019, 764},  {819, 668, 1019, 768}},
        {{2000, 663, 2200, 763}, {824, 663, 1024, 763}},
        {{50, 300, 1150, 400},   {-76, 300, 1024, 400}}, // wider than the screen: the right edge wins
    };
    for (const auto& [asked, snapped] : cases)
        EXPECT_EQ(SnappedPlace(asked, 5, 1024, 768), snapped) << testing::PrintToString(asked);
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
    const struct {
        int row;
        SIZE size;
    } cases[] = {
        {43, {230, 100}},
        {45, {230, 130}},
        {42, {200, 130}},
        {44, {200, 100}},
    };
    Options.minscroll = 30;
    for (const auto& [row, size] : cases) {
        Command(row);
        EXPECT_EQ(PlaceOf(MainWnd), Rect(100, 100, 100 + size.cx, 100 + size.cy)) << "row " << row;
    }
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

} // namespace
