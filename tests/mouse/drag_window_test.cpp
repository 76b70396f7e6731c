#include "mouse/drag_window.h"

#include "support/quorl_test.h"

// Holds the combination that drags windows, over nothing yet. The box of `editor` is from (10, 10) to
// (30, 20).
class DragOnMap : public MapTest {
  protected:
    HWND editor = OpenWindow("editor", {160, 160, 480, 320});

    void SetUp() override {
        MapTest::SetUp();
        HoldKey(VK_LSHIFT, 1);
        HoldKey(VK_LCONTROL, 1);
        MoveOnMap(200, 80);
        PressOnMap(VK_LBUTTON);
    }
};

TEST_F(DragOnMap, FocusesALivingWindowAndThenMovesItAtTheMapsScale) {
    WindowOf(editor).response = DeskResponse::Hung;
    MoveOnMap(16, 15);
    MoveOnMap(17, 15);
    EXPECT_NE(Desk.foreground, editor);
    WindowOf(editor).response = DeskResponse::Responds;
    MoveOnMap(200, 80); // ends the drag
    MoveOnMap(16, 15);
    EXPECT_EQ(RectOf(editor), Rect(160, 160, 480, 320)) << "the first step only focuses it";
    EXPECT_EQ(Desk.foreground, editor);
    MoveOnMap(18, 14);
    EXPECT_EQ(RectOf(editor), Rect(192, 144, 512, 304));
    EXPECT_EQ(LastStatus(), "DRAG: 1  PREV: 18, 14  CUR: 18, 14");
    EXPECT_EQ(VDesk.left, 0) << "Shift and left alone would move the view";
}

TEST_F(DragOnMap, AnotherWindowEndsTheDragAndTheDesktopLimitsIt) {
    const HWND second = OpenAndList("second", {3800, 1400, 4400, 1800});
    MoveOnMap(16, 15);
    MoveOnMap(240, 90);
    EXPECT_EQ(Desk.foreground, editor);
    MoveOnMap(241, 90);
    EXPECT_EQ(Desk.foreground, second);
    MoveOnMap(270, 110); // outside the map
    EXPECT_EQ(RectOf(second), Rect(4096, 1536, 4696, 1936));
    EXPECT_EQ(RectOf(editor).left, 160);
}

TEST_F(DragOnMap, FindsTheTopmostManagedWindowAtItsCurrentPosition) {
    const HWND below = OpenWindow("below", {100, 100, 500, 500});
    const HWND above = OpenWindow("above", {100, 100, 500, 500});
    EnableWindow(OpenAndList("disabled", {100, 100, 500, 500}), FALSE);
    VDesk = Offset(VDesk, 100, 300);
    EXPECT_EQ(WindowAtDesktopPoint(300, 500), above);
    MoveWindow(above, 600, 100, 400, 400, TRUE); // after the table was built
    EXPECT_EQ(WindowAtDesktopPoint(300, 500), below);
    EXPECT_EQ(WindowAtDesktopPoint(1100, 700), above);
}
