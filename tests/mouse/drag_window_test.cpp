#include "mouse/drag_window.h"

#include "support/map_mouse.h"

// A map of 256 by 96: a pixel on it is 16 on the desktop.
class DragOnMap : public RunningQuorl {
  protected:
    HWND editor = OpenWindow("editor", {160, 160, 480, 320});

    void SetUp() override {
        RunningQuorl::SetUp();
        ResizeMap(256, 96);
    }

    // The combination that drags windows, from this place on the map; the first step takes hold of the
    // window.
    static void Grab(int x, int y) {
        HoldKey(VK_LSHIFT, 1);
        HoldKey(VK_LCONTROL, 1);
        MoveOnMap(x, y);
        PressOnMap(VK_LBUTTON);
        MoveOnMap(x + 1, y);
    }
};

TEST_F(DragOnMap, TheWindowUnderTheCursorGetsTheFocusAndThenMovesAtTheMapsScale) {
    Grab(15, 15);
    EXPECT_EQ(PlaceOf(editor), Rect(160, 160, 480, 320)) << "the first step only takes hold of it";
    EXPECT_EQ(Desk.foreground, editor);

    MoveOnMap(18, 14);
    EXPECT_EQ(PlaceOf(editor), Rect(192, 144, 512, 304));
    EXPECT_EQ(LastTip(), "DRAG: 1  PREV: 18, 14  CUR: 18, 14");
    EXPECT_EQ(VDesk.left, 0) << "the combination of the screens must not run as well";
}

TEST_F(DragOnMap, AHungWindowStaysWhereItIsAndInTheBackground) {
    RowOf(editor).answer = DeskAnswer::Hung;
    const HWND before = Desk.foreground;
    Grab(15, 15);
    MoveOnMap(18, 14);
    EXPECT_EQ(PlaceOf(editor).left, 160);
    EXPECT_EQ(Desk.foreground, before);
}

TEST_F(DragOnMap, AWindowIsNotDraggedToWhereNothingManagesIt) {
    RowOf(editor).place = {3800, 1400, 4400, 1800};
    Grab(240, 90);
    MoveOnMap(270, 110); // outside the map
    EXPECT_EQ(PlaceOf(editor), Rect(4096, 1536, 4696, 1936));
}

TEST_F(DragOnMap, EndsOffTheBoxAndOverAnotherWindowAndTheNextStepTakesHoldAnew) {
    const HWND second = OpenKnown("second", {1600, 160, 1920, 320});
    Grab(15, 15);
    MoveOnMap(200, 80); // nothing is there
    MoveOnMap(20, 12);
    EXPECT_EQ(PlaceOf(editor).left, 160);
    MoveOnMap(21, 12);
    EXPECT_EQ(PlaceOf(editor).left, 176);

    MoveOnMap(110, 15);
    EXPECT_EQ(Desk.foreground, editor);
    MoveOnMap(111, 15);
    EXPECT_EQ(Desk.foreground, second);
    MoveOnMap(112, 15);
    EXPECT_EQ(PlaceOf(editor).left, 176);
    EXPECT_EQ(PlaceOf(second).left, 1616);
}

TEST_F(DragOnMap, LettingTheButtonGoDoesNotEndADragSoTheNextOneJumpsToTheCursor) {
    Grab(11, 11);
    ReleaseOnMap(VK_LBUTTON);
    MoveOnMap(20, 12); // no button: no step
    EXPECT_EQ(PlaceOf(editor).left, 160);
    PressOnMap(VK_LBUTTON);
    MoveOnMap(21, 12);
    EXPECT_EQ(PlaceOf(editor).left, 160 + 9 * 16);
}

TEST_F(DragOnMap, EdgesCountAsInsideAndSignsDoNot) {
    EXPECT_TRUE(HoldsDesktopPoint({10, 10, 20, 20}, 10, 20));
    EXPECT_FALSE(HoldsDesktopPoint({10, 10, 20, 20}, 9, 15));
    EXPECT_TRUE(HoldsDesktopPoint({10, 10, 20, 20}, -15, -15));
    EXPECT_TRUE(HoldsDesktopPoint({-100, -100, 20, 20}, 0, 20)) << "cut off at the desktop's edge";
    EXPECT_TRUE(HoldsDesktopPoint({-100, -100, -20, -20}, 15, 15)) << "off the desktop, and yet";
    EXPECT_FALSE(HoldsDesktopPoint({0, 0, 20, 20}, INT32_MIN, 0)) << "has no absolute value";
}

TEST_F(DragOnMap, TheTopmostManagedWindowIsFoundWhereItStandsNow) {
    const HWND below = OpenWindow("below", {100, 100, 500, 500});
    const HWND above = OpenWindow("above", {100, 100, 500, 500});
    EnableWindow(OpenKnown("disabled", {100, 100, 500, 500}), FALSE);
    KillWindow(editor);
    Command(6);  // the view goes right by 100 ...
    Command(12); // ... and down
    EXPECT_EQ(WindowAtDesktopPoint(300, 300), above);
    MoveWindow(above, 600, 100, 400, 400, TRUE); // after the snapshot
    EXPECT_EQ(WindowAtDesktopPoint(300, 300), below);
    EXPECT_EQ(WindowAtDesktopPoint(1100, 500), above);
    KillWindow(below);
    EXPECT_EQ(WindowAtDesktopPoint(300, 300), nullptr);
}
