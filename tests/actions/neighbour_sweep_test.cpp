#include "actions/neighbour_sweep.h"

#include "support/quorl_test.h"

#include <random>

namespace {

// The sweep as it is thought of: pixel by pixel.
int PlainNeighbour(const Sweep& sweep, RECT strip, POINT move) {
    const int view = move.x ? sweep.vdesk.left : sweep.vdesk.top;
    const int size = move.x ? sweep.quorl.right : sweep.quorl.bottom;
    const LONG& edge = move.x > 0 ? strip.right : move.x < 0 ? strip.left : strip.top;
    int found = -1;
    for (int bStop = sweep.count == 0; !bStop;)
        for (int place = 0; place < sweep.count; ++place) {
            RECT shared{};
            if (IntersectRect(&shared, &strip, &sweep.windows[place])) {
                found = place;
                bStop = 1;
                continue;
            }
            strip = Moved(strip, move.x, move.y);
            bStop |= move.x + move.y < 0 ? view + edge < 0 : view + edge > size;
        }
    return found;
}

TEST(NeighbourSweep, GivesWhatAPixelByPixelSweepGives) {
    const struct {
        SweepDirection direction;
        RECT strip; // at that side of a rectangle of 40 by 20
        POINT move;
        RECT far; // side of that rectangle
    } ways[] = {
        {SWEEP_UP,    {0, 0, 40, 1},   {0, -1}, {0, 20, 40, 20}},
        {SWEEP_DOWN,  {0, 19, 40, 20}, {0, 1},  {0, 0, 40, 0}  },
        {SWEEP_LEFT,  {0, 0, 1, 20},   {-1, 0}, {40, 0, 40, 20}},
        {SWEEP_RIGHT, {39, 0, 40, 20}, {1, 0},  {0, 0, 0, 20}  },
    };
    Desk.bTrace = 0;
    std::mt19937 random(20); // always the same layouts
    const auto upTo = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
    int hits = 0;
    for (int layout = 0; layout < 4000; ++layout) {
        const auto& [direction, strip, move, far] = ways[layout % 4];
        EXPECT_EQ(FoldedToFarSide({0, 0, 40, 20}, direction), far);
        const int x = upTo(200) - 100;
        const int y = upTo(100) - 50;
        std::vector<RECT> windows(static_cast<std::size_t>(upTo(8)));
        for (RECT& window : windows) // some without an area
            window = Moved({0, 0, upTo(40), upTo(40)}, upTo(500) - 250, upTo(300) - 150);
        const RECT vdesk{upTo(200), upTo(100), 0, 0};
        const RECT quorl{0, 0, 100 + upTo(300), 100 + upTo(200)};
        const int count = static_cast<int>(windows.size());
        const Sweep sweep{direction, Moved({0, 0, 40, 20}, x, y), windows.data(), count, vdesk, quorl};
        const int expected = PlainNeighbour(sweep, Moved(strip, x, y), move);
        ASSERT_EQ(FindNeighbour(sweep), expected) << "layout " << layout;
        hits += expected >= 0;
    }
    EXPECT_GT(hits, 400) << "the layouts must hold neighbours";
}

} // namespace
