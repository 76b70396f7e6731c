// Windows: creation and destruction, order and titles, position and visibility; displays.
#include "contract/contract_test.h"

namespace {

using Windows = Contract;

TEST_F(Windows, CreationAndMovesSendTheExpectedMessagesWithinLimits) {
    Handlers[WM_GETMINMAXINFO] = [](const MSG& received) {
        auto& limits = *reinterpret_cast<MINMAXINFO*>(received.lParam);
        limits.ptMinTrackSize = {40, 13};
        limits.ptMaxTrackSize = {2000, 1500};
        return 0;
    };
    const HWND sizable = OpenOwn(WS_POPUP | WS_THICKFRAME);
    EXPECT_EQ(ReceivedOf({WM_GETMINMAXINFO, WM_NCCREATE, WM_CREATE, WM_SIZE, WM_MOVE}),
              (Numbers{WM_GETMINMAXINFO, WM_NCCREATE, WM_CREATE, WM_SIZE, WM_MOVE}));
    MoveWindow(sizable, 10, 20, 3000, -5, TRUE);
    EXPECT_EQ(WindowRect(sizable), (RECT{10, 20, 2010, 33}));

    const HWND fixed = OpenOwn(); // no WM_GETMINMAXINFO without a sizing frame
    Received.clear();
    MoveWindow(fixed, 100, 120, 300, 200, TRUE);
    MoveWindow(fixed, 110, 120, 300, 200, TRUE);
    MoveWindow(fixed, 110, 120, 3100, 5, TRUE);
    EXPECT_EQ(ReceivedOf({WM_GETMINMAXINFO, WM_MOVE, WM_SIZE}), (Numbers{WM_MOVE, WM_SIZE}));
    EXPECT_EQ(Received.back().lParam, MAKELPARAM(3100, 5));
}

TEST_F(Windows, DestroyedOneFailsEveryCall) {
    const HWND gone = OpenOwn();
    DestroyWindow(gone);
    char text[8] = "x";
    RECT rect = RECT_OF_WINDOWS;
    EXPECT_FALSE(IsWindow(gone) || IsWindowVisible(gone) || IsWindowEnabled(gone) || IsIconic(gone) ||
                 IsZoomed(gone) || GetWindowRect(gone, &rect) || MoveWindow(gone, 0, 0, 10, 10, TRUE) ||
                 ShowWindow(gone, SW_SHOW) || SetForegroundWindow(gone) || DestroyWindow(gone) ||
                 GetClassNameA(gone, text, sizeof text) || GetWindowTextA(gone, text, sizeof text) ||
                 SendMessageA(gone, WM_USER, 0, 0) || PostMessageA(gone, WM_USER, 0, 0));
    EXPECT_EQ(rect, RECT_OF_WINDOWS) << "unchanged";
    EXPECT_STREQ(text, "") << "emptied";
}

TEST_F(Windows, EnumerationStartsAtTheTopAndIncludesHiddenOnes) {
    const HWND below = OpenOther("below");
    const HWND hidden = OpenOwn();
    const HWND topmost = OpenOwn(WS_POPUP | WS_VISIBLE, WS_EX_TOPMOST);
    const HWND owned = OpenOwn(WS_POPUP | WS_VISIBLE, 0, RECT_OF_WINDOWS, topmost);
    EXPECT_TRUE(BringWindowToTop(hidden));
    EXPECT_EQ(Order({below, hidden, topmost, owned, GetDesktopWindow()}),
              (std::vector{owned, topmost, hidden, below}))
        << "a topmost window stays above the others, and so does what it owns";
    EXPECT_TRUE(GetWindowLongPtrA(owned, GWL_EXSTYLE) & WS_EX_TOPMOST);
}

TEST_F(Windows, TitleIsFoundWholeInAnyCaseAndCutToTheBuffer) {
    const HWND own = OpenOwn();
    SetWindowTextA(own, "a-long-title");
    EXPECT_EQ(FindWindowA("contract", "A-Long-Title"), own);
    EXPECT_EQ(FindWindowA("Contract", "a-long"), nullptr);
    for (const HWND window : {own, OpenOther("a-long-title")}) {
        char text[32] = "";
        EXPECT_EQ(GetClassNameA(window, text, 5), 4);
        EXPECT_EQ(GetWindowTextA(window, text, 7), 6);
        EXPECT_STREQ(text, "a-long");
    }
}

TEST_F(Windows, ShowReturnsThePreviousStateAndActivatesOnlyAHiddenOne) {
    const HWND other = OpenOwn(WS_POPUP | WS_VISIBLE);
    const HWND window = OpenOwn();
    EXPECT_FALSE(ShowWindow(window, SW_SHOWNOACTIVATE));
    EXPECT_TRUE(ShowWindow(window, SW_SHOW));
    EXPECT_EQ(GetForegroundWindow(), other);
    ShowWindow(window, SW_HIDE);
    ShowWindow(window, SW_SHOW);
    EXPECT_EQ(GetForegroundWindow(), window);
    EXPECT_TRUE(ShowWindow(window, SW_HIDE));
    EXPECT_EQ(GetForegroundWindow(), other) << "the next visible one";
    EXPECT_FALSE(ShowWindow(window, SW_SHOWNA));
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_EQ(GetForegroundWindow(), other);
}

TEST_F(Windows, SetWindowPosCanMoveWithoutSizingRaisingOrActivating) {
    const HWND below = OpenOwn(WS_POPUP | WS_VISIBLE);
    const HWND above = OpenOwn(WS_POPUP | WS_VISIBLE);
    SetForegroundWindow(above);
    EXPECT_TRUE(SetWindowPos(below, HWND_TOP, -500, 20, 1, 1, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE));
    EXPECT_EQ(WindowRect(below), (RECT{-500, 20, -200, 220}));
    EXPECT_EQ(Order({below, above}), (std::vector{above, below}));
    EXPECT_EQ(GetForegroundWindow(), above);
}

TEST_F(Windows, PlacementChangesTheNormalRectangleOfAMinimizedWindow) {
    const HWND window = OpenOwn(WS_OVERLAPPEDWINDOW | WS_VISIBLE, WS_EX_TOOLWINDOW);
    ShowWindow(window, SW_MINIMIZE);
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    ASSERT_TRUE(GetWindowPlacement(window, &placement));
    EXPECT_EQ(placement.showCmd, UINT{SW_SHOWMINIMIZED});
    EXPECT_EQ(placement.rcNormalPosition, RECT_OF_WINDOWS);
    placement.showCmd = SW_SHOWMINNOACTIVE;
    placement.rcNormalPosition = {150, 160, 450, 360};
    EXPECT_TRUE(SetWindowPlacement(window, &placement));
    EXPECT_TRUE(IsIconic(window));
    ShowWindow(window, SW_RESTORE);
    EXPECT_EQ(WindowRect(window), (RECT{150, 160, 450, 360}));
}

TEST_F(Windows, DisplayIsTheNearestOneAndReportsItsAreas) {
    const HMONITOR primary = MonitorFromPoint({0, 0}, MONITOR_DEFAULTTONULL);
    ASSERT_NE(primary, nullptr);
    const RECT away{-30000, -30000, -29000, -29000};
    EXPECT_EQ(MonitorFromRect(&away, MONITOR_DEFAULTTONULL), nullptr);
    EXPECT_EQ(MonitorFromRect(&away, MONITOR_DEFAULTTONEAREST), primary);
    EXPECT_EQ(MonitorFromPoint({30000, 30000}, MONITOR_DEFAULTTOPRIMARY), primary);
    EXPECT_EQ(MonitorFromWindow(OpenOwn(), MONITOR_DEFAULTTONULL), primary);
    MONITORINFOEXA info{};
    EXPECT_FALSE(GetMonitorInfoA(primary, &info)) << "without its size";
    info.cbSize = sizeof info;
    ASSERT_TRUE(GetMonitorInfoA(primary, &info));
    EXPECT_EQ(info.rcMonitor, (RECT{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}));
    RECT shared;
    EXPECT_TRUE(IntersectRect(&shared, &info.rcMonitor, &info.rcWork) && shared == info.rcWork);
    EXPECT_EQ(info.dwFlags, MONITORINFOF_PRIMARY);
    EXPECT_TRUE(std::string(info.szDevice).starts_with("\\\\.\\DISPLAY"));
}

} // namespace
