#include "mouse/hook_mouse.h"

#include "actions/action_table.h"
#include "core/state.h"
#include "mouse/edge_scroll.h"
#include "scroll/scroll_view.h"
#include "support/quorl_test.h"
#include "toolwin/tip.h"

#include <algorithm>

namespace {

constexpr POINT MIDDLE{500, 300};
constexpr POINT RIGHT_EDGE{1022, 300};
constexpr POINT LEFT_EDGE{2, 300};

LRESULT News(UINT mouseMessage, POINT at) {
    Desk.cursor = at;
    return SendMessageA(MainWnd, HOOK_MOUSE_MESSAGE, mouseMessage, 0);
}

int RowValue(ActionId row, int value) {
    return ActionTable[row].value = value;
}

// Edge scrolling is on and armed, Shift has no say, and the view stands clear of the desktop's limits.
class MouseNews : public RunningQuorl {
  protected:
    void SetUp() override {
        RunningQuorl::SetUp();
        Settle();
        ScrollView(MainWnd, 1024, 384, SV_ABSOLUTE, 0);
        RowValue(ROW_FOLLOW_MOUSE, 1);
        RowValue(ROW_SHIFT_SUPPRESS, 0);
        News(WM_MOUSEMOVE, MIDDLE);
        Desk.trace.clear();
    }
};

class FirstMouseNews : public QuorlTest {};

TEST_F(FirstMouseNews, OnlyArmsEvenAtAnEdge) {
    ASSERT_EQ(StartQuorl(), 1);
    EXPECT_EQ(News(WM_LBUTTONDOWN, RIGHT_EDGE), 0) << "off, as at every first start";
    RowValue(ROW_FOLLOW_MOUSE, 1);
    EXPECT_EQ(News(WM_LBUTTONDOWN, RIGHT_EDGE), 0);
    EXPECT_EQ(VDesk, Rect(0, 0, 1024, 768));
    EXPECT_EQ(News(WM_LBUTTONDOWN, RIGHT_EDGE), 1);
    EXPECT_EQ(VDesk, Rect(1024, 0, 2048, 768));
}

TEST_F(MouseNews, TheDelaySaysWhatScrolls) {
    const struct {
        int delay;
        UINT message;
        LRESULT result;
        int bScrolls;
    } cases[] = {
        {0, WM_NCMOUSEMOVE,   0, 1},
        {0, WM_RBUTTONDOWN,   1, 1},
        {0, WM_NCLBUTTONDOWN, 1, 1},
        {7, WM_MOUSEMOVE,     0, 1},
        {1, WM_MOUSEMOVE,     0, 0},
        {1, WM_RBUTTONDOWN,   1, 0},
        {1, WM_LBUTTONDOWN,   1, 1},
        {2, WM_LBUTTONDOWN,   1, 0},
        {2, WM_NCRBUTTONDOWN, 1, 1},
        {3, WM_MOUSEMOVE,     0, 0},
        {0, WM_LBUTTONUP,     0, 0},
        {0, WM_MBUTTONDOWN,   0, 0},
        {0, WM_LBUTTONDBLCLK, 0, 0},
    };
    for (const auto& wanted : cases) {
        ScrollView(MainWnd, 1024, 384, SV_ABSOLUTE, 0);
        Options.mousescroll_delay = wanted.delay;
        EXPECT_EQ(News(wanted.message, RIGHT_EDGE), wanted.result) << wanted.delay << ' ' << wanted.message;
        EXPECT_EQ(VDesk.left, wanted.bScrolls ? 2048 : 1024) << wanted.delay << ' ' << wanted.message;
    }
}

TEST_F(MouseNews, TheShiftKeysHoldTheCursorBackByTheirStateOfTheMoment) {
    const struct {
        int bRule, bLeft, bRight, bJumps;
    } cases[] = {
        {0, 0, 0, 1},
        {0, 0, 1, 1},
        {1, 0, 0, 0},
        {1, 1, 0, 1},
        {1, 0, 1, 0},
        {1, 1, 1, 0},
    };
    for (const auto& wanted : cases) {
        ScrollView(MainWnd, 1024, 384, SV_ABSOLUTE, 0);
        RowValue(ROW_SHIFT_SUPPRESS, wanted.bRule);
        HoldKey(VK_LSHIFT, wanted.bLeft);
        HoldKey(VK_RSHIFT, wanted.bRight);
        News(WM_MOUSEMOVE, RIGHT_EDGE);
        EXPECT_EQ(VDesk.left, 2048);
        EXPECT_EQ(Desk.cursor.x, wanted.bJumps ? 15 : 1022)
            << wanted.bRule << ' ' << wanted.bLeft << ' ' << wanted.bRight;
    }
}

TEST_F(MouseNews, AtTheDesktopsLimitTheCursorStaysAndTheMapIsPaintedAllTheSame) {
    ScrollView(MainWnd, 3072, 384, SV_ABSOLUTE, 0);
    Desk.trace.clear();
    EXPECT_EQ(News(WM_LBUTTONDOWN, RIGHT_EDGE), 1);
    EXPECT_EQ(Desk.cursor.x, 1022);
    EXPECT_EQ(VDesk.left, 3072);
    EXPECT_EQ(CallsOf("SetCursorPos"), 0);
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
    CreateWindowExA(0, "Talkative", "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10, 10, 90, 90, nullptr, nullptr,
                    nullptr, nullptr);
    Wait(1200); // the table takes it in
    EXPECT_EQ(News(WM_LBUTTONDOWN, RIGHT_EDGE), 1);
    EXPECT_EQ(NestedResult, 0);
    EXPECT_EQ(VDesk.left, 2048) << "one scroll";
}

TEST_F(MouseNews, HeldButtonsSuppressMovesOnlyAndOnlyWhenTheUserWishes) {
    for (const int button : {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON}) {
        ScrollView(MainWnd, 1024, 384, SV_ABSOLUTE, 0);
        HoldKey(button, 1);
        RowValue(ROW_SUPPRESS_WHEN_DRAGGING, 1);
        News(WM_MOUSEMOVE, RIGHT_EDGE);
        EXPECT_EQ(VDesk.left, button == VK_MBUTTON ? 2048 : 1024) << button;
        ScrollView(MainWnd, 1024, 384, SV_ABSOLUTE, 0);
        News(WM_LBUTTONDOWN, RIGHT_EDGE);
        EXPECT_EQ(VDesk.left, 2048) << "a click scrolls, " << button;
        RowValue(ROW_SUPPRESS_WHEN_DRAGGING, 0);
        News(WM_MOUSEMOVE, LEFT_EDGE);
        EXPECT_EQ(VDesk.left, 1024) << button;
        Desk.trace.clear();
        News(WM_MOUSEMOVE, MIDDLE);
        EXPECT_EQ(CallsOf("UpdateWindow"), 1) << "the map follows a drag, " << button;
        RowValue(ROW_QUICK_REDRAW, 0);
        News(WM_MOUSEMOVE, MIDDLE);
        EXPECT_EQ(CallsOf("UpdateWindow"), 1) << "unless quick redraw is off, " << button;
        RowValue(ROW_QUICK_REDRAW, 1);
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
    News(WM_MOUSEMOVE, {width - 2, 300});
    EXPECT_EQ(VDesk.left, 1024 + width) << "the new edge counts at once";
}

TEST_F(MouseNews, WithoutACursorNothingHappens) {
    Desk.fault = {"GetCursorPos", 1, 1, 0, 0};
    EXPECT_EQ(News(WM_LBUTTONDOWN, RIGHT_EDGE), 0);
    EXPECT_EQ(VDesk.left, 1024);
}

TEST_F(MouseNews, AfterAnyFailedCallTheNextNewsScrollsAgain) {
    int nth = 0;
    do {
        ScrollView(MainWnd, 1024, 384, SV_ABSOLUTE, 0);
        Desk.fault = {"", ++nth, 0, 0, 0};
        News(WM_RBUTTONDOWN, RIGHT_EDGE);
        Desk.fault.callsLeft = 0;
        News(WM_MOUSEMOVE, MIDDLE);
        ScrollView(MainWnd, 1024, 384, SV_ABSOLUTE, 0);
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
        RowValue(ROW_SHIFT_SUPPRESS, 1); // and no Shift is held: only scrolls at once ask that
    }
};

TEST_F(DelayedScroll, ComesOnceTheTimeSinceTheFirstNewsIsOverAndTakesTheCursorAlong) {
    News(WM_MOUSEMOVE, RIGHT_EDGE);
    Wait(200);
    News(WM_MOUSEMOVE, {1023, 310});
    EXPECT_EQ(VDesk.left, 1024);
    Wait(50);
    EXPECT_EQ(VDesk.left, 2048);
    EXPECT_EQ(Rect(Desk.cursor.x, Desk.cursor.y, 0, 0), Rect(15, 300, 0, 0)) << "as the first news had it";
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
    Desk.cursor = {1019, 300};
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
    const POINT view{0, 0};
    Desk.fault = {"SetTimer", 1, 0, 0, 0};
    EXPECT_EQ(StartDelayedScroll(MainWnd, &view, &MIDDLE), 0);
    EXPECT_EQ(Desk.beeps.size(), 1u) << "refused";
    EXPECT_EQ(StartDelayedScroll(MainWnd, &view, &MIDDLE), 1);
    EXPECT_EQ(StartDelayedScroll(MainWnd, &view, &MIDDLE), 0) << "one is under way";
}

class FocusFollowsMouse : public MouseNews {
  protected:
    HWND editor = nullptr;
    void SetUp() override {
        MouseNews::SetUp();
        editor = OpenWindow("editor", {100, 100, 600, 500});
        RowValue(ROW_XWIN_MOUSE, 1);
    }
};

TEST_F(FocusFollowsMouse, TheProgramUnderTheCursorIsNamedAndComesForward) {
    const HWND above = OpenWindow("above", {700, 500, 800, 600});
    const HWND child = OpenWindow("", {450, 250, 600, 400});
    RowOf(child).style = WS_CHILD | WS_VISIBLE;
    RowOf(child).owner = editor;
    News(WM_MOUSEMOVE, MIDDLE);
    EXPECT_EQ(GetForegroundWindow(), editor);
    EXPECT_LT(std::find(Desk.order.begin(), Desk.order.end(), editor),
              std::find(Desk.order.begin(), Desk.order.end(), above));
    EXPECT_EQ(Desk.beeps.size(), 1u);
    ASSERT_TRUE(TipWnd);
    EXPECT_TRUE(IsWindowVisible(TipWnd));
    News(WM_MOUSEMOVE, {120, 320});
    EXPECT_EQ(Desk.beeps.size(), 1u) << "it is there already";
}

TEST_F(FocusFollowsMouse, AWindowThatHangsOrHasNoTitleIsLeftAlone) {
    const HWND before = GetForegroundWindow();
    const std::vector<HWND> order = Desk.order;
    RowOf(editor).answer = DeskAnswer::Hung;
    News(WM_MOUSEMOVE, MIDDLE);
    EXPECT_EQ(GetForegroundWindow(), before);
    EXPECT_EQ(Desk.order, order);
    RowOf(editor).answer = DeskAnswer::Answers;
    RowOf(editor).title.clear();
    Desk.beeps.clear();
    News(WM_MOUSEMOVE, MIDDLE);
    EXPECT_EQ(GetForegroundWindow(), before);
    EXPECT_EQ(Desk.beeps.size(), 2u);
    News(WM_LBUTTONDOWN, MIDDLE);
    EXPECT_EQ(Desk.beeps.size(), 2u) << "only moves";
}

} // namespace
