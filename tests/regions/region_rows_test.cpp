#include "actions/dispatch.h"
#include "regions/region_table.h"
#include "support/quorl_test.h"

namespace {

class RegionRows : public RunningQuorl {};

constexpr int BACK = 36, ON = 37, GO_TO = 3, UNMARK_ALL = 51; // rows

void PressDigit1() {
    PressCombination(MOD_ALT | MOD_CONTROL | MOD_SHIFT, '1');
    Settle();
}

TEST_F(RegionRows, SteppingGoesRoundTheRegionsBothWays) {
    Command(BACK);
    EXPECT_EQ(Desk.beeps.size(), 1u) << "there are none";
    EXPECT_EQ(ViewCorner(), (POINT{0, 0}));
    Mark("region", 1024, 0);
    Mark("region", 2048, 0);
    Mark("region", 100, 700);
    struct {
        int row;
        POINT view;
    } const steps[] = {
        {ON,   {1024, 0} }, // from outside all of them, whichever the direction
        {ON,   {100, 700}},
        {ON,   {2048, 0} },
        {ON,   {1024, 0} },
        {BACK, {2048, 0} },
        {BACK, {100, 700}},
        {BACK, {1024, 0} },
    };
    for (const auto& [row, view] : steps) {
        Command(row);
        EXPECT_EQ(ViewCorner(), view);
    }
}

TEST_F(RegionRows, ADigitJumpsToItsRegionAndOutlivesIt) {
    Mark("region", 0, 0);
    Mark("region", 2000, 300);
    ASSERT_EQ(RegisterRegionKeys(MainWnd), 1);
    PressDigit1();
    EXPECT_EQ(ViewCorner(), (POINT{2000, 300}));
    Command(UNMARK_ALL);
    EXPECT_EQ(num_regions, 0);
    PressDigit1();
    EXPECT_EQ(ViewCorner(), (POINT{0, 0})) << "the desktop's corner";
}

TEST_F(RegionRows, ANumberOutsideTheTableLeavesTheViewWhereItIs) {
    Command(5);
    for (const int row : {-1, MAX_REGIONS, 1 << 30, -(1 << 30)}) {
        ActionPoint point{row, -1};
        EXPECT_EQ(DoAction(MainWnd, GO_TO, &point), 0) << row;
    }
    for (const int id : {NUM_ACTIONS + 1, FIRST_REGION_ID - 1, FIRST_REGION_ID + MAX_REGIONS, 0x7fffffff})
        EXPECT_EQ(DoAction(MainWnd, id, nullptr), 0) << id;
    EXPECT_EQ(ViewCorner(), (POINT{5, 0}));
}

TEST_F(RegionRows, APointOfTheMapJumpsToTheRegionUnderItAndNowhereWhereThereIsNone) {
    Mark("region", 2048, 768); // the map is 200 by 100 pixels of 4096 by 1536
    ActionPoint inside{120, 60};
    EXPECT_EQ(DoAction(MainWnd, GO_TO, &inside), 1);
    EXPECT_EQ(ViewCorner(), (POINT{2048, 768}));
    ActionPoint outside{10, 10};
    EXPECT_EQ(DoAction(MainWnd, GO_TO, &outside), 0);
    EXPECT_EQ(ViewCorner(), (POINT{2048, 768}));
}

} // namespace
