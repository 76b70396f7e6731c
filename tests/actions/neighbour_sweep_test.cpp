#include "actions/neighbour_sweep.h"

#include "support/quorl_test.h"

TEST(NeighbourSweep, FindsTheNearestOneUpToTheDesktopsEdge) {
    const struct {
        SweepDirection direction;
        std::vector<RECT> windows; // around `start`
        int found;
    } cases[] = {
        {SWEEP_UP,    {{139, -30, 150, -29}},                             0 },
        {SWEEP_UP,    {{139, -31, 150, -30}},                             -1}, // off the desktop
        {SWEEP_UP,    {{140, 0, 150, 50}},                                -1}, // aside
        {SWEEP_DOWN,  {{90, 270, 101, 271}},                              0 },
        {SWEEP_DOWN,  {{90, 271, 101, 272}},                              -1},
        {SWEEP_LEFT,  {{-50, 119, -49, 150}},                             0 },
        {SWEEP_LEFT,  {{-51, 119, -50, 150}},                             -1},
        {SWEEP_LEFT,  {{0, 120, 50, 150}},                                -1},
        {SWEEP_RIGHT, {{349, 90, 350, 101}},                              0 },
        {SWEEP_RIGHT, {{350, 90, 351, 101}},                              -1},
        {SWEEP_RIGHT, {{139, 100, 140, 120}},                             0 }, // from the outermost pixel on
        {SWEEP_DOWN,  {{100, 119, 140, 120}},                             0 },
        {SWEEP_DOWN,  {{100, 110, 140, 119}},                             -1},
        {SWEEP_DOWN,  {{100, 150, 140, 200}, {100, 130, 140, 140}},       1 },
        {SWEEP_DOWN,  {{0, 0, 1, 1}, {0, 0, 1, 1}, {100, 123, 140, 125}}, 2 },
        {SWEEP_DOWN,  {{0, 0, 1, 1}, {0, 0, 1, 1}, {100, 125, 140, 126}}, -1}, // stepped over
        {SWEEP_DOWN,  {{100, 121, 140, 122}, {100, 121, 140, 122}},       1 }, // a later hit of the same turn
        {SWEEP_DOWN,  {},                                                 -1},
    };
    const RECT start{100, 100, 140, 120};
    const RECT vdesk{50, 30, 0, 0};
    const RECT quorl{0, 0, 400, 300};
    for (const auto& [direction, windows, found] : cases) {
        const Sweep sweep{direction, start, windows.data(), static_cast<int>(windows.size()), vdesk, quorl};
        EXPECT_EQ(FindNeighbour(sweep), found) << testing::PrintToString(windows) << " going " << direction;
    }
}

TEST(NeighbourSweep, StartsAtTheSideOfTheScreenThatItLeaves) {
    EXPECT_EQ(FoldedToFarSide({0, 0, 10, 8}, SWEEP_UP), Rect(0, 8, 10, 8));
    EXPECT_EQ(FoldedToFarSide({0, 0, 10, 8}, SWEEP_DOWN), Rect(0, 0, 10, 0));
    EXPECT_EQ(FoldedToFarSide({0, 0, 10, 8}, SWEEP_LEFT), Rect(10, 0, 10, 8));
    EXPECT_EQ(FoldedToFarSide({0, 0, 10, 8}, SWEEP_RIGHT), Rect(0, 0, 0, 8));
}
