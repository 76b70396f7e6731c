#include "toolwin/map_scale.h"

#include "support/quorl_test.h"

TEST(MapScale, ScalesTheSizeOnItsOwnAndTruncatesTowardZero) {
    const RECT map{0, 0, 200, 75};
    const RECT quorl{0, 0, 4096, 1536};
    const RECT window{103, 60, 624, 445}; // its far corner by itself would come to (80, 21)
    EXPECT_EQ(WindowBox(window, map, {1035, 0, 2059, 768}, quorl), Rect(55, 2, 80, 20));
    EXPECT_EQ(RegionBox({-40, 30}, map, quorl, 1024, 768), Rect(-1, 1, 49, 38)) << "one screen in size";
    EXPECT_EQ(RegionBox({-40, 30}, map, {}, 1024, 768), RECT{}) << "a desktop of nothing";
}
