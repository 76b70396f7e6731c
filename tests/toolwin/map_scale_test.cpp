#include "toolwin/map_scale.h"

#include "support/quorl_test.h"

#include <climits>

const RECT MAP{0, 0, 200, 75};
const RECT QUORL{0, 0, 4096, 1536};
const RECT VDESK{1024, 0, 2048, 768};

TEST(MapScale, ScalesTheSizeOnItsOwnAndTruncatesTowardZero) {
    const RECT window{103, 60, 624, 445}; // its far corner by itself would come to (80, 21)
    EXPECT_EQ(WindowBox(window, MAP, {1035, 0, 2059, 768}, QUORL), Rect(55, 2, 80, 20));
    EXPECT_EQ(WindowBox({-1500, -30, -1000, 470}, MAP, VDESK, QUORL), Rect(-23, -1, 1, 23));
    EXPECT_EQ(RegionBox({-40, 30}, MAP, QUORL, 1024, 768), Rect(-1, 1, 49, 38)) << "one screen in size";
}

TEST(MapScale, NumbersFromAnEditedFileGiveSomeBox) {
    const RECT nothing{};
    EXPECT_EQ(WindowBox({100, 50, 612, 434}, MAP, VDESK, nothing), nothing);
    EXPECT_EQ(WindowBox({100, 50, 612, 434}, nothing, VDESK, QUORL), nothing);
    const RECT widest{INT_MIN, INT_MAX, INT_MAX, INT_MIN};
    EXPECT_EQ(ViewBox(MAP, widest, {0, 0, -1, -1}).right, 200) << "a width of -1, wrapped at 32 bits";
}
