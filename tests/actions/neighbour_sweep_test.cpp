#include "actions/neighbour_sweep.h"

#include "support/quorl_test.h"

#include <algorithm>
#include <random>

namespace {

const SweepDirection DIRECTIONS[] = {SWEEP_UP, SWEEP_DOWN, SWEEP_LEFT, SWEEP_RIGHT};

int Meets(const RECT& a, const RECT& b) {
    return std::max(a.left, b.left) < std::min(a.right, b.right) &&
           std::max(a.top, b.top) < std::min(a.bottom, b.bottom);
}

// Where a strip of one pixel at the side of `start` has come after so many moves.
RECT StripAfter(int moves, const RECT& start, SweepDirection direction) {
    switch (direction) {
    case SWEEP_UP: return {start.left, start.top - moves, start.right, start.top - moves + 1};
    case SWEEP_DOWN: return {start.left, start.bottom + moves - 1, start.right, start.bottom + moves};
    case SWEEP_LEFT: return {start.left - moves, start.top, start.left - moves + 1, start.bottom};
    default: return {start.right + moves - 1, start.top, start.right + moves, start.bottom};
    }
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
int PlainNeighbour(const Sweep& sweep) {
    int moves = 0;
    int found = -1;
    for (int bStop = sweep.count == 0; !bStop;)
        for (int place = 0; place < sweep.count; ++place) {
            if (Meets(StripAfter(moves, sweep.start, sweep.direction), sweep.windows[place])) {
                found = place;
                bStop = 1;
                continue;
            }
            bStop |= HasLeft(StripAfter(++moves, sweep.start, sweep.direction), sweep);
        }
    return found;
}

TEST(NeighbourSweep, GivesWhatAPixelByPixelSweepGives) {
    std::mt19937 random(20); // always the same layouts
    const auto upTo = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    int hits = 0;
    for (int layout = 0; layout < 20000; ++layout) {
        const RECT vdesk{upTo(200), upTo(100), 0, 0};
        const RECT quorl{0, 0, 100 + upTo(300), 100 + upTo(200)};
        std::vector<RECT> windows(static_cast<std::size_t>(upTo(8)));
        for (RECT& window : windows) {
            window.left = upTo(500) - 250;
            window.top = upTo(300) - 150;
            window.right = window.left + upTo(40); // some without an area
            window.bottom = window.top + upTo(40);
        }
        const RECT start{upTo(200) - 100, upTo(100) - 50, 110, 60};
        const int count = static_cast<int>(windows.size());
        const Sweep sweep{DIRECTIONS[layout % 4], start, windows.data(), count, vdesk, quorl};
        const int expected = PlainNeighbour(sweep);
        ASSERT_EQ(FindNeighbour(sweep), expected) << "layout " << layout;
        hits += expected >= 0;
    }
    EXPECT_GT(hits, 2000) << "the layouts must hold neighbours";
}

TEST(NeighbourSweep, StartsAtTheSideOfTheScreenThatItLeaves) {
    const RECT sides[] = {Rect(0, 8, 10, 8), Rect(0, 0, 10, 0), Rect(10, 0, 10, 8), Rect(0, 0, 0, 8)};
    for (int way = 0; way < 4; ++way)
        EXPECT_EQ(FoldedToFarSide({0, 0, 10, 8}, DIRECTIONS[way]), sides[way]) << way;
}

} // namespace
