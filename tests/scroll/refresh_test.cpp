#include "scroll/refresh.h"

#include "core/state.h"
#include "scroll/window_table.h"
#include "support/quorl_test.h"
#include "toolwin/map_scale.h"

namespace {

class Refresh : public QuorlTest {
  protected:
    HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    HWND other = OpenWindow("other", {600, 100, 900, 400});

    void Start() {
        ASSERT_EQ(StartQuorl(), 1);
        RebuildWindowTable(); // the Toolwin is in it, too
        Settle();
        Desk.trace.clear();
    }

    void Tick() { RefreshTimer(MainWnd, WM_TIMER, REFRESH_TIMER, Desk.now); }
};

TEST_F(Refresh, AQuietTickAsksForEachWindowsPlaceAndNothingElseTenTimesASecond) {
    Start();
    Tick();
    EXPECT_EQ(CallsOf("GetWindowRect"), num_windows);
    EXPECT_EQ(Desk.trace.size(), static_cast<std::size_t>(num_windows));
    Wait(900);
    EXPECT_EQ(CallsOf("GetWindowRect"), 10 * num_windows);
}

TEST_F(Refresh, EachTwelfthTickRebuildsTheTableWhateverItSays) {
    Start();
    const HWND opened = OpenWindow("opened", {10, 10, 50, 50}); // changes no row
    for (int tick = 1; tick <= 24; ++tick) {
        Tick();
        EXPECT_EQ(CallsOf("EnumWindows"), tick / 12) << "tick " << tick;
    }
    EXPECT_EQ(WindowTable[1].hwnd, opened) << "right under the Toolwin, which stays on top";
}

TEST_F(Refresh, AWindowThatMovedOrClosedIsNoticedAtTheNextTick) {
    Start();
    RowOf(editor).place.bottom += 1;
    Wait(REFRESH_PERIOD);
    EXPECT_EQ(CallsOf("EnumWindows"), 1);
    EXPECT_TRUE(CameInOrder({"EnumWindows", "InvalidateRect", "UpdateWindow"})) << "the map follows";

    const int before = num_windows;
    KillWindow(other);
    Wait(REFRESH_PERIOD);
    EXPECT_EQ(num_windows, before - 1);
}

TEST_F(Refresh, TheFlashTimerRepaintsTheActiveWindowsBoxAlone) {
    Start();
    Desk.foreground = editor;
    RECT map{};
    GetClientRect(MainWnd, &map);
    RowOf(other).place.left += 1;
    Desk.trace.clear();

    RefreshTimer(MainWnd, WM_TIMER, FLASH_TIMER, Desk.now);

    EXPECT_EQ(RowOf(MainWnd).invalid, WindowBox(PlaceOf(editor), map, VDesk, Quorl));
    EXPECT_TRUE(CameInOrder({"InvalidateRect", "UpdateWindow"}));
    EXPECT_EQ(CallsOf("EnumWindows"), 0);

    Desk.foreground = nullptr;
    RefreshTimer(MainWnd, WM_TIMER, FLASH_TIMER, Desk.now); // no window, no harm
}

} // namespace
