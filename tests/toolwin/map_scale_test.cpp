#include "toolwin/map_scale.h"

#include "support/quorl_test.h"

#include <climits>

const RECT MAP{0, 0, 200, 75};
const RECT QUORL{0, 0, 4096, 1536};

TEST(MapScale, ScalesTheSizeOnItsOwnAndTruncatesTowardZero) {
    const RECT window{103, 60, 624, 445}; // its far corner by itself would come to (80, 21)
    EXPECT_EQ(WindowBox(window, MAP, {1035, 0, 2059, 768}, QUORL), Rect(55, 2, 80, 20));
    EXPECT_EQ(RegionBox({-40, 30}, MAP, QUORL, 1024, 768), Rect(-1, 1, 49, 38)) << "one screen in size";
}

TEST(MapScale, NumbersFromAnEditedFileGiveSomeBox) {
    EXPECT_EQ(RegionBox({100, 50}, MAP, {}, 1024, 768), RECT{});
    const RECT widest{INT_MIN, INT_MAX, INT_MAX, INT_MIN};
    EXPECT_EQ(ViewBox(MAP, widest, {0, 0, -1, -1}).right, 200) << "a width of -1, wrapped at 32 bits";
}
