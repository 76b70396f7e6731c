#include "mouse/edge_scroll.h"

#include "core/steps.h"
#include "support/quorl_test.h"

TEST(EdgeStep, MovesTheViewAndTheCursorByTheScrollType) {
    ResetOptions();
    using Step = std::vector<LONG>;
    const auto step = [](POINT cursor, int type) {
        Options.mousescroll_type = type;
        const EdgeStep edge = EdgeStepAt({cursor.x - 200, cursor.y - 100}, Options, {2048, 800, 3072, 1568},
                                         {-200, -100, 824, 668}); // left of the primary display and above
        return Step{edge.dir, edge.view.x, edge.view.y, edge.landing.x + 200, edge.landing.y + 100};
    };
    EXPECT_EQ(step({1020, 766}, 3), (Step{DIR_RIGHT, 3072, 800, 15, 766})) << "a corner";
    EXPECT_EQ(step({4, 300}, 3), (Step{DIR_LEFT, 1024, 800, 1009, 300}));
    EXPECT_EQ(step({500, 764}, 1), (Step{DIR_DOWN, 2048, 900, 500, 683}));
    EXPECT_EQ(step({500, 4}, 2), (Step{DIR_UP, 2048, 0, 500, 785})) << "lands off the screen";
    EXPECT_EQ(step({1022, 300}, 0), (Step{DIR_RIGHT, 2053, 800, 1034, 300}));
    EXPECT_EQ(step({1022, 300}, 4), (Step{DIR_RIGHT, 2058, 800, 1029, 300})) << "no such type";
    EXPECT_EQ(step({1019, 763}, 3), (Step{DIR_NONE, 2048, 800, 1019, 763}));
    EXPECT_EQ(step({5, 5}, 3), (Step{DIR_NONE, 2048, 800, 5, 5}));
}
