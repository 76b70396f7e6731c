#include "actions/neighbour_sweep.h"

#include "support/quorl_test.h"

#include <algorithm>
#include <random>
#include <vector>

namespace {

int Meets(const RECT& a, const RECT& b) {
    return std::max(a.left, b.left) < std::min(a.right, b.right) &&
           std::max(a.top, b.top) < std::min(a.bottom, b.bottom);
}

RECT FirstStrip(RECT side, SweepDirection direction) {
    switch (direction) {
    case SWEEP_UP: side.bottom = side.top + 1; break;
    case SWEEP_DOWN: side.top = side.bottom - 1; break;
    case SWEEP_LEFT: side.right = side.left + 1; break;
    case SWEEP_RIGHT: side.left = side.right - 1; break;
    }
    return side;
}

void Move(RECT* strip, SweepDirection direction) {
    const int step = direction == SWEEP_UP || direction == SWEEP_LEFT ? -1 : 1;
    if (direction == SWEEP_UP || direction == SWEEP_DOWN) {
        strip->top += step;
        strip->bottom += step;
    } else {
        strip->left += step;
        strip->right += step;
    }
}

int HasLeft(const RECT& strip, const Sweep& sweep) {
    switch (sweep.direction) {
    case SWEEP_UP: return sweep.vdesk.top + strip.top < 0;
    case SWEEP_DOWN: return sweep.vdesk.top + strip.top > sweep.quorl.bottom;
    case SWEEP_LEFT: return sweep.vdesk.left + strip.left < 0;
    case SWEEP_RIGHT: return sweep.vdesk.left + strip.right > sweep.quorl.right;
    }
    return 1;
}

// The sweep as it is thought of: pixel by pixel.
int PlainNeighbour(const Sweep& sweep) {
    RECT strip = FirstStrip(sweep.start, sweep.direction);
    int found = -1;
    for (int bStop = sweep.count == 0; !bStop;)
        for (int place = 0; place < sweep.count; ++place) {
            if (Meets(strip, sweep.windows[place])) {
                found = place;
                bStop = 1;
                continue;
            }
            Move(&strip, sweep.direction);
            bStop |= HasLeft(strip, sweep);
        }
    return found;
}

TEST(NeighbourSweep, GivesWhatAPixelByPixelSweepGives) {
    std::mt19937 random(20); // always the same layouts
    const auto upTo = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    const SweepDirection directions[] = {SWEEP_UP, SWEEP_DOWN, SWEEP_LEFT, SWEEP_RIGHT};
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
        const Sweep sweep{directions[layout % 4],           start, windows.data(),
                          static_cast<int>(windows.size()), vdesk, quorl};
        const int expected = PlainNeighbour(sweep);
        ASSERT_EQ(FindNeighbour(sweep), expected) << "layout " << layout;
        hits += expected >= 0;
    }
    EXPECT_GT(hits, 2000) << "the layouts must hold neighbours";
}

TEST(NeighbourSweep, IsBoundedWhateverTheDesktopsSize) {
    const int far = 0x7fffffff;
    const RECT windows[] = {
        {far - 10, 0,  far, 10},
        {5,        20, 9,   30}
    };
    const Sweep sweep{
        SWEEP_RIGHT, {0, 0, 4,   10 },
         windows, 2, {0, 0, 0,   0  },
         {0, 0, far, far}
    };

    EXPECT_EQ(FindNeighbour(sweep), 0);
}

TEST(NeighbourSweep, StartsAtTheSideOfTheScreenThatItLeaves) {
    const RECT screen{0, 0, 1024, 768};
    EXPECT_EQ(FoldedToFarSide(screen, SWEEP_UP), Rect(0, 768, 1024, 768));
    EXPECT_EQ(FoldedToFarSide(screen, SWEEP_DOWN), Rect(0, 0, 1024, 0));
    EXPECT_EQ(FoldedToFarSide(screen, SWEEP_LEFT), Rect(1024, 0, 1024, 768));
    EXPECT_EQ(FoldedToFarSide(screen, SWEEP_RIGHT), Rect(0, 0, 0, 768));
}

} // namespace
