#include "mouse/edge_scroll.h"

#include "core/directions.h"
#include "core/state.h"
#include "support/quorl_test.h"

namespace {

constexpr int W = 1024;
constexpr int H = 768;
constexpr RECT VIEW{2048, 800, 3072, 1568};

OptionsRecord DefaultOptions(int type) {
    OptionsRecord options{};
    options.border = 5;
    options.minscroll = 5;
    options.maxscroll = 100;
    options.mousescroll = 800;
    options.mousescroll_type = type;
    return options;
}

TEST(EdgeDecision, TheFirstEdgeDecidesAndTheCursorLandsInsideTheOppositeOne) {
    const struct {
        POINT cursor;
        int type, dir;
        POINT view, landing;
    } cases[] = {
        {{1022, 300}, 3,  DIR_RIGHT, {3072, 800},  {15, 300}  },
        {{2, 300},    3,  DIR_LEFT,  {1024, 800},  {1009, 300}},
        {{500, 766},  3,  DIR_DOWN,  {2048, 1568}, {500, 15}  },
        {{500, 2},    3,  DIR_UP,    {2048, 32},   {500, 753} },
        {{1022, 766}, 3,  DIR_RIGHT, {3072, 800},  {15, 766}  }, // corners: sideways goes first
        {{0, 0},      3,  DIR_LEFT,  {1024, 800},  {1009, 0}  },
        {{1022, 300}, 0,  DIR_RIGHT, {2053, 800},  {1034, 300}}, // lands off the screen
        {{500, 764},  1,  DIR_DOWN,  {2048, 900},  {500, 683} },
        {{500, 4},    2,  DIR_UP,    {2048, 0},    {500, 785} },
        {{1020, 300}, -1, DIR_RIGHT, {2058, 800},  {1029, 300}}, // an unknown type goes by 10
        {{1019, 763}, 3,  DIR_NONE,  {2048, 800},  {1019, 763}}, // just not at any edge
        {{5, 5},      3,  DIR_NONE,  {2048, 800},  {5, 5}     },
        {{-300, 300}, 3,  DIR_LEFT,  {1024, 800},  {1009, 300}}, // a monitor left of the primary one
    };
    for (const auto& wanted : cases) {
        const EdgeStep step = EdgeStepAt(wanted.cursor, DefaultOptions(wanted.type), VIEW, W, H);
        SCOPED_TRACE(testing::Message()
                     << wanted.cursor.x << ", " << wanted.cursor.y << " type " << wanted.type);
        EXPECT_EQ(step.dir, wanted.dir);
        EXPECT_EQ(Rect(step.view.x, step.view.y, step.landing.x, step.landing.y),
                  Rect(wanted.view.x, wanted.view.y, wanted.landing.x, wanted.landing.y));
    }
}

TEST(EdgeDecision, TheTimersTestReachesOnePixelFurther) {
    const struct {
        int dir;
        POINT last, first; // the last point at the edge, the first that is not
    } cases[] = {
        {DIR_RIGHT, {1019, 300}, {1018, 300}},
        {DIR_LEFT,  {5, 300},    {6, 300}   },
        {DIR_DOWN,  {500, 763},  {500, 762} },
        {DIR_UP,    {500, 5},    {500, 6}   },
    };
    for (const auto& edge : cases) {
        EXPECT_TRUE(IsStillAtEdge(edge.last, edge.dir, 5, W, H)) << edge.dir;
        EXPECT_FALSE(IsStillAtEdge(edge.first, edge.dir, 5, W, H)) << edge.dir;
    }
    EXPECT_FALSE(IsStillAtEdge({0, 0}, DIR_NONE, 5, W, H));
}

} // namespace
