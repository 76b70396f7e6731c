#include "scroll/refresh.h"

#include "support/quorl_test.h"
#include "windows/window_table.h"

class Refresh : public RunningQuorl {
  protected:
    HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    HWND other = OpenWindow("other", {600, 100, 900, 400});
};

TEST_F(Refresh, OnlyComparesRectsForElevenQuietTicks) {
    RebuildWindowTable();                   // the map is in it, too
    OpenWindow("opened", {10, 10, 50, 50}); // changes no row
    Desk.trace.clear();
    for (std::size_t tick = 0; tick < 12; ++tick) {
        EXPECT_EQ(Desk.trace.size(), 4 * tick);
        RefreshTimer(MainWnd, WM_TIMER, REFRESH_TIMER, Desk.now);
    }
    EXPECT_EQ(CountCalls("EnumWindows"), 1);
    for (int tick = 0; tick < 11; ++tick)
        RefreshTimer(MainWnd, WM_TIMER, REFRESH_TIMER, Desk.now); // from the first one again
    EXPECT_EQ(CountCalls("EnumWindows"), 1);
}

TEST_F(Refresh, NoticesAMovedOrClosedWindow) {
    WindowOf(editor).rect.bottom += 1;
    Wait(100);
    EXPECT_TRUE(CalledInOrder({"EnumWindows", "InvalidateRect", "UpdateWindow"}));
    KillWindow(other);
    Wait(100);
    EXPECT_EQ(num_windows, 2);
    bQuitting = true;
    KillWindow(editor);
    Wait(100);
    EXPECT_EQ(num_windows, 2) << "the table belongs to the fold";
}
