#include "regions/region_table.h"

#include "actions/dispatch.h"
#include "core/state.h"
#include "support/quorl_test.h"

#include <algorithm>
#include <cstring>

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
    Mark("c", 1500, 500);
    struct {
        int x, y, index;
    } const cases[] = {
        {0,    0,    0 },
        {1023, 768,  0 },
        {1024, 768,  1 },
        {1600, 600,  2 },
        {2524, 1268, 2 },
        {2525, 1268, -1},
        {-1,   0,    -1},
        {0,    769,  -1},
    };
    for (const auto& point : cases) {
        char name[33] = "-";
        int index = -1;
        RECT rect{};
        EXPECT_EQ(FindRegionAt(point.x, point.y, name, &index, &rect), point.index >= 0);
        EXPECT_EQ(index, point.index) << point.x << ", " << point.y;
        EXPECT_STREQ(name, point.index < 0 ? "-" : RegionTable[point.index].name);
        EXPECT_EQ(rect.left, point.index < 0 ? 0 : RegionTable[point.index].left);
    }
}

TEST_F(Regions, ALongNameIsCutToTheRoomOfTheCaller) {
    Mark("0123456789012345678901234567890123456789", 0, 0);
    char name[34];
    std::memset(name, '#', sizeof name);
    ASSERT_EQ(FindRegionAt(0, 0, name, nullptr, nullptr), 1);
    EXPECT_STREQ(name, "01234567890123456789012345678901");
    EXPECT_EQ(name[33], '#');
}

TEST_F(Regions, OnlyTheFirstTenRowsGetADigitAndEachOtherRowCostsABeep) {
    for (int row = 0; row < 12; ++row)
        Mark("r", row, 0);
    Desk.beeps.clear();

    EXPECT_EQ(RegisterRegionKeys(MainWnd), 0);
    EXPECT_EQ(Desk.beeps.size(), 2u);
    EXPECT_EQ(std::count_if(Desk.hotkeys.begin(), Desk.hotkeys.end(),
                            [](const DeskHotkey& key) { return key.id >= FIRST_REGION_ID; }),
              10);

    num_regions = 10;
    EXPECT_EQ(RegisterRegionKeys(MainWnd), 1) << "the old ones are released first";
    EXPECT_EQ(Desk.beeps.size(), 2u);
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

TEST_F(Regions, AFullTableIsEmptiedFromEitherEnd) {
    for (int row = 0; row < MAX_REGIONS; ++row)
        Mark("r", row * 10, 0);
    EXPECT_EQ(RemoveRegion(MainWnd, MAX_REGIONS - 1), 1);
    EXPECT_EQ(RemoveRegion(MainWnd, 0), 1);
    EXPECT_EQ(num_regions, MAX_REGIONS - 2);
    EXPECT_EQ(RegionTable[num_regions - 1].left, (MAX_REGIONS - 2) * 10);
}

TEST_F(Regions, UnmarkingAllEmptiesTheRowsAndKeepsTheirColours) {
    Mark("a", 5, 5);
    RegionTable[0].color = 0xff;
    EXPECT_EQ(ClearRegions(MainWnd), 1);
    EXPECT_EQ(num_regions, 0);
    EXPECT_STREQ(RegionTable[0].name, "");
    EXPECT_EQ(RegionTable[0].bottom, -1);
    EXPECT_EQ(RegionTable[0].color, 0xffu);
}

} // namespace
