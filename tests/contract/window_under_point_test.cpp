// Which window lies under a point, and whose it is.
#include <windows.h>

#include <gtest/gtest.h>

namespace {

HWND Open(DWORD style, HWND owner, int x, int y, int width, int height) {
    return CreateWindowExA(WS_EX_TOPMOST, "UnderPoint", "", style, x, y, width, height, owner, nullptr,
                           nullptr, nullptr);
}

TEST(WindowUnderPoint, IsTheTopmostVisibleOneAndAHiddenOneIsLookedThrough) {
    WNDCLASSA description{};
    description.lpfnWndProc = DefWindowProcA;
    description.lpszClassName = "UnderPoint";
    RegisterClassA(&description);
    const HWND lower = Open(WS_POPUP | WS_VISIBLE, nullptr, 200, 200, 200, 200);
    const HWND upper = Open(WS_POPUP | WS_VISIBLE, lower, 300, 300, 200, 200);
    ASSERT_TRUE(lower && upper);

    EXPECT_EQ(WindowFromPoint({250, 250}), lower);
    EXPECT_EQ(WindowFromPoint({350, 350}), upper);
    EXPECT_EQ(WindowFromPoint({499, 499}), upper);
    EXPECT_NE(WindowFromPoint({500, 499}), upper) << "right and bottom lie outside";
    ShowWindow(upper, SW_HIDE);
    EXPECT_EQ(WindowFromPoint({350, 350}), lower);

    EXPECT_EQ(GetParent(upper), lower) << "the owner of a pop-up";
    EXPECT_EQ(GetParent(lower), nullptr);
    EXPECT_EQ(GetParent(nullptr), nullptr);
    DestroyWindow(upper);
    DestroyWindow(lower);
}

TEST(WindowUnderPoint, AnOverlappedWindowHasNoParentEvenIfItHasAnOwner) {
    WNDCLASSA description{};
    description.lpfnWndProc = DefWindowProcA;
    description.lpszClassName = "UnderPoint";
    RegisterClassA(&description);
    const HWND owner = Open(WS_OVERLAPPEDWINDOW, nullptr, 0, 0, 200, 200);
    const HWND owned = Open(WS_OVERLAPPEDWINDOW, owner, 0, 0, 200, 200);
    EXPECT_EQ(GetParent(owned), nullptr);
    DestroyWindow(owned);
    DestroyWindow(owner);
}

} // namespace
