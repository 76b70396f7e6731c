#include "actions/neighbour_sweep.h"

#include "support/quorl_test.h"

#include <algorithm>
#include <random>

namespace {

int Meets(const RECT& a, const RECT& b) {
    return std::max(a.left, b.left) < std::min(a.right, b.right) &&
           std::max(a.top, b.top) < std::min(a.bottom, b.bottom);
}

int HasLeft(const RECT& strip, const Sweep& sweep) {
    switch (sweep.direction) {
    case SWEEP_UP: return sweep.vdesk.top + strip.top < 0;
    case SWEEP_DOWN: return sweep.vdesk.top + strip.top > sweep.quorl.bottom;
    case SWEEP_LEFT: return sweep.vdesk.left + strip.left < 0;
    default: return sweep.vdesk.left + strip.right > sweep.quorl.right;
    }
}

// The sweep as it is thought of: pixel by pixel.
int PlainNeighbour(const Sweep& sweep, RECT strip, POINT move) {
    int found = -1;
    for (int bStop = sweep.count == 0; !bStop;)
        for (int place = 0; place < sweep.count; ++place) {
            if (Meets(strip, sweep.windows[place])) {
                found = place;
                bStop = 1;
                continue;
            }
            strip = Moved(strip, move.x, move.y);
            bStop |= HasLeft(strip, sweep);
        }
    return found;
}

TEST(NeighbourSweep, GivesWhatAPixelByPixelSweepGives) {
    const struct {
        SweepDirection direction;
        RECT strip; // at that side of a rectangle of 40 by 20
        POINT move;
    } ways[] = {
        {SWEEP_UP,    {0, 0, 40, 1},   {0, -1}},
        {SWEEP_DOWN,  {0, 19, 40, 20}, {0, 1} },
        {SWEEP_LEFT,  {0, 0, 1, 20},   {-1, 0}},
        {SWEEP_RIGHT, {39, 0, 40, 20}, {1, 0} },
    };
    std::mt19937 random(20); // always the same layouts
    const auto upTo = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    int hits = 0;
    for (int layout = 0; layout < 20000; ++layout) {
        const auto& [direction, strip, move] = ways[layout % 4];
        const int x = upTo(200) - 100;
        const int y = upTo(100) - 50;
        std::vector<RECT> windows(static_cast<std::size_t>(upTo(8)));
        for (RECT& window : windows) // some without an area
            window = Moved({0, 0, upTo(40), upTo(40)}, upTo(500) - 250, upTo(300) - 150);
        const Sweep sweep{
            direction,
            Moved({0,         0,         40,              20             },
            x, y),
            windows.data(),
            static_cast<int>(windows.size()),
            {upTo(200), upTo(100), 0,               0              },
            {0,         0,         100 + upTo(300), 100 + upTo(200)}
        };
        const int expected = PlainNeighbour(sweep, Moved(strip, x, y), move);
        ASSERT_EQ(FindNeighbour(sweep), expected) << "layout " << layout;
        hits += expected >= 0;
    }
    EXPECT_GT(hits, 2000) << "the layouts must hold neighbours";
}

TEST(NeighbourSweep, StartsAtTheSideOfTheScreenThatItLeaves) {
    EXPECT_EQ(FoldedToFarSide({0, 0, 10, 8}, SWEEP_UP), Rect(0, 8, 10, 8));
    EXPECT_EQ(FoldedToFarSide({0, 0, 10, 8}, SWEEP_DOWN), Rect(0, 0, 10, 0));
    EXPECT_EQ(FoldedToFarSide({0, 0, 10, 8}, SWEEP_LEFT), Rect(10, 0, 10, 8));
    EXPECT_EQ(FoldedToFarSide({0, 0, 10, 8}, SWEEP_RIGHT), Rect(0, 0, 0, 8));
}

} // namespace
