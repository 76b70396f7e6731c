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
    EXPECT_EQ(MatchedButton(0, 0), 0);
    EXPECT_EQ(MatchedButton(0, 1), LBUTTON);
    EXPECT_EQ(MatchedButton(0, 2), RBUTTON);
    EXPECT_EQ(MatchedButton(0, 4), MBUTTON);
    EXPECT_EQ(MatchedButton(0, MBUTTON), MBUTTON) << "the release of the middle button";
    EXPECT_EQ(MatchedButton(LBUTTON, RBUTTON), LBUTTON);
    EXPECT_EQ(MatchedButton(LBUTTON | RBUTTON, LBUTTON), RBUTTON);
    EXPECT_EQ(MatchedButton(LBUTTON | RBUTTON | MBUTTON, 0), MBUTTON);
    EXPECT_EQ(MatchedButton(KEY_SHIFT | KEY_CTRL, 5), 5);
}

TEST_F(MapButtons, EitherKeyOfAPairIsHeldAndTheMaskChoosesTheKind) {
    const auto held = [](int key, DWORD kind) {
        Desk.keysRead[key] = 1;
        const int flags = GetHeldFlags(kind);
        Desk.keysRead[key] = 0;
        return flags;
    };
    EXPECT_EQ(held(VK_LSHIFT, ACTION_KEY), KEY_SHIFT);
    EXPECT_EQ(held(VK_RSHIFT, ACTION_KEY), KEY_SHIFT);
    EXPECT_EQ(held(VK_RCONTROL, ACTION_KEY), KEY_CTRL);
    EXPECT_EQ(held(VK_LMENU, ACTION_KEY), KEY_ALT);
    EXPECT_EQ(held(VK_RMENU, ACTION_KEY), KEY_ALT);
    EXPECT_EQ(held(VK_RBUTTON, ACTION_MOUSE), RBUTTON);
    EXPECT_EQ(held(VK_MBUTTON, ACTION_MOUSE), MBUTTON);
    EXPECT_EQ(held(VK_LMENU, ACTION_MOUSE), 0);
    EXPECT_EQ(held(VK_RBUTTON, ACTION_KEY), 0);
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
}

TEST_F(MapButtons, TheCaptureComesBeforeTheActionForAllButTheLeftButton) {
    const struct {
        int button, flag, bCaptureFirst;
    } cases[] = {
        {VK_LBUTTON, LBUTTON, 0},
        {VK_RBUTTON, RBUTTON, 1},
        {VK_MBUTTON, MBUTTON, 1},
    };
    HoldKey(VK_LCONTROL, 1);
    for (const auto& [button, flag, bCaptureFirst] : cases) {
        Bind(5, KEY_CTRL, flag);
        MoveOnMap(10, 10);
        Desk.trace.clear();
        PressOnMap(button);
        EXPECT_EQ(CameInOrder({"SetCapture", "UpdateWindow"}), bCaptureFirst) << button;
        EXPECT_EQ(Desk.capture, MainWnd) << button;
        ReleaseOnMap(button);
        EXPECT_EQ(Desk.capture, nullptr) << button;
    }
}

TEST_F(MapButtons, ALookUpRunsNothingAndForgetsTheTip) {
    Command(5);
    ASSERT_NE(TipWnd, nullptr);
    EXPECT_EQ(MatchMouseAction(MainWnd, ACTION_MOUSE, KEY_SHIFT, KEY_SHIFT, nullptr, 0), 4);
    EXPECT_EQ(TipWnd, nullptr);
    EXPECT_EQ(MatchMouseAction(MainWnd, ACTION_MOUSE, KEY_SHIFT, 0, nullptr, 1), 0) << "nothing is bound";
    EXPECT_EQ(MatchMouseAction(MainWnd, ACTION_KEY, MBUTTON, MBUTTON, nullptr, 1), 0) << "not the mouse";
    EXPECT_EQ(VDesk.left, 5);
}

TEST_F(MapButtons, APlaceOutsideTheMapHasItsSignAndIsNoRegionsNumber) {
    EXPECT_EQ(PointOf(MAKELPARAM(-3, -20000)).x, -3);
    EXPECT_EQ(PointOf(MAKELPARAM(-3, -20000)).y, -20000);

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
