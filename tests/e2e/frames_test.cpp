// Invisible frames, with which a window at the screen's edge extends past it, and cloaked windows.
#include "shared/user.h"

namespace {

class Frames : public testing::Test {
  protected:
    const int left = GetSystemMetrics(SM_XVIRTUALSCREEN);
    HWND snapped = nullptr;
    RECT rect{};

    void SetUp() override {
        snapped = OpenWindow("snapped", EDITOR);
        const LONG margin = VisibleRect(snapped).left - EDITOR.left;
        NEEDS(margin > 0, "a compositor that gives windows an invisible frame");
        rect = Moved(EDITOR, left - margin - EDITOR.left, 0);
        MoveWindow(snapped, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, TRUE);
    }
};

TEST_F(Frames, WindowsAtTheEdgesReturnToThePixel) {
    const HWND maximized = OpenWindow("maximized", EDITOR);
    ShowWindow(maximized, SW_MAXIMIZE);
    EXPECT_EVENTUALLY(IsZoomed(maximized), TRUE);
    const RECT full = WindowRect(maximized);
    StartQuorl();
    const auto expect = [&](int dx, int dy) {
        EXPECT_EVENTUALLY(WindowRect(snapped), Moved(rect, dx, dy));
        EXPECT_EVENTUALLY(WindowRect(maximized), Moved(full, dx, dy));
    };
    RunActions({ACTION_SCREEN_RIGHT, ACTION_VIEW_DOWN_MIN});
    expect(-SCREEN_W, -5);
    RunActions({ACTION_SCREEN_LEFT, ACTION_VIEW_UP_MIN});
    expect(0, 0);
    RunActions({ACTION_SCREEN_RIGHT, ACTION_SCREEN_DOWN});
    expect(-SCREEN_W, -SCREEN_H);
    Quit();
    expect(0, 0);
    EXPECT_TRUE(IsZoomed(maximized));
}

TEST_F(Frames, ACloakedWindowStaysUntilExit) {
    const RECT away = Moved(EDITOR, 2 * SCREEN_W, 0);
    const HWND inReach = OpenWindow("cloaked in reach", EDITOR, "cloaked");
    const HWND beyond = OpenWindow("cloaked out of reach", away, "cloaked");
    StartQuorl();
    RunActions({ACTION_SCREEN_RIGHT});
    EXPECT_EVENTUALLY(WindowRect(snapped), Moved(rect, -SCREEN_W, 0)); // the last one to move
    EXPECT_EQ(WindowRect(inReach), EDITOR);
    EXPECT_EQ(WindowRect(beyond), away);
    Quit();
    EXPECT_EQ(WindowRect(inReach), EDITOR);
    EXPECT_EVENTUALLY(WindowRect(beyond), EDITOR);
}

} // namespace
