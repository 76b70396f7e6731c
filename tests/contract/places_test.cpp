// Where windows stand, whether they show, and which one lies under a point.
#include "contract/contract_test.h"

namespace {

using Places = Contract;

TEST_F(Places, AWindowHearsOnlyOfWhatIsNewAboutItsPlace) {
    const HWND window = OpenOwn();
    const auto heard = [window](int x, int y, int width, int height) {
        Seen.clear();
        MoveWindow(window, x, y, width, height, TRUE);
        return SeenOf({WM_MOVE, WM_SIZE});
    };
    EXPECT_EQ(heard(100, 120, 300, 200), Kinds{});
    EXPECT_EQ(heard(110, 120, 300, 200), Kinds{WM_MOVE});
    EXPECT_EQ(Seen.back().lParam, MAKELPARAM(110, 120));
    EXPECT_EQ(heard(110, 120, 310, 200), Kinds{WM_SIZE});
    EXPECT_EQ(Seen.back().lParam, MAKELPARAM(310, 200));
    EXPECT_EQ(heard(0, 0, 40, 40), (Kinds{WM_MOVE, WM_SIZE}));
}

TEST_F(Places, OnlyAWindowWithASizingFrameIsAskedForItsLimits) {
    Replies[WM_GETMINMAXINFO] = [](const MSG& arrived) {
        auto& limits = *reinterpret_cast<MINMAXINFO*>(arrived.lParam);
        limits.ptMinTrackSize = {40, 13};
        limits.ptMaxTrackSize = {2000, 1500};
        return 0;
    };
    const HWND sizable = OpenOwn(WS_POPUP | WS_THICKFRAME);
    MoveWindow(sizable, 10, 20, 3000, 4000, TRUE);
    EXPECT_EQ(PlaceOf(sizable), Rect(10, 20, 2010, 1520));
    MoveWindow(sizable, 10, 20, 1, -5, TRUE);
    EXPECT_EQ(PlaceOf(sizable), Rect(10, 20, 50, 33));
    const HWND fixed = OpenOwn();
    MoveWindow(fixed, 10, 20, 3000, 5, TRUE);
    EXPECT_EQ(PlaceOf(fixed), Rect(10, 20, 3010, 25));
}

TEST_F(Places, ShowTellsWhetherItWasVisibleAndActivatesOnlyWhatWasHidden) {
    const HWND other = OpenOwn();
    const HWND window = OpenOwn();
    const struct {
        int command;
        BOOL bWasVisible;
        HWND foreground;
    } steps[] = {
        {SW_SHOWNOACTIVATE, FALSE, other },
        {SW_SHOW,           TRUE,  other }, // does nothing to what is visible
        {SW_HIDE,           TRUE,  other },
        {SW_SHOW,           FALSE, window},
        {SW_HIDE,           TRUE,  other }, // the next in sight has it
    };
    ShowWindow(other, SW_SHOW);
    for (const auto& step : steps) {
        EXPECT_EQ(ShowWindow(window, step.command) != 0, step.bWasVisible) << step.command;
        EXPECT_EQ(IsWindowVisible(window), step.command != SW_HIDE) << step.command;
        EXPECT_EQ(GetForegroundWindow(), step.foreground) << step.command;
    }
    const HWND created = OpenOwn(WS_POPUP | WS_VISIBLE);
    EXPECT_EQ(GetForegroundWindow(), created);
    EXPECT_EQ(Order({other, created}), (std::vector{created, other}));
}

TEST_F(Places, UnderAPointLiesTheTopmostVisibleWindowWithoutItsFarSides) {
    const DWORD style = WS_POPUP | WS_VISIBLE;
    const HWND lower = OpenOwn(style, WS_EX_TOPMOST, {200, 200, 400, 400});
    const HWND upper = OpenOwn(style, WS_EX_TOPMOST, {300, 300, 500, 500}, lower);
    EXPECT_EQ(WindowFromPoint({250, 250}), lower);
    EXPECT_EQ(WindowFromPoint({350, 350}), upper);
    EXPECT_EQ(WindowFromPoint({499, 499}), upper);
    EXPECT_NE(WindowFromPoint({500, 499}), upper);
    ShowWindow(upper, SW_HIDE);
    EXPECT_EQ(WindowFromPoint({350, 350}), lower);
}

} // namespace
