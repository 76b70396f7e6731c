#include "mouse/map_buttons.h"

#include "actions/hotkeys.h"
#include "support/map_mouse.h"

// A map of 400 by 150: a tenth of the desktop of 4096 by 1536, nearly.
class MapButtons : public RunningQuorl {
  protected:
    void SetUp() override {
        RunningQuorl::SetUp();
        ResizeMap(400, 150);
        Settle();
    }
};

TEST_F(MapButtons, TheMiddleButtonBeatsTheRightOneAndThatTheLeftOne) {
    for (const int flag : {LBUTTON, RBUTTON, MBUTTON})
        EXPECT_EQ(MatchedButton(0, flag / LBUTTON), flag) << "by its old number";
    EXPECT_EQ(MatchedButton(0, MBUTTON), MBUTTON) << "the release of the middle button";
    EXPECT_EQ(MatchedButton(LBUTTON | RBUTTON, LBUTTON), RBUTTON);
    EXPECT_EQ(MatchedButton(LBUTTON | RBUTTON | MBUTTON, 0), MBUTTON);
    EXPECT_EQ(MatchedButton(KEY_SHIFT | KEY_CTRL, 5), 5);
}

TEST_F(MapButtons, EitherKeyOfAPairIsHeldAndTheMaskChoosesTheKind) {
    for (const int key : {VK_RSHIFT, VK_RCONTROL, VK_LMENU, VK_RBUTTON})
        Desk.keysRead[key] = 1;
    EXPECT_EQ(GetHeldFlags(ACTION_KEY), KEY_SHIFT | KEY_CTRL | KEY_ALT);
    EXPECT_EQ(GetHeldFlags(ACTION_MOUSE), RBUTTON);
    Desk.keysRead[VK_LMENU] = 0;
    EXPECT_EQ(GetHeldFlags(ACTION_KEY), KEY_SHIFT | KEY_CTRL);
    Desk.keysRead[VK_RMENU] = 1;
    EXPECT_EQ(GetHeldFlags(ACTION_KEY), KEY_SHIFT | KEY_CTRL | KEY_ALT);
}

TEST_F(MapButtons, AKeyLetGoSinceThePressStillCounts) {
    HoldKey(VK_LSHIFT, 1);
    const POINT at = OnScreen(MainWnd, 150, 100);
    MoveMouse(at.x, at.y);
    PressMouse(VK_LBUTTON, 1);
    PressMouse(VK_LBUTTON, 0);
    HoldKey(VK_LSHIFT, 0);
    Settle();
    EXPECT_EQ(VDesk, Rect(1024, 768, 2048, 1536));
}

TEST_F(MapButtons, TheMiddleButtonRunsItsBindingWherePressedAndWhereReleased) {
    MoveOnMap(200, 75);
    PressOnMap(VK_MBUTTON);
    EXPECT_EQ(VDesk.left, 2048 - 512);
    Desk.cursor = OnScreen(MainWnd, 300, 75); // so fast that no move comes in between
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

    EXPECT_EQ(MatchMouseAction(MainWnd, ACTION_MOUSE, KEY_SHIFT, LBUTTON, nullptr, 0), 4);
    EXPECT_EQ(TipWnd, nullptr) << "a look-up forgets what was told";
    EXPECT_EQ(MatchMouseAction(MainWnd, ACTION_KEY, MBUTTON, MBUTTON, nullptr, 1), 0) << "not the mouse";
    EXPECT_EQ(VDesk.left, 5) << "and runs nothing";
}

// A menu opened by the row would take the capture away again.
TEST_F(MapButtons, TheCaptureComesBeforeTheActionForAllButTheLeftButton) {
    HoldKey(VK_LCONTROL, 1);
    MoveOnMap(10, 10);
    for (const auto& [button, flag] : {
             std::pair{VK_LBUTTON, LBUTTON},
             {VK_RBUTTON, RBUTTON},
             {VK_MBUTTON, MBUTTON}
    }) {
        Bind(5, KEY_CTRL, flag);
        Desk.trace.clear();
        PressOnMap(button);
        EXPECT_EQ(CameInOrder({"SetCapture", "UpdateWindow"}), button != VK_LBUTTON) << button;
        EXPECT_EQ(Desk.capture, MainWnd) << button;
        ReleaseOnMap(button);
        EXPECT_EQ(Desk.capture, nullptr) << button;
    }
}

TEST_F(MapButtons, APlaceOutsideTheMapHasItsSignAndIsNoRegionsNumber) {
    const ActionPoint outside = PointOf(MAKELPARAM(-3, -20000));
    EXPECT_TRUE(outside.x == -3 && outside.y == -20000);

    Mark("far", 2048, 768);
    Bind(ROW_REGION, KEY_CTRL, LBUTTON);
    HoldKey(VK_LCONTROL, 1);
    MoveOnMap(0, 0);
    PressOnMap(VK_LBUTTON);
    for (const int y : {-1, -2})
        MoveOnMap(0, y);
    EXPECT_EQ(VDesk.left, 0);
    MoveOnMap(250, 80);
    EXPECT_EQ(VDesk.left, 2048) << "it is a drag";
}
