// A second display left of the primary one, where coordinates are negative.
#include "shared/user.h"

namespace {

class TwoDisplays : public testing::Test {
  protected:
    RECT display{}; // the left one
    RECT left{};    // of a window on it
    HWND onLeft = nullptr, onRight = nullptr;

    void SetUp() override {
        const HMONITOR monitor = MonitorFromPoint({-1, SCREEN_H / 2}, MONITOR_DEFAULTTONULL);
        NEEDS(monitor, "a display left of the primary one");
        MONITORINFO info{};
        info.cbSize = sizeof info;
        GetMonitorInfoA(monitor, &info);
        display = info.rcMonitor;
        left = Moved({100, 100, 400, 300}, display.left, display.top);
        onLeft = OpenWindow("on the left display", left);
        onRight = OpenWindow("on the right display", EDITOR);
        StartQuorl();
    }

    void ExpectShift(int dx, int dy) {
        EXPECT_EVENTUALLY(WindowRect(onLeft), Moved(left, dx, dy));
        EXPECT_EVENTUALLY(WindowRect(onRight), Moved(EDITOR, dx, dy));
    }
};

TEST_F(TwoDisplays, WindowsScrollThereAndBack) {
    RunActions({ACTION_VIEW_RIGHT_MIN, ACTION_VIEW_DOWN_MIN});
    ExpectShift(-5, -5);
    RunActions({ACTION_SCREEN_RIGHT, ACTION_SCREEN_DOWN, ACTION_VIEW_RIGHT_MIN});
    ExpectShift(-SCREEN_W - 5, -SCREEN_H);
    RunActions({ACTION_VIEW_LEFT_MIN, ACTION_SCREEN_UP, ACTION_SCREEN_LEFT});
    ExpectShift(0, 0);
    RunActions({ACTION_VIEW_RIGHT_MIN, ACTION_VIEW_LEFT_MIN});
    ExpectShift(0, 0);
}

// Xephyr keeps the pointer off the far right and bottom edges of the right display.
TEST_F(TwoDisplays, OnlyTheOuterEdgesScroll) {
    RunActions({ACTION_SCREEN_RIGHT, ACTION_FOLLOW_MOUSE});
    const auto moveTo = [](POINT at) {
        MoveMouse(at.x, at.y);
        SendMouse(-300, 500); // Wine reports only a move to another position, and none by SetCursorPos here
        SendMouse(at.x, at.y);
        Sleep(60);
        Responds(QuorlWindow());
    };
    for (const LONG x : {300, 1, 0, -1, -2}) // the first move never scrolls
        moveTo({x, 500});
    Sleep(300);
    ExpectShift(-SCREEN_W, 0);
    moveTo({-300, display.bottom - 1});
    ExpectShift(-SCREEN_W, -SCREEN_H);
    moveTo({display.left, 500});
    ExpectShift(0, -SCREEN_H);
    moveTo({300, 0});
    ExpectShift(0, 0);
}

TEST_F(TwoDisplays, TheMapStaysOnTheLeftOneAcrossARestart) {
    const RECT map = Moved({0, 0, 200, 100}, display.left + 60, display.bottom - 150);
    SetWindowPos(QuorlWindow(), nullptr, map.left, map.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    RunActions({ACTION_TOOLWIN_LEFT_MIN, ACTION_SAVE_SETTINGS});
    EXPECT_EVENTUALLY(WindowRect(QuorlWindow()), Moved(map, -5, 0));
    Quit();
    EXPECT_EQ(WindowRect(StartQuorl()), Moved(map, -5, 0));
}

} // namespace
