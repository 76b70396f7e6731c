#include "commands/neighbour_sweep.h"

#include "support/quorl_test.h"

#include <random>

namespace {

// The first or last pixels of the start in the sweep's direction, after so many moves.
RECT StripAfter(int moves, const Sweep& sweep) {
    RECT strip = sweep.start;
    switch (sweep.direction) {
    case DIR_UP: strip.bottom = strip.top + 1; return Offset(strip, 0, -moves);
    case DIR_DOWN: strip.top = strip.bottom - 1; return Offset(strip, 0, moves);
    case DIR_LEFT: strip.right = strip.left + 1; return Offset(strip, -moves, 0);
    default: strip.left = strip.right - 1; return Offset(strip, moves, 0);
    }
}

bool HasLeft(const RECT& strip, const Sweep& sweep) {
    const RECT at = Offset(strip, sweep.vdesk.left, sweep.vdesk.top);
    switch (sweep.direction) {
    case DIR_UP: return at.top < 0;
    case DIR_DOWN: return at.top > sweep.quorl.bottom;
    case DIR_LEFT: return at.left < 0;
    default: return at.right > sweep.quorl.right;
    }
}

int SweepPixelByPixel(const Sweep& sweep) {
    int moves = 0, found = -1;
    for (bool bStop = sweep.count == 0; !bStop;)
        for (int index = 0; index < sweep.count; ++index) {
            RECT shared{};
            const RECT strip = StripAfter(moves, sweep);
            if (IntersectRect(&shared, &strip, &sweep.windows[index])) {
                found = index;
                bStop = true;
            } else {
                bStop |= HasLeft(StripAfter(++moves, sweep), sweep);
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
