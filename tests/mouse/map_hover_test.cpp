#include "mouse/map_hover.h"

#include "status/status_strip.h"
#include "support/quorl_test.h"

class MapHover : public MapTest {};

// On the screen; the map may move too.
static void MoveBy(int dx, int dy) {
    MoveMouse(Desk.cursor.x + dx, Desk.cursor.y + dy);
    HandleMessages();
}

TEST_F(MapHover, DescribesTheWindowElseTheRegionElseThePoint) {
    OpenAndList("100%n %s%d \u0416\u6f22ll, and so on and so forth", {400, 0, 600, 320});
    Desk.codePage = 932;
    AddRegion("50%s of the last letter would f\x83|", 0, 0); // 31 bytes and a letter of two
    MoveOnMap(30, 10);
    EXPECT_EQ(LastStatus(), "100%n %s%d \u0416\u6f22ll, and so on and : [480, 160]");
    MoveOnMap(50, 30);
    EXPECT_EQ(LastStatus(), "Region 0: 50%s of the last letter would f [800, 480]");
    MoveOnMap(200, 80);
    EXPECT_EQ(LastStatus(), "Quorl: 3200, 1280");
}

// As Windows sends when another window appears under the cursor.
static void RepeatMove() {
    MoveBy(0, 0);
}

TEST_F(MapHover, IgnoresAMoveThatRepeatsTheLastMouseMessage) {
    MoveOnMap(128, 48);
    ShowTip("kept");
    RepeatMove();
    EXPECT_EQ(LastStatus(), "kept");
    PressOnMap(VK_MBUTTON);
    RunAction(ACTION_SCREEN_RIGHT);
    RepeatMove();
    EXPECT_EQ(VDesk.left, 2048) << "does not center the view again";
    ReleaseOnMap(VK_MBUTTON); // does
    ShowTip("kept");
    RepeatMove();
    EXPECT_EQ(LastStatus(), "kept");
    WindowOf(MainWnd).rect = Moved(RectOf(MainWnd), 30, 0);
    MoveBy(30, 0);
    EXPECT_EQ(LastStatus(), "Quorl: 2048, 768") << "the map moved under the cursor";
}

TEST_F(MapHover, TheLeftButtonDragsTheMapUntilTheCombinationChanges) {
    const RECT before = RectOf(MainWnd);
    MoveOnMap(200, 80);
    PressOnMap(VK_LBUTTON);
    MoveBy(37, 21);
    MoveBy(-40, 21);
    EXPECT_EQ(RectOf(MainWnd), Offset(before, -3, 42));
    HoldKey(VK_LSHIFT, true);
    MoveBy(10, 10);
    EXPECT_EQ(RectOf(MainWnd), Offset(before, -3, 42));
    EXPECT_EQ(VDesk, Rect(3072, 768, 4096, 1536)) << "Shift and left go to the screen under the cursor";
}
