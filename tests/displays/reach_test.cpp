// At exit no window stays out of reach, whatever state it is in.
#include "displays/display_test.h"

#include "windows/window_table.h"

class Reach : public ModernDesktop {
  protected:
    HWND window = OpenWindow("window", {2000, 1200, 2400, 1500}); // in reach of a folded screen only
    DeskWindow& record = WindowOf(window);
};

TEST_F(Reach, DisabledCloakedAndFarWindowsComeBack) {
    const HWND cloaked = OpenWindow("cloaked", {4000, 100, 4400, 400});
    const HWND far = OpenWindow("beyond the desktop", {9000, 100, 9400, 400});
    const HWND untouched = OpenWindow("disabled", {-300, 100, 100, 400});
    WindowOf(cloaked).cloaked = true;
    WindowOf(untouched).style |= WS_DISABLED;
    record.style |= WS_DISABLED;
    Exit();
    EXPECT_EQ(RectOf(window), Rect(80, 120, 480, 420));
    EXPECT_EQ(RectOf(cloaked).left, 160);
    EXPECT_EQ(RectOf(far).left, 1320);
    EXPECT_EQ(RectOf(untouched), Rect(-300, 100, 100, 400)) << "its title can be reached";
}

TEST_F(Reach, WhatTheUserDoesNotWorkWithStays) {
    const HWND hidden = OpenWindow("hidden", {3000, 0, 3100, 90});
    const HWND taskbar = OpenWindow("", {3000, 0, 3100, 90}, "Shell_SecondaryTrayWnd");
    const HWND overlay = OpenWindow("overlay", {3000, 0, 3100, 90});
    const HWND elevated = OpenWindow("elevated", {3000, 0, 3100, 90});
    ShowWindow(hidden, SW_HIDE);
    WindowOf(overlay).exStyle = WS_EX_LAYERED | WS_EX_TRANSPARENT;
    WindowOf(elevated).elevated = true;
    Exit();
    for (const HWND kept : {hidden, taskbar, overlay, elevated})
        EXPECT_EQ(RectOf(kept).left, 3000) << WindowOf(kept).title;
    EXPECT_EQ(Desk.boxes.size(), 1u) << "only QUIT?";
}

TEST_F(Reach, AMinimizedWindowIsRestoredInReach) {
    Desk.displays = {DeskDisplay(Rect(0, 0, 1920, 1080), Rect(0, 40, 1920, 1080))}; // a taskbar at the top
    const HWND maximized = OpenWindow("maximized", {2000, 1200, 2400, 1500});
    ShowWindow(window, SW_MAXIMIZE);
    ShowWindow(window, SW_MINIMIZE);
    ShowWindow(maximized, SW_MAXIMIZE);
    const HWND edge = OpenWindow("only its invisible frame is in reach", {1910, 200, 2310, 500});
    ShowWindow(edge, SW_MINIMIZE);
    const HWND near = OpenWindow("in reach", {100, 200, 500, 500});
    ShowWindow(near, SW_MINIMIZE);
    const HWND active = OpenWindow("active", {0, 40, 300, 340});
    Desk.foreground = active;
    Exit();
    EXPECT_TRUE(record.style & WS_MINIMIZE);
    EXPECT_TRUE(record.restoresMaximized);
    EXPECT_EQ(record.normalRect, Rect(80, 120, 480, 420));
    EXPECT_TRUE(IsZoomed(maximized));
    EXPECT_EQ(WindowOf(maximized).normalRect, Rect(80, 120, 480, 420));
    EXPECT_EQ(WindowOf(edge).normalRect, Rect(-4, 200, 396, 500));
    EXPECT_EQ(CountCalls("SetWindowPlacement"), 3) << "the other one stays";
    EXPECT_EQ(Desk.foreground, active);
}

// Folded, it is mostly on the left display. Counted from that display's work area it is 40 pixels higher,
// which is mostly on the primary display, so Windows does not add these pixels again.
TEST_F(Reach, AMinimizedWindowAcrossTwoDisplaysIsRestoredInReach) {
    const RECT belowItsTaskbar = Rect(-1920, 140, 0, 1180);
    const DeskDisplay left{Rect(-1920, 100, 0, 1180), belowItsTaskbar, "left"};
    const DeskDisplay above{Rect(1920, -200, 2560, 280), Rect(1920, -200, 2560, 280), "above"};
    ChangeDisplays({Primary, left, above});
    Wait(2000);
    const int x = ScreenW(), y = ScreenH(); // one screen further: out of reach
    const HWND across = OpenWindow("across", Rect(x - 625, y + 5, x + 500, y + 505));
    const HWND hung = OpenWindow("hung", Rect(x + 300, y + 200, x + 700, y + 500));
    for (const HWND minimized : {across, hung})
        ShowWindow(minimized, SW_MINIMIZE);
    WindowOf(hung).response = DeskResponse::TimesOut;
    Desk.trace.clear();
    Exit();
    EXPECT_EQ(WindowOf(across).normalRect, Rect(-1118, 140, 7, 640));
    EXPECT_EQ(CountCalls("SendMessageTimeoutA"), 4) << "twice for the first one, once for each other";
}

TEST_F(Reach, TheEndOfTheSessionDuringAFoldReplacesIt) {
    const HWND next = OpenWindow("next", {100, 100, 500, 400});
    record.response = DeskResponse::Fails; // the session ends while the message box about it is open
    record.error = 87;
    AnswerBoxes({IDYES, IDOK});
    Desk.duringBox = [] {
        EXPECT_FALSE(Desk.quitPosted) << "it would close the box at once";
        if (Desk.boxes.size() == 1)
            SendMessageA(MainWnd, WM_ENDSESSION, 1, 0);
        EXPECT_EQ(Desk.quitPosted, bQuitting) << "it closes the box";
    };
    RunAction(ACTION_EXIT);
    EXPECT_EQ(WindowOf(next).received.size(), 1u) << "the first fold must not go on after the second";
}

class SessionEnd : public Reach, public testing::WithParamInterface<ActionId> {};

// The session ends while Quorl waits for a window to respond.
TEST_P(SessionEnd, LeavesWindowsWhereTheyWereFolded) {
    record.rect = {300, 300, 700, 600};
    record.style |= GetParam() == ACTION_RESTORE_MAXIMIZED ? WS_MAXIMIZE : 0U;
    Desk.foreground = window;
    RebuildWindowTable();
    record.duringMessage = [] {
        if (!bQuitting)
            SendMessageA(MainWnd, WM_ENDSESSION, 1, 0);
    };
    RunAction(GetParam());
    RunAction(ACTION_SCREEN_RIGHT);
    EXPECT_TRUE(bQuitting);
    EXPECT_EQ(RectOf(window), Rect(300, 300, 700, 600));
}

INSTANTIATE_TEST_SUITE_P(, SessionEnd,
                         testing::Values(ACTION_SCREEN_RIGHT, ACTION_ACTIVE_RIGHT_SCREEN,
                                         ACTION_RESTORE_MAXIMIZED));

// Overlays would cover the map, and dragging on it would hit them.
TEST_F(Reach, OverlaysDoNotMoveWithTheView) {
    const auto moves = [this](DWORD exStyle, HWND owner) {
        record.rect = {300, 300, 700, 600};
        record.exStyle = exStyle;
        record.owner = owner;
        RunAction(ACTION_VIEW_RIGHT_MAX);
        return RectOf(window).left != 300;
    };
    Wait(2000);
    EXPECT_FALSE(moves(WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, nullptr));
    EXPECT_FALSE(moves(WS_EX_LAYERED | WS_EX_TRANSPARENT, nullptr));
    EXPECT_TRUE(moves(WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, OpenWindow("owner", {0, 0, 100, 100})));
    EXPECT_TRUE(moves(WS_EX_NOACTIVATE | WS_EX_LAYERED, nullptr));
}
