#include "regions/region_rows.h"

#include "core/state.h"
#include "regions/region_table.h"
#include "support/quorl_test.h"

namespace {

class RegionRows : public RunningQuorl {};

POINT View() {
    return {VDesk.left, VDesk.top};
}

int IsView(int left, int top) {
    return VDesk.left == left && VDesk.top == top;
}

TEST_F(RegionRows, SteppingGoesRoundTheRegionsBothWays) {
    Mark("region", 1024, 0);
    Mark("region", 2048, 0);
    Mark("region", 100, 700);
    struct {
        int row, left, top;
    } const steps[] = {
        {37, 1024, 0  }, // from outside all of them, whichever the direction
        {37, 100,  700},
        {37, 2048, 0  },
        {36, 100,  700},
        {36, 1024, 0  },
        {36, 2048, 0  },
    };
    for (const auto& step : steps) {
        Command(step.row);
        EXPECT_TRUE(IsView(step.left, step.top)) << View().x << ", " << View().y;
    }
}

TEST_F(RegionRows, SteppingWithoutRegionsBeepsAndTheViewStays) {
    Command(36);
    Command(37);
    EXPECT_EQ(Desk.beeps.size(), 2u);
    EXPECT_TRUE(IsView(0, 0));
}

TEST_F(RegionRows, ADigitJumpsToItsRegion) {
    Mark("region", 0, 0);
    Mark("region", 2000, 300);
    ASSERT_EQ(RegisterRegionKeys(MainWnd), 1);

    PressCombination(MOD_ALT | MOD_CONTROL | MOD_SHIFT, '1');
    Settle();
    EXPECT_TRUE(IsView(2000, 300));

    Command(51);
    EXPECT_EQ(num_regions, 0);
    PressCombination(MOD_ALT | MOD_CONTROL | MOD_SHIFT, '1');
    Settle();
    EXPECT_TRUE(IsView(0, 0)) << "a key outlives its region and ends at the desktop's corner";
}

TEST_F(RegionRows, ANumberOutsideTheTableLeavesTheViewWhereItIs) {
    Command(5);
    for (const int row : {-1, MAX_REGIONS, 1 << 30, -(1 << 30)}) {
        ActionPoint point{row, -1};
        EXPECT_EQ(DoAction(MainWnd, 3, &point), 0) << row;
    }
    for (const int id : {NUM_ACTIONS + 1, FIRST_REGION_ID - 1, FIRST_REGION_ID + MAX_REGIONS, 0x7fffffff})
        EXPECT_EQ(DoAction(MainWnd, id, nullptr), 0) << id;
    EXPECT_TRUE(IsView(Options.minscroll, 0));
}

TEST_F(RegionRows, APointOfTheMapJumpsToTheRegionUnderItAndNowhereWhereThereIsNone) {
    Mark("region", 2048, 768); // the map is 200 by 100 pixels of 4096 by 1536
    ActionPoint inside{120, 60};
    EXPECT_EQ(DoAction(MainWnd, 3, &inside), 1);
    EXPECT_TRUE(IsView(2048, 768));
    EXPECT_EQ(inside.x, 2048);

    ActionPoint outside{10, 10};
    EXPECT_EQ(DoAction(MainWnd, 3, &outside), 0);
    EXPECT_TRUE(IsView(2048, 768));
}

} // namespace
