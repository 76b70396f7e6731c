#include "mouse/map_hover.h"

#include "support/map_mouse.h"

namespace {

class MapHover : public OnMap {};

// The cursor moves over the screen, wherever the map is.
void MoveBy(int dx, int dy) {
    MoveMouse(Desk.cursor.x + dx, Desk.cursor.y + dy);
    Settle();
}

TEST_F(MapHover, TheTipTellsTheWindowElseTheRegionElseThePlace) {
    OpenKnown("100%n %s%d full, and so on and so forth", {400, 0, 600, 320});
    Mark("50%s done, 32 characters of name", 0, 0);
    const auto tipAt = [](int x, int y) {
        MoveOnMap(x, y);
        return LastTip();
    };
    EXPECT_EQ(tipAt(30, 10), "100%n %s%d full, and so on and : [480, 160]") << "cut at 31";
    EXPECT_EQ(tipAt(50, 30), "Region 0: 50%s done, 32 characters of name [800, 480]");
    EXPECT_EQ(tipAt(200, 80), "Quorl: 3200, 1280");
}

TEST_F(MapHover, TheLeftButtonDragsTheToolwinUntilAKeyMakesItAnotherCombination) {
    const RECT before = PlaceOf(MainWnd);
    MoveOnMap(40, 30);
    PressOnMap(VK_LBUTTON);
    for (int step = 0; step < 5; ++step)
        MoveBy(37, 21);
    EXPECT_EQ(PlaceOf(MainWnd), Moved(before, 185, 105)) << "it keeps its offset to the cursor";
    ReleaseOnMap(VK_LBUTTON);
    MoveBy(160, 50);
    EXPECT_EQ(LastTip(), "Quorl: 3200, 1280") << "the button is up";

    PressOnMap(VK_LBUTTON);
    MoveBy(10, 10);
    HoldKey(VK_LSHIFT, 1);
    MoveBy(10, 10);
    EXPECT_EQ(PlaceOf(MainWnd), Moved(before, 195, 115));
    EXPECT_EQ(VDesk, Rect(3072, 768, 4096, 1536)) << "Shift and left go to the screen under the cursor";
}

} // namespace
