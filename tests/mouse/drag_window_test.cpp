#include "mouse/drag_window.h"

#include "support/map_mouse.h"

// The combination that drags windows is held, over nothing yet.
class DragOnMap : public OnMap {
  protected:
    HWND editor = OpenWindow("editor", {160, 160, 480, 320});

    void SetUp() override {
        OnMap::SetUp();
        HoldKey(VK_LSHIFT, 1);
        HoldKey(VK_LCONTROL, 1);
        MoveOnMap(200, 80);
        PressOnMap(VK_LBUTTON);
    }
};

TEST_F(DragOnMap, TheWindowUnderTheCursorGetsTheFocusAndThenMovesAtTheMapsScaleUnlessItHangs) {
    RowOf(editor).answer = DeskAnswer::Hung;
    for (const int x : {16, 17})
        MoveOnMap(x, 15);
    EXPECT_NE(Desk.foreground, editor);
    EXPECT_EQ(PlaceOf(editor).left, 160);

    RowOf(editor).answer = DeskAnswer::Answers;
    MoveOnMap(200, 80); // off the box: that drag has ended
    MoveOnMap(16, 15);
    EXPECT_EQ(PlaceOf(editor), Rect(160, 160, 480, 320)) << "the first step only takes hold of it";
    EXPECT_EQ(Desk.foreground, editor);
    MoveOnMap(18, 14);
    EXPECT_EQ(PlaceOf(editor), Rect(192, 144, 512, 304));
    EXPECT_EQ(VDesk.left, 0) << "the combination of the screens must not run as well";
}

TEST_F(DragOnMap, EndsOverAnotherWindowAndTakesThatOneNoFurtherThanItIsManaged) {
    const HWND second = OpenKnown("second", {3800, 1400, 4400, 1800});
    MoveOnMap(16, 15);
    MoveOnMap(240, 90);
    EXPECT_EQ(Desk.foreground, editor);
    MoveOnMap(241, 90);
    EXPECT_EQ(Desk.foreground, second);
    MoveOnMap(270, 110); // outside the map
    EXPECT_EQ(PlaceOf(second), Rect(4096, 1536, 4696, 1936));
    EXPECT_EQ(PlaceOf(editor).left, 160);
}

TEST_F(DragOnMap, TheTopmostManagedWindowIsFoundWhereItStandsNow) {
    const HWND below = OpenWindow("below", {100, 100, 500, 500});
    const HWND above = OpenWindow("above", {100, 100, 500, 500});
    EnableWindow(OpenKnown("disabled", {100, 100, 500, 500}), FALSE);
    VDesk = Moved(VDesk, 100, 100);
    EXPECT_EQ(WindowAtDesktopPoint(300, 300), above);
    MoveWindow(above, 600, 100, 400, 400, TRUE); // after the snapshot
    EXPECT_EQ(WindowAtDesktopPoint(300, 300), below);
    EXPECT_EQ(WindowAtDesktopPoint(1100, 500), above);
}
