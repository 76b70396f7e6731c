// The regions in their table, and what their rows and hotkeys do.
#include "regions/region_table.h"

#include "actions/dispatch.h"
#include "support/quorl_test.h"

namespace {

class Regions : public RunningQuorl {};

constexpr int GO_TO = 3, UNMARK = 50, UNMARK_ALL = 51, NEXT = 36, PREVIOUS = 37; // rows

void PressDigit(UINT digit) {
    PressCombination(MOD_ALT | MOD_CONTROL | MOD_SHIFT, digit);
    Settle();
}

TEST_F(Regions, APointBelongsToTheHighestRowThatHoldsItEdgesIncluded) {
    const auto nameAt = [](int x, int y) {
        char name[33] = "-";
        FindRegionAt(x, y, name, nullptr, nullptr);
        return std::string(name);
    };
    Mark("a", 0, 0);
    Mark("0123456789012345678901234567890123456789", 1024, 0);
    EXPECT_EQ(nameAt(1023, 768), "a");
    EXPECT_EQ(nameAt(1024, 768), "01234567890123456789012345678901");
    EXPECT_EQ(nameAt(2049, 0) + nameAt(-1, 0) + nameAt(0, 769) + nameAt(0, -1), "----");
}

TEST_F(Regions, SteppingGoesRoundThemBothWays) {
    Command(NEXT);
    EXPECT_EQ(Desk.beeps.size(), 1u) << "there are none";
    Mark("region", 1024, 0);
    Mark("region", 2048, 0);
    Mark("region", 100, 700); // it holds a corner of the first one too
    std::vector<LONG> lefts;  // from outside all of them first, whichever the direction
    for (const int row : {PREVIOUS, PREVIOUS, PREVIOUS, NEXT, NEXT, NEXT, PREVIOUS}) {
        Command(row);
        lefts.push_back(VDesk.left);
    }
    EXPECT_EQ(lefts, (std::vector<LONG>{1024, 100, 2048, 100, 1024, 2048, 1024}));
}

TEST_F(Regions, TheFirstTenRowsGetADigitThatJumpsThereAndOutlivesThem) {
    for (int row = 0; row < 12; ++row)
        Mark("region", 100 * row, 300);
    RegisterRegionKeys(MainWnd);
    PressDigit('0');
    EXPECT_EQ(ViewCorner(), (POINT{0, 300}));
    PressDigit('9');
    EXPECT_EQ(ViewCorner(), (POINT{900, 300}));
    Command(UNMARK_ALL);
    EXPECT_EQ(num_regions, 0);
    PressDigit('9');
    EXPECT_EQ(ViewCorner(), (POINT{0, 0})) << "the desktop's corner";
}

TEST_F(Regions, APointOfTheMapJumpsToTheRegionUnderItAndWhatIsNoRegionLeavesTheView) {
    Mark("region", 2048, 768); // the map is 200 by 100 pixels of 4096 by 1536
    const auto goTo = [](int x, int y) {
        ActionPoint point{x, y};
        return DoAction(MainWnd, GO_TO, &point);
    };
    EXPECT_EQ(goTo(120, 60), 1);
    EXPECT_EQ(goTo(10, 10) + goTo(-1, -1) + goTo(MAX_REGIONS, -1), 0);
    EXPECT_EQ(DoAction(MainWnd, FIRST_REGION_ID + MAX_REGIONS, nullptr), 0);
    EXPECT_EQ(ViewCorner(), (POINT{2048, 768}));
}

TEST_F(Regions, OnlyAViewExactlyAtACornerUnmarksAndLaterRowsMoveUp) {
    for (const char* name : {"a", "b", "c"})
        Mark(name, 0, 0);
    Mark("d", 9, 9);
    RegionTable[0].left = 5;
    Command(UNMARK);
    std::string names;
    for (int row = 0; row < num_regions; ++row)
        names += RegionTable[row].name;
    EXPECT_EQ(names, "acd") << "the first of two at the same corner";
    VDesk.left = 1;
    Command(UNMARK);
    EXPECT_EQ(num_regions, 3) << "inside is not enough";
}

} // namespace
