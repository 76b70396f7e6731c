#include "menus/action_menu.h"

#include "actions/dispatch.h"
#include "menus/entries.h"
#include "status/status_strip.h"
#include "support/quorl_test.h"

#include <algorithm>

class ActionMenu : public MapTest {};

// What the user sees: check marks, separators and submenus.
static std::string TextOf(HMENU menu) {
    std::string text;
    for (const DeskMenuItem& item : MenuOf(menu).items) {
        EXPECT_EQ(item.state & ~MFS_CHECKED, 0U) << item.text;
        text += (item.state & MFS_CHECKED ? "* " : "") + (item.type & MFT_SEPARATOR ? "--" : item.text) +
                (item.submenu ? ": " + TextOf(item.submenu) : "|");
    }
    return text;
}

// Opens the menu by its hotkey and chooses an id, 0 for nothing. The text of the menu.
static std::string Choose(UINT id) {
    Desk.menuChoices = {id};
    PressHotkey(MOD_CONTROL | MOD_ALT | MOD_SHIFT, VK_SPACE);
    HandleMessages();
    EXPECT_FALSE(std::ranges::any_of(Desk.menus, &DeskMenu::live)) << "not destroyed";
    return TextOf(Desk.shownMenus.back().menu);
}

TEST_F(ActionMenu, OpensAtTheCursorWithTheDefaultEntries) {
    Desk.cursor = {300, 200};
    EXPECT_EQ(Choose(0), "Options...|Define Actions...|Customize Menu...|* Show Quorl Toolwin|"
                         "Mark Current Region...|--|Help...|About...|--|Exit|");
    EXPECT_EQ(Desk.shownMenus.back().at, (POINT{300, 200}));
    EXPECT_EQ(GetForegroundWindow(), MainWnd) << "or a click elsewhere would not close it";
}

TEST_F(ActionMenu, RunsTheChosenActionOrJumpsToTheRegion) {
    SetMenu({ACTION_TOOLTIP, -2, NUM_ACTIONS, 0x7fffffff});
    EXPECT_EQ(Choose(ACTION_TOOLTIP), "* Toggle Tooltip|--|");
    AddRegion("mail", 0, 0);
    AddRegion("R&D", 100, 0); // the ampersand is shown
    EXPECT_EQ(Choose(FIRST_REGION_ID + 1), "Toggle Tooltip|--|View Region: &0 mail|&1 R&&D|");
    EXPECT_EQ(VDesk.left, 100);
    for (int index = 2; index <= 10; ++index)
        AddRegion(std::to_string(index), 0, 0);
    EXPECT_TRUE(Choose(0).ends_with("&9 9|&0 10|")) << "has no key of its own";
}

TEST_F(ActionMenu, HidesTheStatusStripBeforeItOpensFromTheMap) {
    MoveOnMap(10, 10);
    ASSERT_TRUE(IsWindowVisible(TipWnd));
    Desk.trace.clear();
    Desk.menuChoices = {0};
    PressOnMap(VK_RBUTTON);
    EXPECT_FALSE(IsWindowVisible(TipWnd));
    EXPECT_TRUE(CalledInOrder({"ShowWindow", "TrackPopupMenuEx"}));
}

TEST_F(ActionMenu, TheTrayIconOpensTheMenuOrTogglesTheMap) {
    const DeskTrayIcon& icon = Desk.tray.at(0);
    Desk.menuChoices = {ACTION_SHOW_TOOLWIN};
    for (const UINT mouse : {WM_RBUTTONDOWN, WM_RBUTTONUP, WM_LBUTTONDBLCLK}) {
        SendMessageA(icon.window, icon.callback, icon.id, static_cast<LPARAM>(mouse));
        EXPECT_EQ(IsWindowVisible(MainWnd), mouse == WM_LBUTTONDBLCLK) << mouse;
    }
}
