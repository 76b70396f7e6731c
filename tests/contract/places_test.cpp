// Where windows stand and whether they show.
#include "contract/contract_test.h"

namespace {

using Places = Contract;

const RECT PLACE{100, 120, 400, 320};

BOOL CALLBACK NoteMonitor(HMONITOR monitor, HDC, RECT*, LPARAM to) {
    reinterpret_cast<std::vector<HMONITOR>*>(to)->push_back(monitor);
    return TRUE;
}

TEST_F(Places, AWindowGoesWhereItIsMovedOffTheScreenToo) {
    for (const HWND window : {OpenOwn(PLACE), OpenStranger("moved", PLACE)}) {
        for (const RECT& place : {Rect(-900, -700, -500, -400), Rect(5000, 3000, 5400, 3300), PLACE}) {
            EXPECT_TRUE(MoveWindow(window, place.left, place.top, place.right - place.left,
                                   place.bottom - place.top, TRUE));
            EXPECT_EQ(PlaceOf(window), place);
        }
    }
}

TEST_F(Places, AWindowHearsOnlyOfWhatIsNewAboutItsPlace) {
    const HWND window = OpenOwn(PLACE, WS_POPUP);
    const auto heard = [window](int x, int y, int width, int height) {
        Seen.clear();
        MoveWindow(window, x, y, width, height, TRUE);
        return SeenOf({WM_MOVE, WM_SIZE});
    };
    EXPECT_EQ(heard(100, 120, 300, 200), (std::vector<UINT>{}));
    EXPECT_EQ(heard(110, 120, 300, 200), (std::vector<UINT>{WM_MOVE}));
    EXPECT_EQ(Seen.back().lParam, MAKELPARAM(110, 120));
    EXPECT_EQ(heard(110, 120, 310, 200), (std::vector<UINT>{WM_SIZE}));
    EXPECT_EQ(Seen.back().lParam, MAKELPARAM(310, 200));
    EXPECT_EQ(heard(0, 0, 40, 40), (std::vector<UINT>{WM_MOVE, WM_SIZE}));
}

TEST_F(Places, TheLimitsOfAWindowKeepItsSize) {
    Replies[WM_GETMINMAXINFO] = [](const MSG& arrived) {
        auto& limits = *reinterpret_cast<MINMAXINFO*>(arrived.lParam);
        limits.ptMinTrackSize = {40, 13};
        limits.ptMaxTrackSize = {2000, 1500};
        return 0;
    };
    const HWND sizable = OpenOwn(PLACE, WS_POPUP | WS_THICKFRAME);
    MoveWindow(sizable, 10, 20, 3000, 4000, TRUE);
    EXPECT_EQ(PlaceOf(sizable), Rect(10, 20, 2010, 1520));
    MoveWindow(sizable, 10, 20, 1, -5, TRUE);
    EXPECT_EQ(PlaceOf(sizable), Rect(10, 20, 50, 33));

    const HWND fixed = OpenOwn(PLACE, WS_POPUP);
    MoveWindow(fixed, 10, 20, 3000, 5, TRUE);
    EXPECT_EQ(PlaceOf(fixed), Rect(10, 20, 3010, 25)) << "without a sizing frame nobody asks";
}

TEST_F(Places, WithoutLimitsOfItsOwnAWindowGetsTheSystems) {
    const HWND window = OpenOwn(PLACE);
    MoveWindow(window, 0, 0, 5000, 5000, TRUE);
    const RECT large = PlaceOf(window);
    EXPECT_GE(large.right, 1024);
    EXPECT_LE(large.right, 1024 + 40) << "the screen and the frame";
    EXPECT_LE(large.bottom, 768 + 40);
    MoveWindow(window, 0, 0, 1, 1, TRUE);
    EXPECT_GT(PlaceOf(window).right, 50) << "room for the title bar's buttons";
    EXPECT_GT(PlaceOf(window).bottom, 15);
}

TEST_F(Places, TheClientAreaLacksTheFrame) {
    const struct {
        DWORD style;
        int least, most; // pixels of frame on each side
    } rows[] = {
        {WS_POPUP,                 0, 0 },
        {WS_POPUP | WS_BORDER,     1, 1 },
        {WS_POPUP | WS_THICKFRAME, 3, 12}
    };
    for (const auto& row : rows) {
        RECT client;
        ASSERT_TRUE(GetClientRect(OpenOwn(PLACE, row.style), &client));
        EXPECT_EQ(client.left, 0);
        EXPECT_EQ(client.top, 0);
        EXPECT_GE(300 - client.right, 2 * row.least);
        EXPECT_LE(300 - client.right, 2 * row.most);
        EXPECT_EQ(200 - client.bottom, 300 - client.right) << "the frame is as thick on each side";
    }
}

TEST_F(Places, ShowTellsWhetherItWasVisibleAndActivatesOnlyWhatWasHidden) {
    const HWND other = OpenOwn({500, 500, 600, 600}, WS_POPUP);
    const HWND window = OpenOwn(PLACE, WS_POPUP);
    ShowWindow(other, SW_SHOW);
    ASSERT_EQ(GetForegroundWindow(), other);

    EXPECT_FALSE(ShowWindow(window, SW_SHOWNOACTIVATE));
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_EQ(GetForegroundWindow(), other);
    EXPECT_TRUE(ShowWindow(window, SW_SHOW));
    EXPECT_EQ(GetForegroundWindow(), other) << "on a visible window SW_SHOW does nothing";

    EXPECT_TRUE(ShowWindow(window, SW_HIDE));
    EXPECT_FALSE(IsWindowVisible(window));
    EXPECT_FALSE(ShowWindow(window, SW_HIDE));
    EXPECT_FALSE(ShowWindow(window, SW_SHOWNA));
    EXPECT_EQ(GetForegroundWindow(), other);
    EXPECT_TRUE(ShowWindow(window, SW_HIDE));
    EXPECT_FALSE(ShowWindow(window, SW_SHOW));
    EXPECT_EQ(GetForegroundWindow(), window) << "showing a hidden one activates it";
    EXPECT_EQ(Order({other, window}), (std::vector{window, other}));
}

TEST_F(Places, CreationWithVisibleActivates) {
    const HWND other = OpenOwn({500, 500, 600, 600}, WS_POPUP);
    ShowWindow(other, SW_SHOW);
    const HWND window = OpenOwn(PLACE, WS_POPUP | WS_VISIBLE);
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_EQ(GetForegroundWindow(), window);
}

TEST_F(Places, AWindowThatHidesGivesTheForegroundAway) {
    const HWND below = OpenOwn({500, 500, 600, 600}, WS_OVERLAPPEDWINDOW);
    const HWND window = OpenOwn(PLACE, WS_OVERLAPPEDWINDOW);
    ShowWindow(below, SW_SHOW);
    ShowWindow(window, SW_SHOW);
    ASSERT_EQ(GetForegroundWindow(), window);
    ShowWindow(window, SW_HIDE);
    EXPECT_EQ(GetForegroundWindow(), below);
}

TEST_F(Places, AMinimizedWindowIsVisibleElsewhereAndComesBack) {
    for (const HWND window : {OpenOwn(PLACE), OpenStranger("minimized", PLACE)}) {
        ShowWindow(window, SW_SHOWNOACTIVATE);
        ShowWindow(window, SW_MINIMIZE);
        EXPECT_TRUE(IsIconic(window));
        EXPECT_TRUE(IsWindowVisible(window));
        EXPECT_FALSE(IsZoomed(window));
        const RECT small = PlaceOf(window); // far off the screen, or at its lower edge where no shell runs
        EXPECT_TRUE(small.top == -32000 || small.top > 700) << small.top;
        EXPECT_LE(small.right - small.left, 200);
        EXPECT_LE(small.bottom - small.top, 50);
        EXPECT_NE(GetWindowLongPtrA(window, GWL_STYLE) & static_cast<LONG_PTR>(WS_MINIMIZE), 0);
        ShowWindow(window, SW_RESTORE);
        EXPECT_FALSE(IsIconic(window));
        EXPECT_EQ(PlaceOf(window), PLACE);
    }
}

TEST_F(Places, AMaximizedWindowFillsTheScreenAndHideThenRestoreGivesItsOldPlace) {
    for (const HWND window : {OpenOwn(PLACE), OpenStranger("maximized", PLACE)}) {
        ShowWindow(window, SW_MAXIMIZE);
        ASSERT_TRUE(IsZoomed(window));
        const RECT large = PlaceOf(window);
        EXPECT_LE(large.left, 0);
        EXPECT_GE(large.right, 1024);

        MoveWindow(window, -500, 30, 700, 500, TRUE);
        EXPECT_TRUE(IsZoomed(window)) << "moving leaves it maximized";
        EXPECT_EQ(PlaceOf(window), Rect(-500, 30, 200, 530));

        EXPECT_TRUE(ShowWindow(window, SW_HIDE));
        EXPECT_TRUE(IsZoomed(window));
        EXPECT_FALSE(ShowWindow(window, SW_RESTORE));
        EXPECT_FALSE(IsZoomed(window));
        EXPECT_TRUE(IsWindowVisible(window));
        EXPECT_EQ(PlaceOf(window), PLACE);
    }
}

TEST_F(Places, AWindowMinimizedWhenMaximizedIsMaximizedAgain) {
    const HWND window = OpenOwn(PLACE);
    ShowWindow(window, SW_MAXIMIZE);
    ShowWindow(window, SW_MINIMIZE);
    EXPECT_FALSE(IsZoomed(window));
    ShowWindow(window, SW_RESTORE);
    EXPECT_TRUE(IsZoomed(window));
    ShowWindow(window, SW_RESTORE);
    EXPECT_FALSE(IsZoomed(window));
    EXPECT_EQ(PlaceOf(window), PLACE);
}

TEST_F(Places, MonitorsAreToldWithThePrimaryOneAtTheOrigin) {
    std::vector<HMONITOR> monitors;
    EXPECT_TRUE(EnumDisplayMonitors(nullptr, nullptr, NoteMonitor, reinterpret_cast<LPARAM>(&monitors)));
    ASSERT_EQ(monitors.size(), 1U);

    MONITORINFO info{};
    info.cbSize = sizeof info;
    static_assert(sizeof info == 40);
    EXPECT_TRUE(GetMonitorInfoA(monitors[0], &info));
    EXPECT_EQ(info.rcMonitor, Rect(0, 0, 1024, 768));
    EXPECT_EQ(info.dwFlags & 1, 1U) << "the primary one";
    EXPECT_LE(info.rcWork.bottom, 768);

    info = {};
    info.cbSize = 12;
    EXPECT_FALSE(GetMonitorInfoA(monitors[0], &info)) << "a record of another size is refused";
    EXPECT_EQ(info.rcMonitor, Rect(0, 0, 0, 0));
}

} // namespace
