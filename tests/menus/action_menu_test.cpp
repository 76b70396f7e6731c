// The popup menu, its list and the icon that opens it.
#include "menus/action_menu.h"

#include "menus/entries.h"
#include "support/quorl_test.h"
#include "toolwin/tip.h"

namespace {

class ActionMenu : public RunningQuorl {};

// As the user sees it: check marks, lines, what hangs from an entry.
std::string TextOf(HMENU menu) {
    std::string text;
    for (const DeskMenuItem& item : MenuOf(menu).items)
        text += (item.state & MFS_CHECKED ? "* " : "") + (item.type & MFT_SEPARATOR ? "--" : item.text) +
                (item.submenu ? ": " + TextOf(item.submenu) : "|");
    return text;
}

// The user opens the menu and chooses; 0 is nothing. The menu that was on show.
std::string Choose(UINT id) {
    Desk.choices = {id};
    PressCombination(MOD_CONTROL | MOD_ALT | MOD_SHIFT, VK_SPACE);
    Settle();
    for (const DeskMenu& menu : Desk.menus)
        EXPECT_FALSE(menu.bLive) << "none is left behind";
    return TextOf(Desk.shownMenus.back().menu);
}

TEST_F(ActionMenu, ANewUserFindsTenEntriesAtTheCursor) {
    Desk.cursor = {300, 200};
    EXPECT_EQ(Choose(0), "Options...|Define Actions...|Customize Menu...|* Show Quorl Toolwin|"
                         "Mark Current Region...|--|Help...|About...|--|Exit|");
    EXPECT_EQ(Desk.shownMenus.back().at, (POINT{300, 200}));
    EXPECT_EQ(GetForegroundWindow(), MainWnd) << "else a click elsewhere would not close it";
}

TEST_F(ActionMenu, AChoiceRunsItsRowAndTheMenuTellsTheNewValueNextTime) {
    SetMenu({30, 70, -2, NUM_ACTIONS, 0x7fffffff}); // what is no action does not show
    Choose(30);
    EXPECT_EQ(VDesk.left, 1024);
    ASSERT_TRUE(IsWindowVisible(TipWnd));
    EXPECT_EQ(Choose(70), "Move one desktop to the right|* Toggle Tooltip|--|");
    EXPECT_FALSE(IsWindowVisible(TipWnd)) << "the strip gives way to the menu";
    EXPECT_EQ(Choose(0), "Move one desktop to the right|Toggle Tooltip|--|");
    EXPECT_EQ(VDesk.left, 1024) << "nothing was chosen";
}

TEST_F(ActionMenu, TheRegionsHangBelowTheEntriesAndAChoiceJumps) {
    SetMenu({59});
    Mark("mail", 0, 0);
    Mark("R&D", 100, 0); // the ampersand is seen and marks no key
    EXPECT_EQ(Choose(FIRST_REGION_ID + 1), "Exit|View Region: &0 mail|&1 R&&D|");
    EXPECT_EQ(VDesk.left, 100);
}

TEST_F(ActionMenu, TheIconOpensItOnARightPressAndTurnsTheMapOnADoubleClick) {
    const DeskTrayIcon& icon = Desk.tray.at(0);
    EXPECT_EQ(icon.tip + " " + std::to_string(icon.id), "Quorl 1125");
    Desk.choices = {77};
    for (const UINT mouse : {WM_RBUTTONDOWN, WM_RBUTTONUP, WM_LBUTTONDBLCLK}) {
        PostMessageA(icon.window, icon.callback, icon.id, static_cast<LPARAM>(mouse));
        Settle();
        EXPECT_EQ(IsWindowVisible(MainWnd), mouse == WM_LBUTTONDBLCLK) << mouse;
    }
    EXPECT_EQ(Desk.shownMenus.size(), 1u) << "on the press alone";
}

TEST(MenuList, IsLeftAloneWhereItIsFull) {
    SetMenu(Entries(MAX_MENU_ENTRIES, 7));
    EXPECT_EQ(AppendMenuEntry(8) + SwapMenuEntries(MAX_MENU_ENTRIES - 1, 1) + SwapMenuEntries(-1, 1), 0);
    EXPECT_EQ(Menu(), Entries(MAX_MENU_ENTRIES, 7));
}

} // namespace
