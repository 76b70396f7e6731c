#include "mouse/edge_scroll.h"

#include "core/directions.h"
#include "support/quorl_test.h"

TEST(EdgeDecision, TheFirstEdgeDecidesAndTheCursorLandsInsideTheOppositeOne) {
    const struct {
        POINT cursor;
        int type, dir;
        POINT view, landing;
    } cases[] = {
        {{1020, 300}, 3,  DIR_RIGHT, {3072, 800},  {15, 300}  },
        {{4, 300},    3,  DIR_LEFT,  {1024, 800},  {1009, 300}},
        {{500, 764},  3,  DIR_DOWN,  {2048, 1568}, {500, 15}  },
        {{500, 4},    3,  DIR_UP,    {2048, 32},   {500, 753} },
        {{1022, 766}, 3,  DIR_RIGHT, {3072, 800},  {15, 766}  }, // corners: sideways goes first
        {{1022, 300}, 0,  DIR_RIGHT, {2053, 800},  {1034, 300}}, // lands off the screen
        {{500, 766},  1,  DIR_DOWN,  {2048, 900},  {500, 683} },
        {{500, 2},    2,  DIR_UP,    {2048, 0},    {500, 785} },
        {{1022, 300}, -1, DIR_RIGHT, {2058, 800},  {1029, 300}}, // an unknown type goes by 10
        {{500, 766},  -1, DIR_DOWN,  {2048, 810},  {500, 773} },
        {{1019, 763}, 3,  DIR_NONE,  {2048, 800},  {1019, 763}}, // just not at any edge
        {{5, 5},      3,  DIR_NONE,  {2048, 800},  {5, 5}     },
    };
    OptionsRecord options{};
    options.border = 5;
    options.minscroll = 5;
    options.maxscroll = 100;
    options.mousescroll = 800;
    for (const auto& [cursor, type, dir, view, landing] : cases) {
        SCOPED_TRACE(testing::PrintToString(cursor) + " type " + std::to_string(type));
        options.mousescroll_type = type;
        const EdgeStep step = EdgeStepAt(cursor, options, {2048, 800, 3072, 1568}, 1024, 768);
        EXPECT_EQ(step.dir, dir);
        EXPECT_EQ(step.view, view);
        EXPECT_EQ(step.landing, landing);
    }
}

TEST(EdgeDecision, TheTimersTestReachesOnePixelFurther) {
    const auto isStill = [](int dir, int x, int y) { return IsStillAtEdge({x, y}, dir, 5, 1024, 768); };
    EXPECT_TRUE(isStill(DIR_RIGHT, 1019, 300));
    EXPECT_FALSE(isStill(DIR_RIGHT, 1018, 300));
    EXPECT_TRUE(isStill(DIR_LEFT, 5, 300));
    EXPECT_FALSE(isStill(DIR_LEFT, 6, 300));
    EXPECT_TRUE(isStill(DIR_DOWN, 500, 763));
    EXPECT_FALSE(isStill(DIR_DOWN, 500, 762));
    EXPECT_TRUE(isStill(DIR_UP, 500, 5));
    EXPECT_FALSE(isStill(DIR_UP, 500, 6));
    EXPECT_FALSE(isStill(DIR_NONE, 0, 0));
}
