// Moving without sizing, and window placements.
#include "contract/contract_test.h"

namespace {

using Placement = Contract;

TEST_F(Placement, SetWindowPosCanMoveWithoutSizingRaisingOrActivating) {
    const HWND below = OpenOwn(WS_POPUP | WS_VISIBLE);
    const HWND above = OpenOwn(WS_POPUP | WS_VISIBLE);
    SetForegroundWindow(above);
    EXPECT_TRUE(SetWindowPos(below, HWND_TOP, -500, 20, 1, 1, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE));
    EXPECT_EQ(WindowRect(below), (RECT{-500, 20, -200, 220}));
    EXPECT_EQ(Order({below, above}), (std::vector{above, below}));
    EXPECT_EQ(GetForegroundWindow(), above);
}

TEST_F(Placement, ChangesTheNormalRectangleOfAMinimizedWindow) {
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

TEST_F(Placement, ShowWithoutActivationLeavesTheForegroundAlone) {
    const HWND front = OpenOwn(WS_POPUP | WS_VISIBLE);
    SetForegroundWindow(front);
    const HWND window = OpenOwn();
    EXPECT_FALSE(ShowWindow(window, SW_SHOWNA));
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_EQ(GetForegroundWindow(), front);
}

} // namespace
