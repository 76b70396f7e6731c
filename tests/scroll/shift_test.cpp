#include "scroll/shift.h"

#include "support/quorl_test.h"
#include "windows/locked_windows.h"

class Shift : public RunningQuorl {
  protected:
    HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    HWND other = OpenWindow("other", {600, 100, 900, 400});
    HWND list = OpenWindow("list", {10, 10, 50, 50}, "SysListView32 of a library");
};

TEST_F(Shift, ClampsToTheDesktop) {
    const auto shifted = [](const RECT& window, int dx, int dy) {
        return ShiftedCorner(window, dx, dy, {1000, 500, 2024, 1268}, {0, 0, 4096, 1536}, 5);
    };
    EXPECT_EQ(shifted({4000, 1500, 4400, 1700}, 96, 36), (POINT{4096, 1536}));
    EXPECT_EQ(shifted({4000, 1500, 4400, 1700}, 97, 37), (POINT{3691, 1331})) << "past the far edges";
    EXPECT_EQ(shifted({-900, -450, -500, -150}, -200, -100), (POINT{-1000, -500}));
    EXPECT_EQ(shifted({4000, 1500, 9000, 4000}, 200, 200), (POINT{-909, -500})) << "too large";
}

TEST_F(Shift, PingsMovesAndShowsWindowsAndScrollsListViews) {
    LockWindow(other);
    EnableWindow(list, FALSE);
    ShiftWindows(30, -7);
    EXPECT_EQ(RectOf(editor), Rect(130, 93, 530, 393));
    EXPECT_EQ(WindowOf(editor).received.at(0).record, Rect(130, 93, 400, 300)) << "corner and size";
    EXPECT_TRUE(CalledInOrder({"SendMessageTimeoutA", "SetWindowPos", "ShowWindow"}));
    EXPECT_TRUE(WindowOf(other).received.empty()) << "locked";
    const DeskMessage& got = WindowOf(list).received.at(0);
    EXPECT_TRUE(got.message == LVM_SCROLL && got.wParam == 30 && got.lParam == -7);
    EXPECT_EQ(WindowOf(list).received.size(), 1U);
}

TEST_F(Shift, WaitsOnceForEachWindowThatDoesNotAnswer) {
    ShowWindow(other, SW_MAXIMIZE);
    ActionTable[ACTION_RESTORE_MAXIMIZED].value = 1;
    for (const HWND hung : {editor, other, list})
        WindowOf(hung).response = DeskResponse::TimesOut;
    const DWORD before = Desk.now;
    ShiftWindows(30, 0);
    EXPECT_EQ(Desk.now - before, 300U);
    EXPECT_EQ(RectOf(editor).left, 100);
    WindowOf(other).response = DeskResponse::Responds;
    for (const bool bOn : {false, true}) {
        ActionTable[ACTION_RESTORE_MAXIMIZED].value = bOn;
        ShiftWindows(30, 0);
        EXPECT_EQ(IsZoomed(other), !bOn);
    }
}
