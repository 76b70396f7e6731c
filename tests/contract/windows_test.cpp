// Windows: creation and destruction, order and titles, position and visibility.
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
    EXPECT_FALSE(IsWindow(gone) || IsWindowVisible(gone) || IsWindowEnabled(gone));
    EXPECT_FALSE(IsIconic(gone) || IsZoomed(gone) || GetWindowRect(gone, &rect));
    EXPECT_EQ(rect, RECT_OF_WINDOWS) << "unchanged";
    EXPECT_FALSE(MoveWindow(gone, 0, 0, 10, 10, TRUE) || ShowWindow(gone, SW_SHOW));
    EXPECT_FALSE(SetForegroundWindow(gone) || DestroyWindow(gone));
    EXPECT_FALSE(GetClassNameA(gone, text, sizeof text) || GetWindowTextA(gone, text, sizeof text));
    EXPECT_STREQ(text, "") << "emptied";
    EXPECT_FALSE(SendMessageA(gone, WM_USER, 0, 0) || PostMessageA(gone, WM_USER, 0, 0));
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
}

TEST_F(Windows, FromPointIsTheTopmostVisibleOneWithoutItsFarEdges) {
    const HWND lower = OpenOwn(WS_POPUP | WS_VISIBLE, WS_EX_TOPMOST, {200, 200, 400, 400});
    const HWND upper = OpenOwn(WS_POPUP | WS_VISIBLE, WS_EX_TOPMOST, {300, 300, 500, 500}, lower);
    EXPECT_EQ(WindowFromPoint({499, 499}), upper);
    EXPECT_NE(WindowFromPoint({500, 499}), upper);
    ShowWindow(upper, SW_HIDE);
    EXPECT_EQ(WindowFromPoint({350, 350}), lower);
}

TEST_F(Windows, OpacityNeedsALayeredOne) {
    EXPECT_TRUE(SetLayeredWindowAttributes(OpenOwn(WS_POPUP, WS_EX_LAYERED), 0, 128, LWA_ALPHA));
    EXPECT_FALSE(SetLayeredWindowAttributes(OpenOwn(), 0, 128, LWA_ALPHA));
}

} // namespace
