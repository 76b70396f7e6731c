#include "regions/region_table.h"

#include "actions/dispatch.h"
#include "support/quorl_test.h"

class Regions : public RunningQuorl {};

TEST_F(Regions, SteppingWrapsAroundInBothDirections) {
    RunAction(ACTION_NEXT_REGION);
    EXPECT_EQ(Desk.beeps.size(), 1U) << "there are none";
    AddRegion("region", 1024, 0);
    AddRegion("region", 2048, 0);
    AddRegion("region", 100, 700); // contains a corner of the first one too
    std::vector<LONG> lefts;       // first from outside all of them
    for (const ActionId id :
         {ACTION_PREVIOUS_REGION, ACTION_PREVIOUS_REGION, ACTION_PREVIOUS_REGION, ACTION_PREVIOUS_REGION,
          ACTION_NEXT_REGION, ACTION_NEXT_REGION, ACTION_NEXT_REGION}) {
        RunAction(id);
        lefts.push_back(VDesk.left);
    }
    EXPECT_EQ(lefts, (std::vector<LONG>{1024, 100, 2048, 1024, 2048, 100, 1024}));
}

TEST_F(Regions, TheFirstTenHaveDigitsThatOutliveThem) {
    for (int i = 0; i < 12; ++i)
        AddRegion("region", 100 * i, 300);
    RegisterRegionKeys();
    const auto viewAfterNine = [] {
        PressHotkey(MOD_ALT | MOD_CONTROL | MOD_SHIFT, '9');
        HandleMessages();
        return ViewCorner();
    };
    EXPECT_EQ(viewAfterNine(), (POINT{900, 300}));
    RunAction(ACTION_UNMARK_ALL_REGIONS);
    EXPECT_EQ(num_regions, 0);
    EXPECT_EQ(viewAfterNine(), (POINT{0, 0}));
}

TEST_F(Regions, AJumpNeedsARegion) {
    AddRegion("region", 2048, 768); // the map is 200 by 100 pixels of 4096 by 1536
    DoAction(MainWnd, ACTION_VIEW_TO_REGION, nullptr, {120, 60});
    EXPECT_EQ(ViewCorner(), (POINT{2048, 768}));
    DoAction(MainWnd, ACTION_VIEW_TO_REGION, nullptr, {10, 10});
    DoAction(MainWnd, FIRST_REGION_ID + MAX_REGIONS, nullptr);
    DoAction(MainWnd, FIRST_REGION_ID - 1, nullptr);
    EXPECT_EQ(ViewCorner(), (POINT{2048, 768}));
}

TEST_F(Regions, UnmarkRemovesTheFirstRegionAtTheViewsCorner) {
    AddRegion("a", 5, 0);
    AddRegion("b", 0, 0);
    AddRegion("c", 0, 0);
    RunAction(ACTION_UNMARK_REGION);
    ASSERT_EQ(num_regions, 2);
    EXPECT_STREQ(RegionTable[1].name, "c");
    VDesk.left = 1;
    RunAction(ACTION_UNMARK_REGION);
    EXPECT_EQ(num_regions, 2) << "inside is not enough";
}
