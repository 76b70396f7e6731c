#include "scroll/refresh.h"

#include "scroll/window_table.h"
#include "support/quorl_test.h"

class Refresh : public RunningQuorl {
  protected:
    HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    HWND other = OpenWindow("other", {600, 100, 900, 400});
};

TEST_F(Refresh, QuietTicksAskForEachWindowsPlaceAloneAndEachTwelfthRebuildsTheTable) {
    RebuildWindowTable();                   // the Toolwin is in it, too
    OpenWindow("opened", {10, 10, 50, 50}); // changes no row
    Desk.trace.clear();
    for (int tick = 1; tick <= 12; ++tick) {
        EXPECT_EQ(Desk.trace.size(), 3U * static_cast<std::size_t>(tick - 1));
        RefreshTimer(MainWnd, WM_TIMER, REFRESH_TIMER, Desk.now);
    }
    EXPECT_EQ(CallsOf("EnumWindows"), 1);
}

TEST_F(Refresh, AWindowThatMovedOrClosedIsNoticedATenthOfASecondLater) {
    RowOf(editor).place.bottom += 1;
    Wait(100);
    EXPECT_EQ(CallsOf("EnumWindows"), 1);
    EXPECT_TRUE(CameInOrder({"EnumWindows", "InvalidateRect", "UpdateWindow"})) << "the map follows";
    KillWindow(other);
    Wait(100);
    EXPECT_EQ(num_windows, 2);
}
