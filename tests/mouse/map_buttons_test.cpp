#include "mouse/map_buttons.h"

#include "support/quorl_test.h"

class MapButtons : public MapTest {};

TEST_F(MapButtons, OfSeveralButtonsTheMiddleOneCounts) {
    BindMouse(ACTION_VIEW_RIGHT_MIN, 0, LBUTTON);
    const auto match = [](int flags, int button) { return MatchMouseAction(flags, button); };
    EXPECT_EQ(match(0, 1), ACTION_VIEW_RIGHT_MIN) << "buttons also match by number";
    EXPECT_EQ(match(0, 2), ACTION_SHOW_MENU);
    EXPECT_EQ(match(0, 4), ACTION_VIEW_CENTER_POINT);
    EXPECT_EQ(match(LBUTTON | RBUTTON, LBUTTON), ACTION_SHOW_MENU);
    EXPECT_EQ(match(LBUTTON | RBUTTON | MBUTTON, 0), ACTION_VIEW_CENTER_POINT);
    EXPECT_EQ(match(0, 0), NO_ACTION);
}

TEST_F(MapButtons, TheMiddleButtonRunsItsBindingOnPressMoveAndRelease) {
    MoveOnMap(128, 46);
    PressOnMap(VK_MBUTTON);
    EXPECT_EQ(ViewCorner(), (POINT{2048 - 512, 736 - 384}));
    EXPECT_EQ(Desk.capture, MainWnd);
    MoveOnMap(160, 48);
    EXPECT_EQ(VDesk.left, 2560 - 512);
    Desk.cursor = ToScreen(MainWnd, 192, 48); // without a move message
    ReleaseOnMap(VK_MBUTTON);
    EXPECT_EQ(VDesk.left, 3072 - 512);
    EXPECT_EQ(Desk.capture, nullptr);
}

TEST_F(MapButtons, TheFirstActionWithTheCombinationRuns) {
    ActionTable[ACTION_VIEW_RIGHT_MIN].flags = ACTION_OFF; // still runs
    BindMouse(ACTION_VIEW_RIGHT_MAX, KEY_CTRL, LBUTTON);
    BindMouse(ACTION_VIEW_RIGHT_MIN, KEY_CTRL, LBUTTON);
    MoveOnMap(10, 10);
    HoldKey(VK_RCONTROL, 1);
    PressOnMap(VK_LBUTTON);
    EXPECT_EQ(VDesk.left, 5);
    MoveOnMap(20, 10);
    EXPECT_EQ(VDesk.left, 10) << "again for the move";
    ReleaseOnMap(VK_LBUTTON);
    HoldKey(VK_LMENU, 1);
    PressOnMap(VK_LBUTTON);
    EXPECT_EQ(VDesk.left, 10) << "a different combination";
}
