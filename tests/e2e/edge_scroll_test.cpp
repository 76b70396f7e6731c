// Scrolling at the screen's edge, with the real hook library and a real mouse.
#include "mouse.h"
#include "settings_file.h"

namespace {

constexpr int FOLLOW_MOUSE = 85;
constexpr int SHIFT_STEERS_CURSOR = 114; // on at the first start
constexpr int LANDING = 15;              // three borders inside the opposite edge

// Quorl scrolls at the edge at once and takes the cursor along, and has seen the mouse once.
void FollowMouse() {
    DoRow(FOLLOW_MOUSE);
    DoRow(SHIFT_STEERS_CURSOR);
    MoveMouse({500, 600});
}

} // namespace

TEST(EdgeScroll, IsOffUntilAskedForAndSurvivesAHungProgram) {
    const HWND editor = OpenWindow("editor", EDITOR); // undermost: moved last
    OpenWindow("hung", {100, 100, 300, 300}, "hung");
    StartQuorl();
    MoveMouse({500, 600});
    PushMouseTo({SCREEN_W - 1, 600});
    Sleep(300);
    EXPECT_EQ(PlaceOf(editor), EDITOR);

    FollowMouse();
    StartShakingMouse({500, 600});
    DoRow(30);
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -SCREEN_W, 0));
    StopShakingMouse();
    PushMouseTo({0, 600});
    EXPECT_SOON(PlaceOf(editor), EDITOR);
    EXPECT_SOON(MousePlace().x, SCREEN_W - LANDING);
}

TEST(EdgeScroll, WaitsForTheButtonThatTheUserChose) {
    Store("mousescroll_delay", "1");
    const HWND editor = OpenWindow("editor", EDITOR);
    StartQuorl();
    FollowMouse();
    MoveMouse({SCREEN_W - 1, 600});
    Click(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
    Sleep(300);
    EXPECT_EQ(PlaceOf(editor), EDITOR);
    Click(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -SCREEN_W, 0));
}
