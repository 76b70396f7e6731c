#include "toolwin/placement.h"

#include "core/main_window.h"
#include "core/state.h"
#include "support/quorl_test.h"

#include <algorithm>

namespace {

class Placement : public RunningQuorl {};

TEST(Snapping, PullsAWindowFlushWithTheEdgesThatItComesNearOrCrosses) {
    const struct {
        RECT asked, snapped;
    } cases[] = {
        {{4, 300, 204, 400},     {0, 300, 200, 400}   },
        {{5, 5, 205, 105},       {5, 5, 205, 105}     },
        {{819, 300, 1019, 400},  {819, 300, 1019, 400}},
        {{820, 300, 1020, 400},  {824, 300, 1024, 400}},
        {{-300, 4, -100, 104},   {0, 0, 200, 100}     },
        {{300, 700, 500, 800},   {300, 668, 500, 768} },
        {{50, 300, 1150, 400},   {-76, 300, 1024, 400}}, // wider than the screen: the right edge wins
        {{2000, 663, 2200, 763}, {824, 663, 1024, 763}},
    };
    for (const auto& row : cases)
        EXPECT_EQ(SnappedPlace(row.asked, 5, 1024, 768), row.snapped) << testing::PrintToString(row.asked);
}

TEST_F(Placement, EightRowsNudgeTheMapByTheTwoSteps) {
    const struct {
        int row;
        int dx, dy;
    } steps[] = {
        {13, 5,    0   },
        {14, 100,  0   },
        {15, -5,   0   },
        {16, -100, 0   },
        {17, 0,    -5  },
        {18, 0,    -100},
        {19, 0,    5   },
        {20, 0,    100 },
    };
    for (const auto& step : steps) {
        RowOf(MainWnd).place = {400, 300, 600, 400};
        Command(step.row);
        EXPECT_EQ(PlaceOf(MainWnd), Rect(400 + step.dx, 300 + step.dy, 600 + step.dx, 400 + step.dy))
            << "row " << step.row;
    }
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
    EXPECT_EQ(MoveToolwin(MainWnd, 7, -50, 3), 1) << "the drag passes a further flag";
    EXPECT_EQ(PlaceOf(MainWnd), Rect(307, 200, 507, 300));
    Desk.fault = {"GetWindowRect", 1};
    EXPECT_EQ(MoveToolwin(MainWnd, 7, 7, 3), 0);
    EXPECT_EQ(PlaceOf(MainWnd), Rect(307, 200, 507, 300)) << "no place to start from, so it stays";
}

TEST_F(Placement, SaysWhereTheMapWillLieBeforeItMoves) {
    Command(14);
    const auto told = std::find_if(Desk.strokes.rbegin(), Desk.strokes.rend(),
                                   [](const DeskStroke& stroke) { return stroke.window == TipWnd; });
    ASSERT_NE(told, Desk.strokes.rend());
    EXPECT_EQ(told->text, "Toolwin: 200,100 - 400,200");
    EXPECT_EQ(PlaceOf(TipWnd).left, 100) << "placed against the map's old position";
    EXPECT_EQ(PlaceOf(MainWnd), Rect(200, 100, 400, 200));
}

TEST_F(Placement, ResizingMovesTheFarEdgesByTheSmallStepAndStopsAtTheLimits) {
    Options.minscroll = 30;
    const struct {
        int row;
        RECT place;
    } steps[] = {
        {43, {100, 100, 230, 200}},
        {45, {100, 100, 230, 230}},
        {42, {100, 100, 200, 230}},
        {44, {100, 100, 200, 200}},
    };
    RowOf(MainWnd).place = {100, 100, 200, 200};
    for (const auto& step : steps) {
        Command(step.row);
        EXPECT_EQ(PlaceOf(MainWnd), step.place) << "row " << step.row;
    }
    for (int press = 0; press < 10; ++press) {
        Command(42);
        Command(44);
    }
    EXPECT_EQ(PlaceOf(MainWnd), Rect(100, 100, 100 + LEAST_TOOLWIN.cx, 100 + LEAST_TOOLWIN.cy));
    EXPECT_EQ(ResizedPlace({1, 2, 3, 4}, 46, 100), Rect(1, 2, 3, 4)) << "any other row changes nothing";
}

TEST_F(Placement, HidingTwiceGivesTheMapBack) {
    EXPECT_TRUE(IsWindowVisible(MainWnd));
    Command(ROW_SHOW_TOOLWIN);
    EXPECT_FALSE(IsWindowVisible(MainWnd));
    EXPECT_EQ(ActionTable[ROW_SHOW_TOOLWIN].value, 0);
    EXPECT_EQ(ToggleToolwin(nullptr), 1) << "it always acts on the map";
    EXPECT_TRUE(IsWindowVisible(MainWnd));
    EXPECT_EQ(ActionTable[ROW_SHOW_TOOLWIN].value, 1);
}

} // namespace
