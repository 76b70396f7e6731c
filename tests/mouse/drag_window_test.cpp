#include "mouse/drag_window.h"

#include "core/state.h"
#include "scroll/window_table.h"
#include "support/map_mouse.h"

namespace {

class DragOnMap : public QuorlTest {
  protected:
    // A map of 256 by 96: a pixel on it is 16 on the desktop.
    void Start() {
        ASSERT_EQ(StartQuorl(), 1);
        ResizeMap(256, 96);
        Settle();
    }

    // The combination that drags windows, from this place on the map.
    void Grab(int x, int y) {
        HoldKey(VK_LSHIFT, 1);
        HoldKey(VK_LCONTROL, 1);
        MoveOnMap(x, y);
        PressOnMap(VK_LBUTTON);
    }
};

TEST_F(DragOnMap, TheWindowUnderTheCursorGetsTheFocusAndThenMovesAtTheMapsScale) {
    const HWND editor = OpenWindow("editor", {160, 160, 480, 320});
    const HWND other = OpenWindow("other", {600, 600, 700, 700});
    Start();
    Grab(15, 15);
    MoveOnMap(16, 15);
    EXPECT_EQ(PlaceOf(editor), Rect(160, 160, 480, 320)) << "the first step only takes hold of it";
    EXPECT_EQ(Desk.foreground, editor);

    MoveOnMap(18, 14);
    EXPECT_EQ(PlaceOf(editor), Rect(192, 144, 512, 304));
    EXPECT_EQ(LastTip(), "DRAG: 1  PREV: 18, 14  CUR: 18, 14");
    EXPECT_EQ(PlaceOf(other), Rect(600, 600, 700, 700));
    EXPECT_EQ(VDesk, Rect(0, 0, 1024, 768)) << "the combination of the screens must not run as well";
}

TEST_F(DragOnMap, AHungWindowStaysWhereItIsAndInTheBackground) {
    const HWND hung = OpenWindow("hung", {160, 160, 480, 320});
    Start();
    RowOf(hung).answer = DeskAnswer::Hung;
    const HWND before = Desk.foreground;
    Grab(15, 15);
    MoveOnMap(16, 15);
    MoveOnMap(18, 14);
    EXPECT_EQ(PlaceOf(hung), Rect(160, 160, 480, 320));
    EXPECT_EQ(Desk.foreground, before);
}

TEST_F(DragOnMap, AWindowIsNotDraggedToWhereNothingManagesIt) {
    const HWND editor = OpenWindow("editor", {3800, 100, 4400, 320});
    Start();
    Grab(240, 15);
    MoveOnMap(241, 15);
    MoveOnMap(270, 15); // outside the map
    EXPECT_EQ(PlaceOf(editor).left, 4096);
    EXPECT_TRUE(IsManagedWindow(editor));
}

TEST_F(DragOnMap, ADragEndsOffTheBoxAndTakesHoldAnewWhenItComesBack) {
    const HWND editor = OpenWindow("editor", {160, 160, 480, 320});
    Start();
    Grab(15, 15);
    MoveOnMap(16, 15);
    MoveOnMap(200, 80); // nothing is there
    Desk.trace.clear();
    MoveOnMap(20, 12);
    EXPECT_EQ(PlaceOf(editor), Rect(160, 160, 480, 320));
    EXPECT_EQ(CallsOf("SetForegroundWindow") + CallsOf("SetFocus") + CallsOf("SetActiveWindow"), 3);
    MoveOnMap(21, 12);
    EXPECT_EQ(PlaceOf(editor).left, 176);
}

TEST_F(DragOnMap, ComingOverAnotherWindowEndsTheDragAndTheNextStepTakesThatOne) {
    const HWND first = OpenWindow("first", {160, 160, 480, 320});
    const HWND second = OpenWindow("second", {1600, 160, 1920, 320});
    Start();
    Grab(15, 15);
    MoveOnMap(16, 15);
    MoveOnMap(110, 15);
    EXPECT_EQ(Desk.foreground, first);
    MoveOnMap(111, 15);
    EXPECT_EQ(Desk.foreground, second);
    MoveOnMap(112, 15);
    EXPECT_EQ(PlaceOf(first), Rect(160, 160, 480, 320));
    EXPECT_EQ(PlaceOf(second), Rect(1616, 160, 1936, 320));
}

TEST_F(DragOnMap, LettingTheButtonGoDoesNotEndADragSoTheNextOneJumpsToTheCursor) {
    const HWND editor = OpenWindow("editor", {160, 160, 480, 320});
    Start();
    Grab(11, 11);
    MoveOnMap(12, 11);
    ReleaseOnMap(VK_LBUTTON);
    MoveOnMap(20, 12); // no button: no step
    EXPECT_EQ(PlaceOf(editor), Rect(160, 160, 480, 320));
    PressOnMap(VK_LBUTTON);
    MoveOnMap(21, 12);
    EXPECT_EQ(PlaceOf(editor).left, 160 + 9 * 16);
}

TEST_F(DragOnMap, AWindowThatDiesAtAnyMomentOfADragHarmsNothing) {
    Start();
    int dying = 0;
    HWND window = nullptr;
    do {
        window = OpenWindow("short-lived", {160, 160, 480, 320});
        RebuildWindowTable();
        RowOf(window).diesAtCall = ++dying;
        Grab(15, 15);
        MoveOnMap(16, 15);
        MoveOnMap(17, 15);
        MoveOnMap(200, 80);
        ReleaseOnMap(VK_LBUTTON);
        RowOf(window).diesAtCall = 0;
        EXPECT_EQ(WindowAtDesktopPoint(200, 200), RowOf(window).handle) << "died at call " << dying;
    } while (!RowOf(window).handle);
    EXPECT_GT(dying, 20); // the loop has really been somewhere
}

TEST_F(DragOnMap, EdgesCountAsInsideAndSignsDoNot) {
    static const struct {
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
    for (const auto& row : cases)
        EXPECT_EQ(HoldsDesktopPoint(row.window, row.x, row.y), row.bInside)
            << testing::PrintToString(row.window) << ' ' << row.x << ", " << row.y;
}

TEST_F(DragOnMap, TheTopmostManagedWindowIsFoundWhereItStandsNow) {
    EXPECT_EQ(WindowAtDesktopPoint(0, 0), nullptr) << "before the first snapshot";
    const HWND below = OpenWindow("below", {100, 100, 500, 500});
    const HWND above = OpenWindow("above", {100, 100, 500, 500});
    const HWND disabled = OpenWindow("disabled", {100, 100, 500, 500});
    EnableWindow(disabled, FALSE);
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
