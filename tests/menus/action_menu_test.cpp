#include "menus/action_menu.h"

#include "core/state.h"
#include "menus/menu_list.h"
#include "support/quorl_test.h"
#include "toolwin/tip.h"

#include <algorithm>

namespace {

using Lines = std::vector<std::string>;

class ActionMenu : public RunningQuorl {};

void Compose(std::initializer_list<int> entries) {
    quorl_menu_count = 0;
    for (const int entry : entries)
        AppendMenuEntry(entry);
}

// As the user sees it: a check mark, a line, an arrow.
Lines LinesOf(HMENU menu) {
    Lines lines;
    for (const DeskMenuItem& item : MenuOf(menu).items)
        lines.push_back((item.state & MFS_CHECKED ? "* " : "") +
                        (item.type & MFT_SEPARATOR ? "--" : item.text) + (item.submenu ? " >" : ""));
    return lines;
}

// The user opens the menu and chooses.
void Choose(UINT id) {
    Desk.choices = {id};
    PressCombination(MOD_CONTROL | MOD_ALT | MOD_SHIFT, VK_SPACE);
    Settle();
}

HMENU Shown() {
    return Desk.shownMenus.back().menu;
}

HMENU ShownRegions() {
    return MenuOf(Shown()).items.back().submenu;
}

int LivingMenus() {
    return static_cast<int>(
        std::count_if(Desk.menus.begin(), Desk.menus.end(), [](const DeskMenu& menu) { return menu.bLive; }));
}

TEST_F(ActionMenu, ANewUserFindsTenEntriesAtTheCursor) {
    Desk.cursor = {300, 200};
    Choose(0);

    EXPECT_EQ(LinesOf(Shown()),
              (Lines{"Options...", "Define Actions...", "Customize Menu...", "* Show Quorl Toolwin",
                     "Mark Current Region...", "--", "Help...", "About...", "--", "Exit"}));
    EXPECT_EQ(Desk.shownMenus.back().at.x, 300);
    EXPECT_EQ(Desk.shownMenus.back().at.y, 200);
    EXPECT_EQ(GetForegroundWindow(), MainWnd) << "else a click elsewhere would not close it";
    EXPECT_EQ(LivingMenus(), 0);
}

TEST_F(ActionMenu, AChoiceRunsItsRowAndTheMenuTellsTheNewValueNextTime) {
    Compose({30, 70, -2});
    Choose(30);
    EXPECT_EQ(VDesk.left, 1024);
    Choose(70);
    EXPECT_EQ(LinesOf(Shown())[1], "* Toggle Tooltip");
    Choose(0);
    EXPECT_EQ(LinesOf(Shown()), (Lines{"Move one desktop to the right", "Toggle Tooltip", "--"}));
    EXPECT_EQ(VDesk.left, 1024) << "nothing was chosen";
}

TEST_F(ActionMenu, TheRegionsHangBelowTheEntriesAndAChoiceJumps) {
    for (int region = 0; region < 12; ++region)
        Mark("r" + std::to_string(region), 100 * region, 0);
    Choose(FIRST_REGION_ID + 11);

    EXPECT_EQ(VDesk.left, 1100);
    EXPECT_EQ(LinesOf(Shown()).back(), "View Region >");
    EXPECT_EQ(LinesOf(ShownRegions()), (Lines{"&0 r0", "&1 r1", "&2 r2", "&3 r3", "&4 r4", "&5 r5", "&6 r6",
                                              "&7 r7", "&8 r8", "&9 r9", "&0 r10", "&0 r11"}));
    EXPECT_EQ(LivingMenus(), 0);
}

TEST_F(ActionMenu, AnAmpersandInARegionsNameIsSeenAndMarksNoKey) {
    const auto text = [](int region, const std::string& name) {
        char entry[MENU_TEXT_ROOM];
        RegionEntryText(entry, region, name.c_str());
        return std::string(entry);
    };
    EXPECT_EQ(text(2, "R&D"), "&2 R&&D");
    EXPECT_EQ(text(10, "&"), "&0 &&");
    EXPECT_EQ(text(3, ""), "&3 ");
    EXPECT_EQ(text(4, std::string(50, '&')), "&4 " + std::string(70, '&')) << "no name is that long";
}

TEST_F(ActionMenu, AnEmptyListShowsTheRegionsOnlyAndWithoutThemNothing) {
    Compose({});
    Choose(0);
    EXPECT_EQ(LinesOf(Shown()), Lines{});
    Mark("home", 0, 0);
    Choose(0);
    EXPECT_EQ(LinesOf(Shown()), Lines{"View Region >"});
}

TEST_F(ActionMenu, EntriesOfAHandEditedFileDoNoHarm) {
    Compose({0, NUM_ACTIONS, 0x7fffffff, -0x7fffffff});
    Choose(0);
    EXPECT_EQ(LinesOf(Shown()), (Lines{"Display Quorl menu", "--"}));
}

TEST_F(ActionMenu, TheStripGivesWayToTheMenu) {
    Command(30);
    ASSERT_TRUE(IsWindowVisible(TipWnd));
    Choose(0);
    EXPECT_FALSE(IsWindowVisible(TipWnd));
}

TEST_F(ActionMenu, WhateverCallFailsTheRestOfTheMenuIsShownOrNothingIsAndNoMenuIsLeftBehind) {
    Mark("home", 0, 0);
    int nth = 0;
    do {
        Desk.choices.assign({0});
        Desk.shownMenus.clear();
        Desk.fault = {.call = "InsertMenuItemA", .callsLeft = ++nth};
        Desk.beeps.clear();
        ShowActionMenu(MainWnd);
        const int bEntry = nth <= quorl_menu_count;
        EXPECT_EQ(Desk.beeps.size(), bEntry ? 1u : 0u) << "insert " << nth;
        EXPECT_EQ(LinesOf(Shown()).size(), bEntry || nth == 12 ? 10u : 11u);
        EXPECT_EQ(LivingMenus(), 0);
    } while (Desk.fault.hits > 0);
    EXPECT_EQ(nth, 13); // ten entries, the region, what it hangs from

    Desk.choices.assign({0});
    Desk.fault = {.call = "CreatePopupMenu", .callsLeft = 2};
    EXPECT_EQ(ShowActionMenu(MainWnd), 0);
    EXPECT_EQ(LinesOf(Shown()).size(), 10u) << "without the regions";

    Desk.shownMenus.clear();
    Desk.fault = {.call = "CreatePopupMenu", .callsLeft = 1};
    EXPECT_EQ(ShowActionMenu(MainWnd), 0);
    EXPECT_TRUE(Desk.shownMenus.empty());
    EXPECT_EQ(LivingMenus(), 0);
}

} // namespace
