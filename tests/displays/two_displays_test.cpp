// A second display left of the primary one and above it.
#include "displays/display_test.h"

#include "hook/hook_message.h"
#include "scroll/desktop_size.h"
#include "scroll/scroll_view.h"
#include "status/status_strip.h"

static POINT AfterMouseAt(int x, int y) {
    Desk.cursor = {x, y};
    PostMessageA(MainWnd, HOOK_MOUSE_MESSAGE, WM_MOUSEMOVE, 0);
    HandleMessages();
    return ViewCorner();
}

TEST_F(TwoDisplays, OnlyTheOuterEdgesScroll) {
    ActionTable[ACTION_FOLLOW_MOUSE].value = 1;
    ActionTable[ACTION_SHIFT_SUPPRESS].value = 0;
    Options.mousescroll_type = EDGE_BY_MAX;
    AfterMouseAt(500, 500); // the first one never scrolls
    EXPECT_EQ(AfterMouseAt(1, 500), (POINT{0, 0})) << "the seam";
    EXPECT_EQ(AfterMouseAt(-2, 500), (POINT{0, 0}));
    EXPECT_EQ(AfterMouseAt(1918, 500), (POINT{100, 0}));
    EXPECT_EQ(Desk.cursor, (POINT{1920 - 100 + 15, 500}));
    EXPECT_EQ(AfterMouseAt(500, 1078), (POINT{100, 100})) << "the taller display does not continue here";
    EXPECT_EQ(AfterMouseAt(500, 2), (POINT{100, 0}));
    EXPECT_EQ(AfterMouseAt(-2558, 500), (POINT{0, 0}));
    EXPECT_EQ(Desk.cursor, (POINT{-2560 + 100 - 15, 500}));
    Options.mousescroll_type = EDGE_BY_SCREEN;
    RunAction(ACTION_SCREEN_RIGHT);
    EXPECT_EQ(AfterMouseAt(-2558, 1120), (POINT{0, 0}));
    EXPECT_EQ(Desk.cursor, (POINT{1905, 1075}))
        << "below the primary display Windows would put it on the edge";
    RunAction(ACTION_SCREEN_RIGHT);
    AfterMouseAt(-2558, -200);
    EXPECT_EQ(Desk.cursor, (POINT{1905, 5})) << "above it too";
}

TEST_F(TwoDisplays, TheMapLivesOnTheLeftOneAcrossARestart) {
    MoveWindow(MainWnd, -1000, -300, 200, 100, TRUE);
    RunAction(ACTION_TOOLWIN_LEFT_MIN);
    const RECT map = RectOf(MainWnd);
    EXPECT_EQ(VisibleRect(MainWnd), Rect(-998, -300, -812, -207));
    EXPECT_EQ(RectOf(TipWnd).top, -207) << "above would be on no display";
    RunAction(ACTION_SAVE_SETTINGS);
    MoveWindow(MainWnd, 500, 500, 200, 100, TRUE);
    RunAction(ACTION_LOAD_SETTINGS);
    EXPECT_EQ(RectOf(MainWnd), map);
    MoveWindow(MainWnd, -2564, 300, 200, 100, TRUE);
    RunAction(ACTION_SAVE_SETTINGS);
    RunAction(ACTION_LOAD_SETTINGS);
    EXPECT_EQ(RectOf(MainWnd), Rect(-2559, 300, -2359, 400))
        << "a start ignores positions left of the screen";
    MoveWindow(MainWnd, 500, 1055, 200, 100, TRUE); // behind the taskbar
    RunAction(ACTION_SAVE_SETTINGS);
    RunAction(ACTION_LOAD_SETTINGS);
    EXPECT_EQ(RectOf(MainWnd), Rect(500, 940, 700, 1040));
}

// The left display is taller: in the corner below the primary one nothing is shown.
TEST_F(TwoDisplays, AFoldedWindowHasItsTitleInAWorkArea) {
    const HWND corner = OpenWindow("corner", {500 + 4480, 1100, 900 + 4480, 1130});
    const HWND taskbar = OpenWindow("taskbar", {-100, 1040 + 1440, 300, 1440 + 1070});
    Exit();
    EXPECT_EQ(VisibleRect(corner), Rect(507, 1017, 893, 1040));
    EXPECT_EQ(RectOf(taskbar), Rect(-100, 1040, 300, 1070)) << "on the left display";
}

TEST_F(TwoDisplays, ErrorsOfAWindowThatWindowsScalesDoNotAddUp) {
    const RECT rect{-2110, 600, -1510, 900};
    const HWND scaled = OpenWindow("not DPI aware", rect);
    WindowOf(scaled).dpiAware = false;
    Wait(2000);
    for (const int error : {2, -2, 3}) {
        ScrollView(MainWnd, 300, 300, SV_ABSOLUTE, 0);
        WindowOf(scaled).rect = Offset(RectOf(scaled), error, error);
        ScrollView(MainWnd, 0, 0, SV_ABSOLUTE, 0);
        const int kept = error == 3 ? 3 : 0; // more than an error of rounding: the program moved it
        EXPECT_EQ(RectOf(scaled), Offset(rect, kept, kept)) << error;
    }
}

TEST_F(TwoDisplays, TilingUsesTheDisplayOfTheActiveWindow) {
    SetWindowPos(MainWnd, HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    const HWND left = OpenWindow("left", {-2000, 100, -1500, 500});
    const HWND right = OpenAndList("right", {100, 100, 500, 500});
    RunAction(ACTION_TILE_VERTICALLY);
    EXPECT_EQ(Desk.tilings.back().rect, Primary.work);
    EXPECT_EQ(Desk.tilings.back().windows, std::vector<HWND>{right});
    Desk.foreground = left;
    RunAction(ACTION_TILE_VERTICALLY);
    EXPECT_EQ(Desk.tilings.back().rect, Left.work);
    KillWindow(left);
    KillWindow(right);
    RunAction(ACTION_TILE_VERTICALLY);
    EXPECT_EQ(Desk.tilings.size(), 2u) << "an empty list means all windows of the system";
}

class DisplayChange : public TwoDisplays {
  protected:
    HWND onLeft = OpenWindow("on the left display", {-2000, 100, -1500, 500});
    HWND onRight = OpenWindow("on the right display", {100, 100, 500, 500});
    HWND far = OpenWindow("beyond the view", {3000, 200, 3300, 500});

    POINT DesktopCorner(HWND window) {
        const RECT rect = RectOf(window);
        return {rect.left - GetSystemMetrics(SM_XVIRTUALSCREEN) + VDesk.left,
                rect.top - GetSystemMetrics(SM_YVIRTUALSCREEN) + VDesk.top};
    }
};

TEST_F(DisplayChange, TheViewShowsTheSamePartOfTheDesktop) {
    Wait(2000);
    RunAction(ACTION_SCREEN_RIGHT);
    Wait(200);
    RunAction(ACTION_SCREEN_RIGHT); // the table is from before this
    const POINT before[] = {DesktopCorner(onRight), DesktopCorner(far)};
    ChangeDisplays({Primary});
    for (const ActionId id : {ACTION_SCREEN_LEFT, ACTION_TOOLWIN_RIGHT_MIN, ACTION_TILE_VERTICALLY})
        RunAction(id);
    EXPECT_EQ(RectOf(MainWnd).left, 100);
    EXPECT_TRUE(Desk.tilings.empty());
    EXPECT_EQ(VDesk.left, 8960) << "scrolls are dropped until the displays have settled";
    Wait(200);
    SendMessageA(MainWnd, WM_SETTINGCHANGE, SPI_SETWORKAREA, 0);
    Wait(1400);
    Desk.trace.clear();
    EXPECT_EQ(VDesk.left, 8960) << "waits again from the start";
    Wait(200);
    EXPECT_EQ(VDesk, Rect(11520, 300, 13440, 1380)) << "what the primary display showed";
    EXPECT_TRUE(CalledInOrder({"EnumWindows", "BitBlt"})) << "the map";
    ChangeDisplays({Primary, Left});
    Wait(1500);
    EXPECT_EQ(VDesk, Rect(8960, 0, 13440, 1440));
    EXPECT_EQ(DesktopCorner(onRight), before[0]);
    EXPECT_EQ(DesktopCorner(far), before[1]);
    RunAction(ACTION_VIEW_TO_LEFT);
    EXPECT_EQ(RectOf(onRight), Rect(100, 100, 500, 500));
    RunAction(ACTION_SCREEN_RIGHT);
    RunAction(ACTION_VIEW_DOWN_MAX);
    const RECT view = VDesk;
    ChangeDisplays({{Primary.rect, Primary.work, "another"}, {Left.rect, Left.work, "one more"}});
    Wait(1500);
    EXPECT_EQ(VDesk, view) << "no display is the same";
}

// Windows may move windows beyond the displays, before and after it announces the change.
TEST_F(DisplayChange, WindowsOutOfViewReturnUnlessTheyWereMinimized) {
    const HWND beside = OpenWindow("its invisible frame overlaps the display", {1913, 100, 2313, 400});
    const RECT before[] = {RectOf(beside), RectOf(far), RectOf(onRight)};
    ShowWindow(onRight, SW_MINIMIZE);
    Wait(2000);
    Desk.displays = {Primary};
    ShowWindow(onRight, SW_RESTORE);
    for (const HWND window : {beside, far})
        WindowOf(window).rect = Rect(700, 100, 1100, 400);
    WindowOf(far).duringMessage = [this] { // once more, while the windows return
        WindowOf(far).duringMessage = nullptr;
        SendMessageA(MainWnd, WM_DISPLAYCHANGE, 0, 0);
    };
    Wait(4000);
    EXPECT_EQ(RectOf(beside), before[0]);
    EXPECT_EQ(RectOf(far).left, before[1].left);
    EXPECT_EQ(RectOf(onRight), before[2]);
}

TEST_F(DisplayChange, TheMapComesBackAndTheChosenSizeIsSaved) {
    MoveWindow(MainWnd, -1000, 100, 200, 100, TRUE);
    SetDesktopSize(5000, 1500);
    ScrollView(MainWnd, 300, 0, SV_ABSOLUTE, 0);
    Desk.displays = {Rect(0, 0, 1000, 700)};
    WindowOf(MainWnd).rect = {2500, 100, 2700, 200};            // Windows did not move it
    PostMessageA(MainWnd, HOOK_MOUSE_MESSAGE, WM_MOUSEMOVE, 0); // the only sign of the change
    Wait(1500);
    EXPECT_EQ(VisibleRect(MainWnd), Rect(814, 100, 1000, 193));
    EXPECT_EQ(VDesk.left, 300) << "none of the displays was there before";
    Desk.displays = {Rect(0, 0, 6000, 1600)};
    PostMessageA(MainWnd, HOOK_MOUSE_MESSAGE, WM_MOUSEMOVE, 0);
    Wait(1500);
    EXPECT_EQ(Quorl, Rect(0, 0, 6000, 1600));
    RunAction(ACTION_ADD_BOTTOM);
    RunAction(ACTION_SAVE_SETTINGS);
    EXPECT_NE(Desk.files["quorl.ini"].find("Quorl.right=5000\r\nQuorl.bottom=3200"), std::string::npos);
}

TEST_F(DisplayChange, WithoutATimerScrollingGoesOn) {
    Desk.fault = {"SetTimer", 1, true};
    ChangeDisplays({Primary});
    RunAction(ACTION_SCREEN_RIGHT);
    EXPECT_EQ(VDesk.left, 4480);
}

// Nobody moved these windows by hand, so they end where they started.
TEST_F(DisplayChange, ExitDoesNotWaitForItToSettle) {
    Wait(2000);
    RunAction(ACTION_SCREEN_RIGHT);
    ChangeDisplays({Primary});
    Exit();
    for (const HWND window : {onLeft, onRight, far})
        EXPECT_TRUE(RectOf(window).left >= -7 && RectOf(window).left < 1920) << WindowOf(window).title;
}
