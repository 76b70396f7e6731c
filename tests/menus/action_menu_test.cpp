#include "menus/action_menu.h"

#include "actions/dispatch.h"
#include "menus/entries.h"
#include "support/quorl_test.h"
#include "toolwin/tip.h"

#include <algorithm>

namespace {

using Lines = std::vector<std::string>;

class ActionMenu : public RunningQuorl {};

// As the user sees it: a check mark, a line, an arrow.
Lines LinesOf(HMENU menu) {
    Lines lines;
    for (const DeskMenuItem& item : MenuOf(menu).items)
        lines.push_back((item.state & MFS_CHECKED ? "* " : "") +
                        (item.type & MFT_SEPARATOR ? "--" : item.text) + (item.submenu ? " >" : ""));
    return lines;
}

// The user opens the menu and chooses; 0 is nothing. The menu that was on show.
HMENU Choose(UINT id) {
    Desk.choices = {id};
    PressCombination(MOD_CONTROL | MOD_ALT | MOD_SHIFT, VK_SPACE);
    Settle();
    return Desk.shownMenus.back().menu;
}

int LivingMenus() {
    return static_cast<int>(
        std::count_if(Desk.menus.begin(), Desk.menus.end(), [](const DeskMenu& menu) { return menu.bLive; }));
}

TEST_F(ActionMenu, ANewUserFindsTenEntriesAtTheCursor) {
    Desk.cursor = {300, 200};
    EXPECT_EQ(LinesOf(Choose(0)),
              (Lines{"Options...", "Define Actions...", "Customize Menu...", "* Show Quorl Toolwin",
                     "Mark Current Region...", "--", "Help...", "About...", "--", "Exit"}));
    EXPECT_EQ(Desk.shownMenus.back().at, (POINT{300, 200}));
    EXPECT_EQ(GetForegroundWindow(), MainWnd) << "else a click elsewhere would not close it";
    EXPECT_EQ(LivingMenus(), 0);
}

TEST_F(ActionMenu, AChoiceRunsItsRowAndTheMenuTellsTheNewValueNextTime) {
    SetMenu({30, 70, -2});
    Choose(30);
    EXPECT_EQ(VDesk.left, 1024);
    ASSERT_TRUE(IsWindowVisible(TipWnd));
    EXPECT_EQ(LinesOf(Choose(70))[1], "* Toggle Tooltip");
    EXPECT_FALSE(IsWindowVisible(TipWnd)) << "the strip gives way to the menu";
    EXPECT_EQ(LinesOf(Choose(0)), (Lines{"Move one desktop to the right", "Toggle Tooltip", "--"}));
    EXPECT_EQ(VDesk.left, 1024) << "nothing was chosen";
}

TEST_F(ActionMenu, TheRegionsHangBelowTheEntriesAndAChoiceJumps) {
    for (int region = 0; region < 11; ++region)
        Mark("r" + std::to_string(region), 100 * region, 0);
    const HMENU menu = Choose(FIRST_REGION_ID + 10);
    EXPECT_EQ(VDesk.left, 1000);
    EXPECT_EQ(LinesOf(menu).back(), "View Region >");
    EXPECT_EQ(LinesOf(MenuOf(menu).items.back().submenu),
              (Lines{"&0 r0", "&1 r1", "&2 r2", "&3 r3", "&4 r4", "&5 r5", "&6 r6", "&7 r7", "&8 r8", "&9 r9",
                     "&0 r10"}));
}

TEST_F(ActionMenu, AnAmpersandInARegionsNameIsSeenAndMarksNoKey) {
    char text[MENU_TEXT_ROOM];
    RegionEntryText(text, 2, "R&D");
    EXPECT_STREQ(text, "&2 R&&D");
    RegionEntryText(text, 4, std::string(50, '&').c_str());
    EXPECT_EQ(text, "&4 " + std::string(70, '&')) << "no name is that long";
}

TEST_F(ActionMenu, WhatIsNoActionShowsAsALineOrNotAtAll) {
    SetMenu({0, NUM_ACTIONS, 0x7fffffff, -0x7fffffff}); // a file edited by hand
    EXPECT_EQ(LinesOf(Choose(0)), (Lines{"Display Quorl menu", "--"}));
    SetMenu({});
    EXPECT_EQ(LinesOf(Choose(0)), Lines{});
    Mark("home", 0, 0);
    EXPECT_EQ(LinesOf(Choose(0)), Lines{"View Region >"});
}

TEST_F(ActionMenu, WhateverCallFailsTheRestOfTheMenuIsShownOrNothingIsAndNoMenuIsLeftBehind) {
    Mark("home", 0, 0);
    for (int nth = 1; nth <= 12; ++nth) { // ten entries, the region, what it hangs from
        Desk.beeps.clear();
        Desk.fault = {"InsertMenuItemA", nth};
        EXPECT_EQ(LinesOf(Choose(0)).size(), nth == 11 ? 11u : 10u) << "insert " << nth;
        EXPECT_EQ(Desk.fault.hits, 1);
        EXPECT_EQ(Desk.beeps.size(), nth <= 10 ? 1u : 0u) << "insert " << nth;
    }
    Desk.fault = {"CreatePopupMenu", 2};
    EXPECT_EQ(LinesOf(Choose(0)).size(), 10u) << "without the regions";

    const std::size_t shown = Desk.shownMenus.size();
    Desk.fault = {"CreatePopupMenu", 1};
    EXPECT_EQ(DoAction(MainWnd, 0, nullptr), 0);
    EXPECT_EQ(Desk.shownMenus.size(), shown);
    EXPECT_EQ(LivingMenus(), 0);
}

} // namespace
