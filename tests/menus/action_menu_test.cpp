// The popup menu, its list and the icon that opens it.
#include "menus/action_menu.h"

#include "menus/entries.h"
#include "support/quorl_test.h"
#include "toolwin/tip.h"

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
    for (const DeskMenu& menu : Desk.menus)
        EXPECT_FALSE(menu.bLive) << "none is left behind";
    return Desk.shownMenus.back().menu;
}

TEST_F(ActionMenu, ANewUserFindsTenEntriesAtTheCursor) {
    Desk.cursor = {300, 200};
    EXPECT_EQ(LinesOf(Choose(0)),
              (Lines{"Options...", "Define Actions...", "Customize Menu...", "* Show Quorl Toolwin",
                     "Mark Current Region...", "--", "Help...", "About...", "--", "Exit"}));
    EXPECT_EQ(Desk.shownMenus.back().at, (POINT{300, 200}));
    EXPECT_EQ(GetForegroundWindow(), MainWnd) << "else a click elsewhere would not close it";
}

TEST_F(ActionMenu, AChoiceRunsItsRowAndTheMenuTellsTheNewValueNextTime) {
    SetMenu({30, 70, -2, NUM_ACTIONS, 0x7fffffff}); // what is no action does not show
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
        Mark("R&D", 100 * region, 0); // the ampersand is seen and marks no key
    const HMENU menu = Choose(FIRST_REGION_ID + 10);
    EXPECT_EQ(VDesk.left, 1000);
    EXPECT_EQ(LinesOf(menu).back(), "View Region >");
    EXPECT_EQ(LinesOf(MenuOf(menu).items.back().submenu),
              (Lines{"&0 R&&D", "&1 R&&D", "&2 R&&D", "&3 R&&D", "&4 R&&D", "&5 R&&D", "&6 R&&D", "&7 R&&D",
                     "&8 R&&D", "&9 R&&D", "&0 R&&D"}));
}

TEST_F(ActionMenu, WhateverCallFailsTheRestOfTheMenuIsShownOrNothingIs) {
    Mark("home", 0, 0);
    for (int nth = 1; nth <= 12; ++nth) { // ten entries, the region, what it hangs from
        Desk.fault = {"InsertMenuItemA", nth};
        EXPECT_EQ(LinesOf(Choose(0)).size(), nth == 11 ? 11U : 10U) << "insert " << nth;
    }
    Desk.fault = {"CreatePopupMenu", 2};
    EXPECT_EQ(LinesOf(Choose(0)).size(), 10U) << "without the regions";
    Desk.fault = {"CreatePopupMenu", 1};
    EXPECT_EQ(ShowActionMenu(MainWnd), 0);
    EXPECT_EQ(Desk.shownMenus.size(), 13U);
}

TEST_F(ActionMenu, TheIconOpensItOnARightPressAndTurnsTheMapOnADoubleClick) {
    const DeskTrayIcon& icon = Desk.tray.at(0);
    EXPECT_EQ(icon.icon, TrayImage);
    EXPECT_EQ(icon.tip, "Quorl");
    Desk.choices = {77};
    for (const UINT mouse : {WM_RBUTTONDOWN, WM_RBUTTONUP, WM_LBUTTONDBLCLK}) {
        PostMessageA(icon.window, icon.callback, icon.id, static_cast<LPARAM>(mouse));
        Settle();
        EXPECT_EQ(IsWindowVisible(MainWnd), mouse == WM_LBUTTONDBLCLK) << mouse;
    }
    EXPECT_EQ(Desk.shownMenus.size(), 1u) << "on the press alone";
}

TEST(MenuList, AnEntryGoesInBeforeTheOneAtItsPlaceElseToTheEndUntilTheListIsFull) {
    SetMenu({54, 59});
    InsertMenuEntry(0, 1);
    InsertMenuEntry(3, 2);
    InsertMenuEntry(99, 3);
    EXPECT_EQ(Menu(), (Entries{1, 54, 59, 2, 3}));
    SetMenu(Entries(MAX_MENU_ENTRIES, 7));
    EXPECT_EQ(AppendMenuEntry(8), 0);
    EXPECT_EQ(RemoveMenuEntry(7, 0), 1);
    EXPECT_EQ(AppendMenuEntry(8), 1) << "one place is free again";
}

TEST(MenuList, AnActionIsRemovedByItsNumberAndALineByItsPlaceAndNeighboursChangePlaces) {
    SetMenu({54, -2, 59, -2, 0, 54});
    EXPECT_EQ(RemoveMenuEntry(60, 0) + RemoveMenuEntry(-1, 6), 0);
    RemoveMenuEntry(54, 5);
    RemoveMenuEntry(-2, 2);
    RemoveMenuEntry(0, -1);
    EXPECT_EQ(Menu(), (Entries{-2, 59, 54}));
    EXPECT_EQ(SwapMenuEntries(0, 1) + SwapMenuEntries(2, -1), 2);
    EXPECT_EQ(SwapMenuEntries(0, -1) + SwapMenuEntries(2, 1) + SwapMenuEntries(-1, 1), 0);
    EXPECT_EQ(Menu(), (Entries{59, 54, -2}));
}

} // namespace
