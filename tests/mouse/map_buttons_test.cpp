#include "mouse/map_buttons.h"

#include "actions/hotkeys.h"
#include "support/map_mouse.h"

class MapButtons : public OnMap {};

TEST_F(MapButtons, TheMiddleButtonBeatsTheRightOneAndThatTheLeftOne) {
    for (const int flag : {LBUTTON, RBUTTON, MBUTTON})
        EXPECT_EQ(MatchedButton(0, flag / LBUTTON), flag) << "by its old number";
    EXPECT_EQ(MatchedButton(0, MBUTTON), MBUTTON) << "the release of the middle button";
    EXPECT_EQ(MatchedButton(LBUTTON | RBUTTON, LBUTTON), RBUTTON);
    EXPECT_EQ(MatchedButton(LBUTTON | RBUTTON | MBUTTON, 0), MBUTTON);
}

TEST_F(MapButtons, EitherKeyOfAPairThatWasHeldAtThePressCountsAndTheMaskChoosesTheKind) {
    for (const int key : {VK_RSHIFT, VK_RCONTROL, VK_LMENU, VK_RBUTTON})
        Desk.keysRead[key] = 1;
    EXPECT_EQ(GetHeldFlags(ACTION_KEY), KEY_SHIFT | KEY_CTRL | KEY_ALT);
    EXPECT_EQ(GetHeldFlags(ACTION_MOUSE), RBUTTON);
}

TEST_F(MapButtons, TheMiddleButtonRunsItsBindingWherePressedWhereMovedAndWhereReleased) {
    MoveOnMap(128, 48);
    PressOnMap(VK_MBUTTON);
    EXPECT_EQ(VDesk.left, 2048 - 512);
    EXPECT_EQ(Desk.capture, MainWnd);
    MoveOnMap(160, 48);
    EXPECT_EQ(VDesk.left, 2560 - 512);
    Desk.cursor = OnScreen(MainWnd, 192, 48); // so fast that no move comes in between
    ReleaseOnMap(VK_MBUTTON);
    EXPECT_EQ(VDesk.left, 3072 - 512);
    EXPECT_EQ(Desk.capture, nullptr);
}

TEST_F(MapButtons, TheFirstRowWithTheCombinationRunsAndNoOtherThoughItIsOfferedNowhere) {
    ActionTable[5].flags = ACTION_OFF;
    Bind(6, KEY_CTRL, LBUTTON); // right by 100
    Bind(5, KEY_CTRL, LBUTTON); // right by 5
    ClickOnMap(10, 10, VK_LBUTTON, {VK_LCONTROL});
    EXPECT_EQ(VDesk.left, 5);
    ClickOnMap(10, 10, VK_LBUTTON, {VK_LCONTROL, VK_LMENU});
    EXPECT_EQ(VDesk.left, 5) << "one key more is another combination";
    HoldKey(VK_LCONTROL, 1);
    PressOnMap(VK_LBUTTON);
    MoveOnMap(20, 10);
    EXPECT_EQ(VDesk.left, 15) << "once for the press and once for the move";
}

TEST_F(MapButtons, TheRightButtonOpensTheMenu) {
    Desk.choices = {ROW_SHOW_TOOLWIN};
    ClickOnMap(10, 10, VK_RBUTTON);
    EXPECT_FALSE(IsWindowVisible(MainWnd));
}
