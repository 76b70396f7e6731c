#include "scroll/follow.h"

#include "scroll/scroll_view.h"
#include "support/quorl_test.h"
#include "windows/locked_windows.h"

TEST(NeedToFollow, IsToScrollToAWindowOutOfView) {
    const auto need = [](const RECT& rect) { return NeedToFollow(rect, 1024, 768, {0, 0, 4096, 1536}); };
    EXPECT_FALSE(need({-4, -4, 501, 400})) << "within the tolerance";
    EXPECT_FALSE(need({928, 672, 1128, 872})) << "its middle is at the edge";
    for (const RECT& rect : {Rect(-5, 0, 500, 400), Rect(0, -5, 500, 400), Rect(929, 0, 1129, 400),
                             Rect(0, 673, 400, 873), Rect(4000, 1500, 4192, 1572)}) // at the desktop's edge
        EXPECT_TRUE(need(rect)) << testing::PrintToString(rect);
    EXPECT_FALSE(need({100, 1500, 400, 1574})) << "off the desktop: out of reach";
}

class Follow : public RunningQuorl {
  protected:
    HWND editor = OpenWindow("editor", {1500, 900, 1700, 1000}); // its middle: (1600, 950)

    void SetUp() override {
        RunningQuorl::SetUp();
        ActionTable[ACTION_FOLLOW_ACTIVE].value = 1;
        Desk.foreground = editor;
    }
};

TEST_F(Follow, BringsTheActiveWindowToTheMiddleOfTheView) {
    Wait(100);
    EXPECT_EQ(VDesk, Rect(1088, 566, 2112, 1334));
    EXPECT_EQ(RectOf(editor), Rect(412, 334, 612, 434));
    EXPECT_TRUE(CalledInOrder({"SetFocus", "SetActiveWindow", "BringWindowToTop", "SetForegroundWindow"}));
    EXPECT_EQ(Desk.foreground, editor) << "the scroll gave it to the map";
    Wait(200);
    EXPECT_EQ(VDesk.left, 1088);
    EXPECT_EQ(CountCalls("EnumWindows"), 3) << "each tick refreshes the map";

    ScrollView(MainWnd, 0, 0, SV_ABSOLUTE, 0);
    EXPECT_EQ(Desk.foreground, MainWnd);
    Wait(100);
    EXPECT_EQ(VDesk.left, 0) << "where the user scrolls the view stays";
    Desk.foreground = editor;
    RunAction(ACTION_VIEW_TO_ACTIVE);
    EXPECT_EQ(VDesk.left, 1088);
}

TEST_F(Follow, WaitsForAHungWindowAHeldButtonAndTheSetting) {
    const auto stays = [] { return Wait(100), VDesk.left == 0; };
    ShowWindow(editor, SW_MINIMIZE);
    EXPECT_TRUE(stays());
    ShowWindow(editor, SW_RESTORE);
    WindowOf(editor).response = DeskResponse::Hung;
    EXPECT_TRUE(stays());
    WindowOf(editor).response = DeskResponse::Responds;
    ActionTable[ACTION_SUPPRESS_FOLLOW].value = 1;
    for (const int button : {VK_LBUTTON, VK_MBUTTON, VK_RBUTTON}) {
        HoldKey(button, 1);
        EXPECT_TRUE(stays()) << button;
        HoldKey(button, 0);
    }
    ActionTable[ACTION_FOLLOW_ACTIVE].value = 0;
    EXPECT_TRUE(stays());
    ActionTable[ACTION_FOLLOW_ACTIVE].value = 1;
    ActionTable[ACTION_SUPPRESS_FOLLOW].value = 0;
    HoldKey(VK_LBUTTON, 1);
    EXPECT_FALSE(stays());
}

TEST_F(Follow, ScrollsToALockedWindowOnlyOnce) {
    LockWindow(editor);
    Wait(1000);
    EXPECT_EQ(VDesk, Rect(1088, 566, 2112, 1334));
    WindowOf(editor).rect = {1400, 100, 1600, 200};
    Wait(100);
    EXPECT_EQ(VDesk.left, 2076) << "once for each position";

    ScrollView(MainWnd, 0, 0, SV_ABSOLUTE, 0);
    Desk.foreground = OpenWindow("other", {0, 0, 90, 90});
    Wait(100);
    Desk.foreground = editor;
    Wait(1000);
    EXPECT_EQ(VDesk.left, 988) << "once each time it becomes active";
}
