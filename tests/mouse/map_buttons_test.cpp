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
    EXPECT_EQ(MatchedButton(KEY_SHIFT | KEY_CTRL, 5), 5);
}

TEST_F(MapButtons, EitherKeyOfAPairThatWasHeldAtThePressCountsAndTheMaskChoosesTheKind) {
    for (const int key : {VK_RSHIFT, VK_RCONTROL, VK_LMENU, VK_RBUTTON})
        Desk.keysRead[key] = 1;
    EXPECT_EQ(GetHeldFlags(ACTION_KEY), KEY_SHIFT | KEY_CTRL | KEY_ALT);
    EXPECT_EQ(GetHeldFlags(ACTION_MOUSE), RBUTTON);
    std::swap(Desk.keysRead[VK_LMENU], Desk.keysRead[VK_RMENU]);
    EXPECT_EQ(GetHeldFlags(ACTION_KEY), KEY_SHIFT | KEY_CTRL | KEY_ALT);
}

TEST_F(MapButtons, TheMiddleButtonRunsItsBindingWherePressedWhereMovedAndWhereReleased) {
    MoveOnMap(128, 48);
    PressOnMap(VK_MBUTTON);
    EXPECT_EQ(VDesk.left, 2048 - 512);
    MoveOnMap(160, 48);
    EXPECT_EQ(VDesk.left, 2560 - 512);
    EXPECT_EQ(LastTip().substr(0, 6), "VDesk:") << "not the place";
    Desk.cursor = OnScreen(MainWnd, 192, 48); // so fast that no move comes in between
    ReleaseOnMap(VK_MBUTTON);
    EXPECT_EQ(VDesk.left, 3072 - 512);
}

TEST_F(MapButtons, TheFirstRowWithTheCombinationRunsAndNoOtherThoughItIsOfferedNowhere) {
    ActionTable[5].flags = ACTION_OFF;
    Bind(6, KEY_CTRL, LBUTTON); // right by 100
    Bind(5, KEY_CTRL, LBUTTON); // right by 5
    ClickOnMap(10, 10, VK_LBUTTON, {VK_LCONTROL});
    EXPECT_EQ(VDesk.left, 5);
    ClickOnMap(10, 10, VK_LBUTTON, {VK_LCONTROL, VK_LMENU});
    EXPECT_EQ(VDesk.left, 5) << "one key more is another combination";
    EXPECT_EQ(MatchMouseAction(MainWnd, ACTION_MOUSE, KEY_CTRL, LBUTTON, nullptr, 0), 5);
    EXPECT_EQ(VDesk.left, 5) << "looked up only";
    EXPECT_EQ(TipWnd, nullptr) << "what was told is forgotten";
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

TEST_F(MapButtons, TheCaptureComesBeforeTheActionForAllButTheLeftButton) {
    Bind(5, KEY_CTRL, LBUTTON);
    Bind(6, KEY_CTRL, RBUTTON);
    HoldKey(VK_LCONTROL, 1);
    MoveOnMap(10, 10);
    for (const int button : {VK_LBUTTON, VK_RBUTTON}) {
        Desk.trace.clear();
        PressOnMap(button);
        EXPECT_EQ(CameInOrder({"SetCapture", "UpdateWindow"}), button == VK_RBUTTON);
        EXPECT_EQ(Desk.capture, MainWnd);
        ReleaseOnMap(button);
        EXPECT_EQ(Desk.capture, nullptr);
    }
}
