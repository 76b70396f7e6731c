#include "mouse/hook_mouse.h"

#include "actions/action_table.h"
#include "core/state.h"
#include "mouse/edge_scroll.h"
#include "scroll/scroll_view.h"
#include "support/quorl_test.h"

namespace {

constexpr POINT MIDDLE{500, 300};
constexpr POINT RIGHT_EDGE{1022, 300};

LRESULT News(UINT mouseMessage, POINT at) {
    Desk.cursor = at;
    return SendMessageA(MainWnd, HOOK_MOUSE_MESSAGE, mouseMessage, 0);
}

// Edge scrolling is on and armed, Shift has no say, and the view stands clear of the desktop's limits.
class MouseNews : public RunningQuorl {
  protected:
    void SetUp() override {
        RunningQuorl::SetUp();
        Settle();
        ActionTable[ROW_FOLLOW_MOUSE].value = 1;
        ActionTable[ROW_SHIFT_SUPPRESS].value = 0;
        News(WM_MOUSEMOVE, MIDDLE);
        GoBack();
    }

    static void GoBack() {
        ScrollView(MainWnd, 1024, 384, SV_ABSOLUTE, 0);
        Desk.trace.clear();
    }
};

TEST_F(RunningQuorl, IsOnlyArmedByTheFirstNewsOfTheMouseEvenAtAnEdge) {
    EXPECT_EQ(News(WM_LBUTTONDOWN, RIGHT_EDGE), 0) << "off, as at every first start";
    ActionTable[ROW_FOLLOW_MOUSE].value = 1;
    EXPECT_EQ(News(WM_LBUTTONDOWN, RIGHT_EDGE), 0);
    EXPECT_EQ(VDesk.left, 0);
    EXPECT_EQ(News(WM_LBUTTONDOWN, RIGHT_EDGE), 1);
    EXPECT_EQ(VDesk.left, 1024);
}

TEST_F(MouseNews, TheDelaySaysWhatScrolls) {
    const struct {
        int delay;
        UINT message;
        LRESULT result;
        int left;
    } cases[] = {
        {0, WM_NCMOUSEMOVE,   0, 2048},
        {0, WM_NCLBUTTONDOWN, 1, 2048},
        {7, WM_MOUSEMOVE,     0, 2048},
        {1, WM_MOUSEMOVE,     0, 1024},
        {1, WM_RBUTTONDOWN,   1, 1024},
        {1, WM_LBUTTONDOWN,   1, 2048},
        {2, WM_LBUTTONDOWN,   1, 1024},
        {2, WM_RBUTTONDOWN,   1, 2048},
        {2, WM_NCRBUTTONDOWN, 1, 2048},
        {3, WM_MOUSEMOVE,     0, 1024},
        {0, WM_LBUTTONUP,     0, 1024},
        {0, WM_MBUTTONDOWN,   0, 1024},
    };
    for (const auto& [delay, message, result, left] : cases) {
        GoBack();
        Options.mousescroll_delay = delay;
        EXPECT_EQ(News(message, RIGHT_EDGE), result) << delay << ' ' << message;
        EXPECT_EQ(VDesk.left, left) << delay << ' ' << message;
    }
}

TEST_F(MouseNews, TheShiftKeysHoldTheCursorBackByTheirStateOfTheMoment) {
    const struct {
        int bRule, bLeft, bRight, bJumps;
    } cases[] = {
        {0, 0, 1, 1},
        {1, 0, 0, 0},
        {1, 1, 0, 1},
        {1, 0, 1, 0},
        {1, 1, 1, 0},
    };
    for (const auto& [bRule, bLeft, bRight, bJumps] : cases) {
        GoBack();
        ActionTable[ROW_SHIFT_SUPPRESS].value = bRule;
        HoldKey(VK_LSHIFT, bLeft);
        HoldKey(VK_RSHIFT, bRight);
        News(WM_MOUSEMOVE, RIGHT_EDGE);
        EXPECT_EQ(VDesk.left, 2048);
        EXPECT_EQ(Desk.cursor.x, bJumps ? 15 : 1022) << bRule << ' ' << bLeft << ' ' << bRight;
    }
}

TEST_F(MouseNews, AtTheDesktopsLimitTheCursorStaysAndTheMapIsPaintedAllTheSame) {
    ScrollView(MainWnd, 3072, 384, SV_ABSOLUTE, 0);
    Desk.trace.clear();
    EXPECT_EQ(News(WM_LBUTTONDOWN, RIGHT_EDGE), 1);
    EXPECT_EQ(Desk.cursor.x, 1022);
    EXPECT_GE(CallsOf("InvalidateRect"), 3) << "by the scroll, the edge and the click";
}

LRESULT NestedResult = -1;

// A window that reports a click while it is being moved.
LRESULT CALLBACK TalkativeWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_MOVING)
        NestedResult = News(WM_LBUTTONDOWN, RIGHT_EDGE);
    return DefWindowProcA(window, message, wParam, lParam);
}

TEST_F(MouseNews, NewsThatComesInsideAScrollIsDropped) {
    WNDCLASSA description{};
    description.lpfnWndProc = TalkativeWndProc;
    description.lpszClassName = "Talkative";
    RegisterClassA(&description);
    CreateWindowExA(0, "Talkative", "", WS_VISIBLE, 10, 10, 90, 90, nullptr, nullptr, nullptr, nullptr);
    Wait(1200); // the table takes it in
    EXPECT_EQ(News(WM_LBUTTONDOWN, RIGHT_EDGE), 1);
    EXPECT_EQ(NestedResult, 0);
    EXPECT_EQ(VDesk.left, 2048) << "one scroll";
}

TEST_F(MouseNews, HeldButtonsSuppressMovesOnlyAndOnlyWhenTheUserWishes) {
    const struct {
        int bRule, button;
        UINT message;
        int left;
    } cases[] = {
        {1, VK_LBUTTON, WM_MOUSEMOVE,   1024},
        {1, VK_RBUTTON, WM_MOUSEMOVE,   1024},
        {1, VK_MBUTTON, WM_MOUSEMOVE,   2048},
        {1, VK_LBUTTON, WM_LBUTTONDOWN, 2048},
        {0, VK_LBUTTON, WM_MOUSEMOVE,   2048},
    };
    for (const auto& [bRule, button, message, left] : cases) {
        GoBack();
        ActionTable[ROW_SUPPRESS_WHEN_DRAGGING].value = bRule;
        HoldKey(button, 1);
        News(message, RIGHT_EDGE);
        EXPECT_EQ(VDesk.left, left) << bRule << ' ' << button << ' ' << message;
        HoldKey(button, 0);
    }
}

TEST_F(MouseNews, TheMapFollowsADragUnlessQuickRedrawIsOff) {
    for (const int button : {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON}) {
        HoldKey(button, 1);
        for (const int bQuick : {1, 0}) {
            ActionTable[ROW_QUICK_REDRAW].value = bQuick;
            Desk.trace.clear();
            News(WM_MOUSEMOVE, MIDDLE);
            EXPECT_EQ(CallsOf("UpdateWindow"), bQuick) << button;
        }
        HoldKey(button, 0);
    }
}

TEST_F(MouseNews, AMoveWithNothingToDoAsksForTheCursorTheMonitorsAndTheButtons) {
    Desk.monitors.push_back({1024, 0, 1824, 600});
    News(WM_MOUSEMOVE, MIDDLE);
    const std::vector<std::string> made(Desk.trace.begin(), Desk.trace.end());
    const std::vector<std::string> wanted{"SendMessageA",     "GetCursorPos",    "EnumDisplayMonitors",
                                          "GetMonitorInfoA",  "GetMonitorInfoA", "GetAsyncKeyState",
                                          "GetAsyncKeyState", "GetAsyncKeyState"};
    EXPECT_EQ(made, wanted);
}

TEST_F(MouseNews, AChangeOfDisplayIsNoticedByMovesAndReleasesNotByClicks) {
    int width = 1024;
    for (const UINT message : {WM_MOUSEMOVE, WM_NCMOUSEMOVE, WM_LBUTTONUP, WM_RBUTTONUP}) {
        Desk.monitors.assign(1, Rect(0, 0, width - 100, 600));
        News(WM_RBUTTONDOWN, MIDDLE);
        EXPECT_EQ(ScreenW(), width) << message;
        News(message, MIDDLE);
        EXPECT_EQ(ScreenW(), width -= 100) << message;
    }
}

TEST_F(MouseNews, AfterAnyFailedCallTheNextNewsScrollsAgain) {
    int nth = 0;
    do {
        GoBack();
        Desk.fault = {"", ++nth, 0, 0, 0};
        News(WM_RBUTTONDOWN, RIGHT_EDGE);
        EXPECT_EQ(VDesk.left == 2048, nth > 2) << "only without news or a cursor nothing happens, " << nth;
        Desk.fault.callsLeft = 0;
        GoBack();
        EXPECT_EQ(News(WM_LBUTTONDOWN, RIGHT_EDGE), 1) << nth;
        EXPECT_EQ(VDesk.left, 2048) << nth;
    } while (Desk.fault.hits > 0);
    EXPECT_GT(nth, 10);
}

class DelayedScroll : public MouseNews {
  protected:
    void SetUp() override {
        MouseNews::SetUp();
        Options.mousescroll_delay = 3;
        Options.mousescroll_delay_time = 250;
        ActionTable[ROW_SHIFT_SUPPRESS].value = 1; // and no Shift is held: only scrolls at once ask that
    }
};

TEST_F(DelayedScroll, ComesOnceTheTimeSinceTheFirstNewsIsOverAndTakesTheCursorAlong) {
    News(WM_MOUSEMOVE, RIGHT_EDGE);
    Wait(200);
    News(WM_MOUSEMOVE, {1023, 310});
    EXPECT_EQ(VDesk.left, 1024);
    Wait(50);
    EXPECT_EQ(VDesk.left, 2048);
    EXPECT_EQ(Desk.cursor, (POINT{15, 300})) << "as the first news had it";
    Wait(1000);
    EXPECT_EQ(VDesk.left, 2048) << "one wait, one scroll";
}

TEST_F(DelayedScroll, IsOffWhenTheMouseWasSeenAwayFromTheEdges) {
    News(WM_MOUSEMOVE, RIGHT_EDGE);
    News(WM_MOUSEMOVE, MIDDLE);
    Desk.cursor = RIGHT_EDGE; // back again, but nobody has told
    Wait(250);
    EXPECT_EQ(VDesk.left, 1024);
    News(WM_MOUSEMOVE, RIGHT_EDGE);
    Desk.cursor = {1018, 300}; // left it, and nobody has told
    Wait(250);
    EXPECT_EQ(VDesk.left, 1024);
    News(WM_MOUSEMOVE, RIGHT_EDGE);
    Wait(250);
    EXPECT_EQ(VDesk.left, 2048) << "each wait leaves the next one free";
}

TEST_F(DelayedScroll, GoesTheOldWayWhenTheCursorSlidesToAnotherEdge) {
    News(WM_MOUSEMOVE, RIGHT_EDGE);
    News(WM_MOUSEMOVE, {500, 767});
    Wait(250);
    EXPECT_EQ(VDesk, Rect(2048, 384, 3072, 1152));
}

TEST_F(DelayedScroll, SaysWhetherItsTimerStarted) {
    Desk.fault = {"SetTimer", 1, 0, 0, 0};
    EXPECT_EQ(StartDelayedScroll(MainWnd, &MIDDLE, &MIDDLE), 0);
    EXPECT_EQ(Desk.beeps.size(), 1u) << "refused";
    EXPECT_EQ(StartDelayedScroll(MainWnd, &MIDDLE, &MIDDLE), 1);
    EXPECT_EQ(StartDelayedScroll(MainWnd, &MIDDLE, &MIDDLE), 0) << "one is under way";
}

class FocusFollowsMouse : public MouseNews {
  protected:
    HWND editor = nullptr;
    void SetUp() override {
        MouseNews::SetUp();
        editor = OpenWindow("editor", {100, 100, 600, 500});
        ActionTable[ROW_XWIN_MOUSE].value = 1;
    }
};

TEST_F(FocusFollowsMouse, TheProgramUnderTheCursorIsNamedAndComesForward) {
    const HWND child = OpenWindow("", {450, 250, 600, 400});
    RowOf(child).style = WS_CHILD | WS_VISIBLE;
    RowOf(child).owner = editor;
    News(WM_MOUSEMOVE, MIDDLE);
    EXPECT_EQ(GetForegroundWindow(), editor);
    EXPECT_EQ(LastTip(), "editor");
    News(WM_MOUSEMOVE, {120, 320});
    EXPECT_EQ(Desk.beeps.size(), 1u) << "it is there already";
}

TEST_F(FocusFollowsMouse, AWindowThatHangsOrHasNoTitleIsLeftAlone) {
    const HWND before = GetForegroundWindow();
    RowOf(editor).answer = DeskAnswer::Hung;
    News(WM_MOUSEMOVE, MIDDLE);
    EXPECT_EQ(Desk.beeps.size(), 1u);
    RowOf(editor).answer = DeskAnswer::Answers;
    RowOf(editor).title.clear();
    News(WM_MOUSEMOVE, MIDDLE);
    EXPECT_EQ(GetForegroundWindow(), before);
    EXPECT_EQ(Desk.beeps.size(), 3u);
    News(WM_LBUTTONDOWN, MIDDLE);
    EXPECT_EQ(Desk.beeps.size(), 3u) << "only moves";
}

} // namespace
