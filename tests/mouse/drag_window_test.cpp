#include "mouse/drag_window.h"

#include "core/state.h"
#include "support/map_mouse.h"

namespace {

class DragOnMap : public QuorlTest {
  protected:
    // A map of 256 by 96: a pixel on it is 16 on the desktop.
    static void StartWithMap() {
        Start();
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
    const HWND editor = OpenWindow("editor", {160, 160, 480, 320});
    StartWithMap();
    Grab(15, 15);
    EXPECT_EQ(PlaceOf(editor), Rect(160, 160, 480, 320)) << "the first step only takes hold of it";
    EXPECT_EQ(Desk.foreground, editor);

    MoveOnMap(18, 14);
    EXPECT_EQ(PlaceOf(editor), Rect(192, 144, 512, 304));
    EXPECT_EQ(LastTip(), "DRAG: 1  PREV: 18, 14  CUR: 18, 14");
    EXPECT_EQ(VDesk.left, 0) << "the combination of the screens must not run as well";
}

TEST_F(DragOnMap, AHungWindowStaysWhereItIsAndInTheBackground) {
    const HWND hung = OpenWindow("hung", {160, 160, 480, 320});
    RowOf(hung).answer = DeskAnswer::Hung;
    StartWithMap();
    const HWND before = Desk.foreground;
    Grab(15, 15);
    MoveOnMap(18, 14);
    EXPECT_EQ(PlaceOf(hung).left, 160);
    EXPECT_EQ(Desk.foreground, before);
}

TEST_F(DragOnMap, AWindowIsNotDraggedToWhereNothingManagesIt) {
    const HWND editor = OpenWindow("editor", {3800, 1400, 4400, 1800});
    StartWithMap();
    Grab(240, 90);
    MoveOnMap(270, 110); // outside the map
    EXPECT_EQ(PlaceOf(editor), Rect(4096, 1536, 4696, 1936));
}

TEST_F(DragOnMap, EndsOffTheBoxAndOverAnotherWindowAndTheNextStepTakesHoldAnew) {
    const HWND first = OpenWindow("first", {160, 160, 480, 320});
    const HWND second = OpenWindow("second", {1600, 160, 1920, 320});
    StartWithMap();
    Grab(15, 15);
    MoveOnMap(200, 80); // nothing is there
    MoveOnMap(20, 12);
    EXPECT_EQ(PlaceOf(first).left, 160);
    MoveOnMap(21, 12);
    EXPECT_EQ(PlaceOf(first).left, 176);

    MoveOnMap(110, 15);
    EXPECT_EQ(Desk.foreground, first);
    MoveOnMap(111, 15);
    EXPECT_EQ(Desk.foreground, second);
    MoveOnMap(112, 15);
    EXPECT_EQ(PlaceOf(first).left, 176);
    EXPECT_EQ(PlaceOf(second).left, 1616);
}

TEST_F(DragOnMap, LettingTheButtonGoDoesNotEndADragSoTheNextOneJumpsToTheCursor) {
    const HWND editor = OpenWindow("editor", {160, 160, 480, 320});
    StartWithMap();
    Grab(11, 11);
    ReleaseOnMap(VK_LBUTTON);
    MoveOnMap(20, 12); // no button: no step
    EXPECT_EQ(PlaceOf(editor).left, 160);
    PressOnMap(VK_LBUTTON);
    MoveOnMap(21, 12);
    EXPECT_EQ(PlaceOf(editor).left, 160 + 9 * 16);
}

TEST_F(DragOnMap, EdgesCountAsInsideAndSignsDoNot) {
    const struct {
        RECT window;
        int x, y, bInside;
    } cases[] = {
        {{10, 10, 20, 20},       10,        20,  1},
        {{10, 10, 20, 20},       9,         15,  0},
        {{10, 10, 20, 20},       -15,       -15, 1},
        {{-100, -100, 20, 20},   0,         20,  1}, // cut off at the desktop's edge
        {{-100, -100, -20, -20}, 15,        15,  1}, // off the desktop, and yet
        {{0, 0, 20, 20},         INT32_MIN, 0,   0}, // has no absolute value
    };
    for (const auto& [window, x, y, bInside] : cases)
        EXPECT_EQ(HoldsDesktopPoint(window, x, y), bInside) << testing::PrintToString(window) << ' ' << x;
}

TEST_F(DragOnMap, TheTopmostManagedWindowIsFoundWhereItStandsNow) {
    const HWND below = OpenWindow("below", {100, 100, 500, 500});
    const HWND above = OpenWindow("above", {100, 100, 500, 500});
    EnableWindow(OpenWindow("disabled", {100, 100, 500, 500}), FALSE);
    Start();
    Command(6); // the view goes right by 100
    EXPECT_EQ(WindowAtDesktopPoint(300, 300), above);
    MoveWindow(above, 600, 100, 400, 400, TRUE); // after the snapshot
    EXPECT_EQ(WindowAtDesktopPoint(300, 300), below);
    EXPECT_EQ(WindowAtDesktopPoint(1100, 500), above);
    KillWindow(below);
    EXPECT_EQ(WindowAtDesktopPoint(300, 300), nullptr);
}

} // namespace
