#include "scroll/shift.h"

#include "support/quorl_test.h"
#include "windows/locked_windows.h"
#include "windows/window_table.h"

class Shift : public RunningQuorl {
  protected:
    HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    HWND other = OpenWindow("other", {600, 100, 900, 400});
    HWND list = OpenWindow("list", {10, 10, 50, 50}, "SysListView32 of a library");
};

TEST_F(Shift, ClampsToTheDesktop) {
    VDesk = {1000, 500, 2024, 1268};
    const auto shifted = [this](const RECT& from, int dx, int dy) {
        WindowOf(editor).rect = from;
        ShiftWindows(dx, dy);
        return RectOf(editor);
    };
    EXPECT_EQ(shifted({4000, 1500, 4400, 1700}, 96, 36), Rect(4096, 1536, 4496, 1736));
    EXPECT_EQ(shifted({4000, 1500, 4400, 1700}, 97, 37), Rect(3691, 1331, 4091, 1531))
        << "past the far edges";
    EXPECT_EQ(shifted({4000, 1500, 9000, 4000}, 200, 200), Rect(-909, -500, 4091, 2000)) << "too large";
}

TEST_F(Shift, PingsMovesAndShowsWindowsAndScrollsListViews) {
    LockWindow(other);
    EnableWindow(list, FALSE);
    SetWindowPos(MainWnd, HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    BringWindowToTop(editor);
    RebuildWindowTable();
    WindowOf(editor).received.clear();
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

// While the window below it handles its ping.
TEST_F(Shift, LeavesAWindowThatIsMinimizedMeanwhile) {
    WindowOf(editor).duringMessage = [this] { ShowWindow(other, SW_MINIMIZE); };
    const RECT normal = RectOf(other);
    ShiftWindows(30, 0);
    const RECT minimized = RectOf(other);
    Desk.foreground = other;
    RunAction(ACTION_ACTIVE_RIGHT_MIN);
    EXPECT_EQ(RectOf(other), minimized);
    EXPECT_EQ(WindowOf(other).normalRect, normal);
    EXPECT_TRUE(WindowOf(other).received.empty());
}
