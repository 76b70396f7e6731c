#include "mouse/edge_scroll.h"

#include "core/directions.h"
#include "support/quorl_test.h"

TEST(EdgeDecision, TheFirstEdgeDecidesAndTheCursorLandsInsideTheOppositeOne) {
    const struct {
        POINT cursor;
        int type, dir;
        POINT view, landing;
    } cases[] = {
        {{1020, 766}, 3, DIR_RIGHT, {3072, 800},  {15, 766}  }, // sideways goes first
        {{4, 300},    3, DIR_LEFT,  {1024, 800},  {1009, 300}},
        {{500, 764},  3, DIR_DOWN,  {2048, 1568}, {500, 15}  },
        {{500, 4},    2, DIR_UP,    {2048, 0},    {500, 785} }, // lands off the screen
        {{1022, 300}, 0, DIR_RIGHT, {2053, 800},  {1034, 300}},
        {{500, 766},  1, DIR_DOWN,  {2048, 900},  {500, 683} },
        {{1019, 763}, 3, DIR_NONE,  {2048, 800},  {1019, 763}}, // just not at any edge
        {{5, 5},      3, DIR_NONE,  {2048, 800},  {5, 5}     },
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
    const auto edgesAt = [](POINT cursor) {
        int edges = 0;
        for (const int dir : {DIR_UP, DIR_DOWN, DIR_LEFT, DIR_RIGHT})
            edges |= IsStillAtEdge(cursor, dir, 5, 1024, 768) ? dir : 0;
        return edges;
    };
    EXPECT_EQ(edgesAt({1019, 763}), DIR_RIGHT | DIR_DOWN);
    EXPECT_EQ(edgesAt({5, 5}), DIR_LEFT | DIR_UP);
    EXPECT_EQ(edgesAt({1018, 762}) | edgesAt({6, 6}), 0);
}
