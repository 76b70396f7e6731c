#include "mouse/hook_mouse.h"

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
    const auto delaysFor = [](UINT message) {
        std::string delays;
        for (const int delay : {0, 1, 2, 3, 7}) {
            Options.mousescroll_delay = delay;
            delays += Scrolls(message) ? std::to_string(delay) : "";
        }
        return delays;
    };
    for (const UINT message : {WM_MOUSEMOVE, WM_NCMOUSEMOVE})
        EXPECT_EQ(delaysFor(message), "07") << message;
    for (const UINT message : {WM_LBUTTONDOWN, WM_NCLBUTTONDOWN})
        EXPECT_EQ(delaysFor(message), "017") << message;
    for (const UINT message : {WM_RBUTTONDOWN, WM_NCRBUTTONDOWN})
        EXPECT_EQ(delaysFor(message), "027") << message;
    for (const UINT message : {WM_LBUTTONUP, WM_MBUTTONDOWN})
        EXPECT_EQ(delaysFor(message), "") << message;

    Options.mousescroll_delay = 1;
    EXPECT_EQ(News(WM_RBUTTONDOWN, RIGHT_EDGE), 1) << "the edge takes the click all the same";
    EXPECT_EQ(News(WM_MOUSEMOVE, RIGHT_EDGE), 0) << "but never a move";
}

TEST_F(MouseNews, TheShiftKeysHoldTheCursorBackByTheirStateOfTheMomentAndTheDesktopsLimitDoes) {
    const auto jumps = [](int bLeft, int bRight) {
        HoldKey(VK_LSHIFT, bLeft);
        HoldKey(VK_RSHIFT, bRight);
        EXPECT_TRUE(Scrolls(WM_MOUSEMOVE));
        return Desk.cursor.x == 15;
    };
    EXPECT_TRUE(jumps(0, 1));
    ActionTable[ROW_SHIFT_SUPPRESS].value = 1;
    EXPECT_FALSE(jumps(0, 0));
    EXPECT_FALSE(jumps(1, 1));
    EXPECT_TRUE(jumps(1, 0));
    ScrollView(MainWnd, 3072, 384, SV_ABSOLUTE, 0);
    News(WM_MOUSEMOVE, RIGHT_EDGE);
    EXPECT_EQ(Desk.cursor.x, 1022);
}

TEST_F(MouseNews, NewsThatComesInsideAScrollIsDropped) {
    RowOf(OpenKnown("talkative", {10, 10, 100, 100})).procedure = [](HWND, UINT message, WPARAM, LPARAM) {
        return message == WM_MOVING ? News(WM_LBUTTONDOWN, RIGHT_EDGE) : 1;
    };
    EXPECT_EQ(News(WM_LBUTTONDOWN, RIGHT_EDGE), 1);
    EXPECT_EQ(CallsOf("GetCursorPos"), 2) << "it has told";
    EXPECT_EQ(VDesk.left, 2048) << "one scroll";
}

TEST_F(MouseNews, AHeldButtonSuppressesMovesAndRedrawsTheMapIfTheUserWishes) {
    for (const int button : {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON}) {
        HoldKey(button, 1);
        for (const int bWished : {0, 1}) {
            ActionTable[ROW_SUPPRESS_WHEN_DRAGGING].value = ActionTable[ROW_QUICK_REDRAW].value = bWished;
            EXPECT_TRUE(Scrolls(WM_LBUTTONDOWN)) << button;
            EXPECT_EQ(Scrolls(WM_MOUSEMOVE), !bWished || button == VK_MBUTTON) << button;
            Desk.trace.clear();
            News(WM_MOUSEMOVE, MIDDLE);
            EXPECT_EQ(CallsOf("UpdateWindow"), bWished) << button;
        }
        HoldKey(button, 0);
    }
}

TEST_F(MouseNews, AChangeOfDisplayIsNoticedByMovesAndReleasesNotByClicks) {
    for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONUP, WM_RBUTTONUP}) {
        const int before = ScreenW();
        Desk.monitors.assign(1, Rect(0, 0, before - 100, 600));
        News(WM_RBUTTONDOWN, MIDDLE);
        EXPECT_EQ(ScreenW(), before) << message;
        News(message, MIDDLE);
        EXPECT_EQ(ScreenW(), before - 100) << message;
    }
}

TEST_F(MouseNews, ADelayedScrollComesOnceTheTimeSinceTheFirstNewsIsOverUnlessTheMouseHasLeft) {
    Options.mousescroll_delay = 3;
    Options.mousescroll_delay_time = 250;
    ActionTable[ROW_SHIFT_SUPPRESS].value = 1; // and no Shift is held: only scrolls at once ask that
    News(WM_MOUSEMOVE, RIGHT_EDGE);
    News(WM_MOUSEMOVE, MIDDLE);
    Desk.cursor = RIGHT_EDGE; // back again, but nobody has told
    Wait(250);
    News(WM_MOUSEMOVE, RIGHT_EDGE);
    Desk.cursor = {1018, 300}; // left it, and nobody has told
    Wait(250);
    EXPECT_EQ(VDesk.left, 1024);

    News(WM_MOUSEMOVE, RIGHT_EDGE);
    Wait(200);
    News(WM_MOUSEMOVE, {500, 767});
    Wait(50);
    EXPECT_EQ(VDesk, Rect(2048, 384, 3072, 1152)) << "the first way, though it has slid to another edge";
    EXPECT_EQ(Desk.cursor, (POINT{15, 300})) << "as the first news had it";
    Wait(1000);
    EXPECT_EQ(VDesk.left, 2048) << "one wait, one scroll";
}

TEST_F(MouseNews, TheProgramUnderTheCursorIsNamedAndComesForwardUnlessItHangs) {
    ActionTable[ROW_XWIN_MOUSE].value = 1;
    const HWND before = GetForegroundWindow();
    const HWND editor = OpenWindow("editor", {100, 100, 600, 500});
    DeskWindow& child = RowOf(OpenWindow("", {450, 250, 600, 400}));
    child.style = WS_CHILD | WS_VISIBLE;
    child.owner = editor;
    RowOf(editor).answer = DeskAnswer::Hung;
    News(WM_MOUSEMOVE, MIDDLE);
    EXPECT_EQ(GetForegroundWindow(), before);
    RowOf(editor).answer = DeskAnswer::Answers;
    News(WM_MOUSEMOVE, MIDDLE);
    EXPECT_EQ(GetForegroundWindow(), editor);
    EXPECT_EQ(LastTip(), "editor");
}

} // namespace
