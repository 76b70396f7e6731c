// Edge scrolling, and what else follows the mouse on the whole screen.
#include "mouse/hook_mouse.h"

#include "hook/hook_message.h"
#include "scroll/scroll_view.h"
#include "support/quorl_test.h"

constexpr POINT MIDDLE{500, 300};
constexpr POINT RIGHT_EDGE{1022, 300};

static LRESULT SendHookMessage(UINT mouseMessage, POINT at) {
    Desk.cursor = at;
    return SendMessageA(MainWnd, HOOK_MOUSE_MESSAGE, mouseMessage, 0);
}

// Edge scrolling is on, Shift does not control it, and the first message has come.
class HookMouse : public RunningQuorl {
  protected:
    void SetUp() override {
        RunningQuorl::SetUp();
        ActionTable[ACTION_FOLLOW_MOUSE].value = 1;
        ActionTable[ACTION_SHIFT_SUPPRESS].value = 0;
        SendHookMessage(WM_LBUTTONDOWN, RIGHT_EDGE);
        EXPECT_EQ(VDesk.left, 0) << "the first message never scrolls";
        Desk.trace.clear();
    }

    static bool Scrolls(UINT message) {
        ScrollView(MainWnd, 1024, 384, SV_ABSOLUTE, 0);
        SendHookMessage(message, RIGHT_EDGE);
        return VDesk.left == 2048;
    }
};

TEST_F(HookMouse, TheDelayDecidesWhichMessagesScroll) {
    std::string scrolling;
    for (const UINT message : {WM_MOUSEMOVE, WM_NCMOUSEMOVE, WM_LBUTTONDOWN, WM_NCLBUTTONDOWN, WM_RBUTTONDOWN,
                               WM_NCRBUTTONDOWN, WM_LBUTTONUP, WM_MBUTTONDOWN}) {
        for (const int delay : {0, 1, 2, 3, 7}) {
            Options.mousescroll_delay = delay;
            scrolling += Scrolls(message) ? std::to_string(delay) : "";
        }
        scrolling += " ";
    }
    EXPECT_EQ(scrolling, "07 07 017 017 027 027   ");
    EXPECT_EQ(SendHookMessage(WM_MBUTTONDOWN, RIGHT_EDGE), 0);
    Desk.fault = {"GetCursorPos", 1, false, ERROR_ACCESS_DENIED, 0}; // the workstation is locked
    EXPECT_EQ(SendHookMessage(WM_MOUSEMOVE, RIGHT_EDGE), 0);
}

TEST_F(HookMouse, OnlyTheLeftShiftKeyAllowsTheCursorToJump) {
    const auto jumps = [](bool bLeft, bool bRight) {
        HoldKey(VK_LSHIFT, bLeft);
        HoldKey(VK_RSHIFT, bRight);
        EXPECT_TRUE(Scrolls(WM_MOUSEMOVE));
        return Desk.cursor.x == 15;
    };
    EXPECT_TRUE(jumps(false, true)) << "Shift does not control it";
    ActionTable[ACTION_SHIFT_SUPPRESS].value = 1;
    EXPECT_FALSE(jumps(false, false) || jumps(true, true));
    EXPECT_TRUE(jumps(true, false));
    ScrollView(MainWnd, 3072, 384, SV_ABSOLUTE, 0);
    SendHookMessage(WM_MOUSEMOVE, RIGHT_EDGE);
    EXPECT_EQ(Desk.cursor.x, 1022) << "the view did not move";
}

TEST_F(HookMouse, AMessageDuringAScrollIsIgnored) {
    static int sent = 0;
    WindowOf(OpenAndList("window", {10, 10, 100, 100})).procedure = [](HWND, UINT, WPARAM, LPARAM) {
        return ++sent, SendHookMessage(WM_LBUTTONDOWN, RIGHT_EDGE);
    };
    SendHookMessage(WM_LBUTTONDOWN, RIGHT_EDGE);
    EXPECT_GT(sent, 0);
    EXPECT_EQ(VDesk.left, 1024) << "one scroll";
}

TEST_F(HookMouse, HeldButtonsCanSuppressScrollingAndRedrawTheMap) {
    for (const int button : {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON}) {
        HoldKey(button, true);
        for (const bool bOn : {false, true}) {
            ActionTable[ACTION_SUPPRESS_SCROLL].value = ActionTable[ACTION_QUICK_REDRAW].value = bOn;
            EXPECT_TRUE(Scrolls(WM_LBUTTONDOWN)) << button;
            EXPECT_EQ(Scrolls(WM_MOUSEMOVE), !bOn || button == VK_MBUTTON) << button;
            Desk.trace.clear();
            SendHookMessage(WM_MOUSEMOVE, MIDDLE);
            EXPECT_EQ(CountCalls("UpdateWindow"), bOn) << button;
        }
        HoldKey(button, false);
        Desk.trace.clear();
        SendHookMessage(WM_LBUTTONUP, MIDDLE);
        EXPECT_EQ(CountCalls("UpdateWindow"), 1);
    }
}

TEST_F(HookMouse, ADelayedScrollNeedsTheMouseToStayAtAnEdge) {
    Options.mousescroll_delay = 3;
    Options.mousescroll_delay_time = 250;
    SendHookMessage(WM_MOUSEMOVE, RIGHT_EDGE);
    SendHookMessage(WM_MOUSEMOVE, MIDDLE);
    Desk.cursor = RIGHT_EDGE; // no message yet
    Wait(250);
    SendHookMessage(WM_MOUSEMOVE, RIGHT_EDGE);
    Desk.cursor = {1018, 300}; // no message yet
    Wait(250);
    EXPECT_EQ(VDesk.left, 0);
    SendHookMessage(WM_MOUSEMOVE, RIGHT_EDGE);
    Wait(200);
    SendHookMessage(WM_MOUSEMOVE, {500, 767}); // another edge
    Wait(50);
    EXPECT_EQ(ViewCorner(), (POINT{1024, 0})) << "in the direction of the first edge";
    EXPECT_EQ(Desk.cursor, (POINT{15, 300}));
    Wait(1000);
    EXPECT_EQ(VDesk.left, 1024) << "once";
}

TEST_F(HookMouse, FocusFollowsTheMouseToALivingProgram) {
    ActionTable[ACTION_XWIN_MOUSE].value = 1;
    const HWND editor = OpenWindow("\u0416", {100, 100, 600, 500});
    DeskWindow& child = WindowOf(OpenWindow("", {450, 250, 600, 400}));
    child.style = WS_CHILD | WS_VISIBLE;
    child.owner = editor;
    for (const DeskResponse response : {DeskResponse::Hung, DeskResponse::Responds}) {
        WindowOf(editor).response = response;
        Desk.beeps.clear();
        SendHookMessage(WM_MOUSEMOVE, MIDDLE);
        EXPECT_EQ(Desk.beeps.size(), 1U);
        EXPECT_EQ(GetForegroundWindow() == editor, response == DeskResponse::Responds);
    }
    EXPECT_EQ(LastStatus(), "\u0416");
}
