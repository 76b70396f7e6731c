#include "menus/tray.h"

#include "actions/action_table.h"
#include "core/state.h"
#include "support/quorl_test.h"

namespace {

class Tray : public RunningQuorl {};

// The user's mouse over the icon, as the shell reports it.
void MouseOverIcon(UINT mouse) {
    const DeskTrayIcon& icon = Desk.tray.at(0);
    PostMessageA(icon.window, icon.callback, icon.id, static_cast<LPARAM>(mouse));
    Settle();
}

TEST_F(Tray, TheIconStandsThereFromTheStartUntilTheUserQuits) {
    ASSERT_EQ(Desk.tray.size(), 1u);
    EXPECT_EQ(Desk.tray[0].window, MainWnd);
    EXPECT_EQ(Desk.tray[0].icon, TrayImage);
    EXPECT_EQ(Desk.tray[0].tip, "Quorl");

    WillAnswer({IDNO, IDYES});
    Command(59);
    EXPECT_EQ(Desk.tray.size(), 1u);
    Command(59);
    EXPECT_TRUE(Desk.tray.empty());
}

TEST_F(Tray, ARightPressOpensTheMenuAndItsChoiceRuns) {
    Desk.choices = {77};
    MouseOverIcon(WM_RBUTTONDOWN);
    EXPECT_EQ(Desk.shownMenus.size(), 1u);
    EXPECT_FALSE(IsWindowVisible(MainWnd));
    MouseOverIcon(WM_RBUTTONUP);
    EXPECT_EQ(Desk.shownMenus.size(), 1u) << "on the press alone";
}

} // namespace
