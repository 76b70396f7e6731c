#include "commands/neighbour_sweep.h"

#include "support/quorl_test.h"

#include <random>

namespace {

// The strip's pixels after so many moves.
RECT StripAfter(int moves, const RECT& start, Direction direction) {
    switch (direction) {
    case DIR_UP: return {start.left, start.top - moves, start.right, start.top - moves + 1};
    case DIR_DOWN: return {start.left, start.bottom + moves - 1, start.right, start.bottom + moves};
    case DIR_LEFT: return {start.left - moves, start.top, start.left - moves + 1, start.bottom};
    default: return {start.right + moves - 1, start.top, start.right + moves, start.bottom};
    }
}

bool HasLeft(const RECT& strip, const Sweep& sweep) {
    switch (sweep.direction) {
    case DIR_UP: return sweep.vdesk.top + strip.top < 0;
    case DIR_DOWN: return sweep.vdesk.top + strip.top > sweep.quorl.bottom;
    case DIR_LEFT: return sweep.vdesk.left + strip.left < 0;
    default: return sweep.vdesk.left + strip.right > sweep.quorl.right;
    }
}

int SweepPixelByPixel(const Sweep& sweep) {
    int moves = 0, found = -1;
    for (bool bStop = sweep.count == 0; !bStop;)
        for (int index = 0; index < sweep.count; ++index) {
            RECT shared{};
            const RECT strip = StripAfter(moves, sweep.start, sweep.direction);
            if (IntersectRect(&shared, &strip, &sweep.windows[index])) {
                found = index;
                bStop = true;
            } else {
                bStop |= HasLeft(StripAfter(++moves, sweep.start, sweep.direction), sweep);
            }
        }
    return found;
}

TEST(NeighbourSweep, FindsWhatASweepPixelByPixelFinds) {
    static const Direction directions[] = {DIR_UP, DIR_DOWN, DIR_LEFT, DIR_RIGHT};
    std::mt19937 random(20); // the same layouts in every run
    const auto between = [&](int from, int to) {
        return from + static_cast<int>(random() % static_cast<unsigned>(to - from));
    };
    int hits = 0;
    for (int layout = 0; layout < 20000; ++layout) {
        const RECT vdesk{between(0, 200), between(0, 100), 0, 0};
        const RECT quorl{0, 0, between(100, 400), between(100, 300)};
        RECT windows[8];
        for (RECT& window : windows) {
            const int left = between(-250, 250), top = between(-150, 150);
            window = {left, top, between(left, left + 40), between(top, top + 40)}; // some are empty
        }
        const RECT start{between(-100, 100), between(-50, 50), 110, 60};
        const Sweep sweep{directions[layout % 4], start, windows, between(0, 8), vdesk, quorl};
        const int expected = SweepPixelByPixel(sweep);
        ASSERT_EQ(FindNeighbour(sweep), expected) << "layout " << layout;
        hits += expected >= 0;
    }
    EXPECT_GT(hits, 2000) << "too few layouts have neighbours";
}

} // namespace
