#include "regions/region_table.h"

#include "actions/dispatch.h"
#include "support/quorl_test.h"

#include <algorithm>

namespace {

class Regions : public RunningQuorl {};

std::string NamesOfRegions() {
    std::string names;
    for (int row = 0; row < num_regions; ++row)
        names += RegionTable[row].name;
    return names;
}

TEST_F(Regions, APointBelongsToTheHighestRowThatHoldsItEdgesIncluded) {
    EXPECT_EQ(FindRegionAt(0, 0, nullptr, nullptr, nullptr), 0) << "there are none";
    Mark("a", 0, 0);
    Mark("b", 1024, 0);
    Mark("0123456789012345678901234567890123456789", 1500, 500);
    struct {
        int x, y, index;
        const char* name;
        LONG left;
    } const cases[] = {
        {1023, 768,  0,  "a",                                0   },
        {1024, 768,  1,  "b",                                1024},
        {1600, 600,  2,  "01234567890123456789012345678901", 1500},
        {2524, 1268, 2,  "01234567890123456789012345678901", 1500},
        {2525, 1268, -1, "-",                                -9  },
        {-1,   0,    -1, "-",                                -9  },
        {0,    769,  -1, "-",                                -9  },
        {0,    -1,   -1, "-",                                -9  },
    };
    for (const auto& point : cases) {
        char name[] = "-\0################################"; // room for 33 bytes, and one behind
        int index = -1;
        RECT rect{-9, 0, 0, 0};
        EXPECT_EQ(FindRegionAt(point.x, point.y, name, &index, &rect), point.index >= 0);
        EXPECT_EQ(index, point.index) << point.x << ", " << point.y;
        EXPECT_STREQ(name, point.name);
        EXPECT_EQ(name[33], '#');
        EXPECT_EQ(rect.left, point.left);
    }
}

TEST_F(Regions, OnlyTheFirstTenRowsGetADigitAndEachOtherRowCostsABeep) {
    for (int row = 0; row < 12; ++row)
        Mark("r", row, 0);
    EXPECT_EQ(RegisterRegionKeys(MainWnd), 0);
    EXPECT_EQ(Desk.beeps, (std::vector<UINT>{0, 0}));
    EXPECT_EQ(std::count_if(Desk.hotkeys.begin(), Desk.hotkeys.end(),
                            [](const DeskHotkey& key) { return key.id >= FIRST_REGION_ID; }),
              10);
    num_regions = 10;
    EXPECT_EQ(RegisterRegionKeys(MainWnd), 1) << "the old ones are released first";
}

TEST_F(Regions, OnlyAViewExactlyAtACornerUnmarksAndLaterRowsMoveUp) {
    Mark("a", 5, 5);
    Mark("b", 0, 0);
    Mark("c", 0, 0);
    Mark("d", 9, 9);
    Command(50);
    EXPECT_EQ(NamesOfRegions(), "acd") << "the first of two at the same corner";
    EXPECT_EQ(RemoveRegion(MainWnd, 2), 1);
    EXPECT_EQ(NamesOfRegions(), "ac");
    VDesk.left = 1;
    Desk.trace.clear();
    EXPECT_EQ(RemoveRegion(MainWnd, -1), 0) << "inside is not enough";
    EXPECT_EQ(RemoveRegion(MainWnd, MAX_REGIONS), 0);
    EXPECT_EQ(NamesOfRegions(), "ac");
    EXPECT_EQ(CallsOf("UpdateWindow"), 2) << "the map is repainted all the same";
}

TEST_F(Regions, AFullTableIsEmptiedFromEitherEndOrAtOnce) {
    for (int row = 0; row < MAX_REGIONS; ++row)
        Mark("r", row * 10, 0);
    EXPECT_EQ(RemoveRegion(MainWnd, MAX_REGIONS - 1), 1);
    EXPECT_EQ(RemoveRegion(MainWnd, 0), 1);
    EXPECT_EQ(num_regions, MAX_REGIONS - 2);
    EXPECT_EQ(RegionTable[num_regions - 1].left, (MAX_REGIONS - 2) * 10);

    RegionTable[0].color = 0xff;
    EXPECT_EQ(ClearRegions(MainWnd), 1);
    EXPECT_EQ(num_regions, 0);
    EXPECT_STREQ(RegionTable[0].name, "");
    EXPECT_EQ(RegionTable[0].bottom, -1);
    EXPECT_EQ(RegionTable[0].color, 0xffu) << "kept";
}

} // namespace
