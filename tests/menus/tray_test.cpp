#include "support/quorl_test.h"

namespace {

class Tray : public RunningQuorl {};

// The user's mouse over the icon, as the shell reports it.
void MouseOverIcon(UINT mouse) {
    const DeskTrayIcon& icon = Desk.tray.at(0);
    PostMessageA(icon.window, icon.callback, icon.id, static_cast<LPARAM>(mouse));
    Settle();
}

TEST_F(Tray, TheIconOpensTheMenuOnARightPressAndTurnsTheMapOnADoubleClick) {
    EXPECT_EQ(Desk.tray.at(0).icon, TrayImage);
    EXPECT_EQ(Desk.tray.at(0).tip, "Quorl");
    Desk.choices = {77};
    MouseOverIcon(WM_RBUTTONDOWN);
    EXPECT_FALSE(IsWindowVisible(MainWnd));
    MouseOverIcon(WM_RBUTTONUP);
    EXPECT_EQ(Desk.shownMenus.size(), 1u) << "on the press alone";
    MouseOverIcon(WM_LBUTTONDBLCLK);
    EXPECT_TRUE(IsWindowVisible(MainWnd));
}

} // namespace
