#include "mouse/hook_mouse.h"

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
        ActionTable[ROW_FOLLOW_MOUSE].value = 1;
        ActionTable[ROW_SHIFT_SUPPRESS].value = 0;
        News(WM_MOUSEMOVE, MIDDLE);
        GoBack();
    }

    static void GoBack() {
        ScrollView(MainWnd, 1024, 384, SV_ABSOLUTE, 0);
        Desk.trace.clear();
    }

    static bool Scrolls(UINT message) {
        GoBack();
        News(message, RIGHT_EDGE);
        return VDesk.left == 2048;
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
    for (const int delay : {0, 7}) {
        Options.mousescroll_delay = delay;
        for (const UINT message : {WM_MOUSEMOVE, WM_NCMOUSEMOVE, WM_LBUTTONDOWN, WM_NCLBUTTONDOWN})
            EXPECT_TRUE(Scrolls(message)) << message;
        for (const UINT message : {WM_LBUTTONUP, WM_MBUTTONDOWN})
            EXPECT_FALSE(Scrolls(message)) << message;
    }
    Options.mousescroll_delay = 1;
    EXPECT_FALSE(Scrolls(WM_MOUSEMOVE));
    EXPECT_TRUE(Scrolls(WM_LBUTTONDOWN));
    EXPECT_FALSE(Scrolls(WM_RBUTTONDOWN));
    EXPECT_EQ(News(WM_RBUTTONDOWN, RIGHT_EDGE), 1) << "the edge takes the click all the same";
    EXPECT_EQ(News(WM_MOUSEMOVE, RIGHT_EDGE), 0) << "but never a move";
    Options.mousescroll_delay = 2;
    EXPECT_FALSE(Scrolls(WM_LBUTTONDOWN));
    EXPECT_TRUE(Scrolls(WM_RBUTTONDOWN));
    EXPECT_TRUE(Scrolls(WM_NCRBUTTONDOWN));
    Options.mousescroll_delay = 3;
    EXPECT_FALSE(Scrolls(WM_MOUSEMOVE));
}

TEST_F(MouseNews, TheShiftKeysHoldTheCursorBackByTheirStateOfTheMoment) {
    const auto jumps = [](int bLeft, int bRight) {
        HoldKey(VK_LSHIFT, bLeft);
        HoldKey(VK_RSHIFT, bRight);
        EXPECT_TRUE(Scrolls(WM_MOUSEMOVE));
        return Desk.cursor.x == 15;
    };
    EXPECT_TRUE(jumps(0, 1));
    ActionTable[ROW_SHIFT_SUPPRESS].value = 1;
    EXPECT_FALSE(jumps(0, 0));
    EXPECT_TRUE(jumps(1, 0));
    EXPECT_FALSE(jumps(0, 1));
    EXPECT_FALSE(jumps(1, 1));
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
    RowOf(OpenKnown("talkative", {10, 10, 100, 100})).procedure = TalkativeWndProc;
    EXPECT_EQ(News(WM_LBUTTONDOWN, RIGHT_EDGE), 1);
    EXPECT_EQ(NestedResult, 0);
    EXPECT_EQ(VDesk.left, 2048) << "one scroll";
}

TEST_F(MouseNews, HeldButtonsSuppressMovesOnlyAndOnlyWhenTheUserWishes) {
    const auto scrollsWith = [](int button, UINT message) {
        HoldKey(button, 1);
        const bool bScrolls = Scrolls(message);
        HoldKey(button, 0);
        return bScrolls;
    };
    EXPECT_TRUE(scrollsWith(VK_LBUTTON, WM_MOUSEMOVE));
    ActionTable[ROW_SUPPRESS_WHEN_DRAGGING].value = 1;
    EXPECT_FALSE(scrollsWith(VK_LBUTTON, WM_MOUSEMOVE));
    EXPECT_FALSE(scrollsWith(VK_RBUTTON, WM_MOUSEMOVE));
    EXPECT_TRUE(scrollsWith(VK_MBUTTON, WM_MOUSEMOVE));
    EXPECT_TRUE(scrollsWith(VK_LBUTTON, WM_LBUTTONDOWN));
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
        EXPECT_EQ(News(WM_RBUTTONDOWN, RIGHT_EDGE), nth > 2);
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
