#include "scroll/follow.h"

#include "scroll/locked_windows.h"
#include "scroll/scroll_view.h"
#include "support/quorl_test.h"

TEST(FollowDecision, AWindowOutOfViewAsksForAScroll) {
    const auto need = [](const RECT& place) { return NeedToFollow(place, 1024, 768, {0, 0, 4096, 1536}); };
    EXPECT_EQ(need({-4, -4, 501, 400}), FOLLOW_IN_VIEW) << "just inside the slack";
    EXPECT_EQ(need({-5, 0, 500, 400}), FOLLOW_SCROLL);
    EXPECT_EQ(need({0, -5, 500, 400}), FOLLOW_SCROLL);
    EXPECT_EQ(need({928, 672, 1128, 872}), FOLLOW_IN_VIEW) << "its middle on the edge";
    EXPECT_EQ(need({929, 0, 1129, 400}), FOLLOW_SCROLL);
    EXPECT_EQ(need({0, 673, 400, 873}), FOLLOW_SCROLL);
    EXPECT_EQ(need({4000, 1500, 4192, 1572}), FOLLOW_SCROLL) << "on the desktop's edge";
    EXPECT_EQ(need({4000, 100, 4194, 400}), FOLLOW_IN_VIEW) << "off it: nothing brings it into view";
    EXPECT_EQ(need({100, 1500, 400, 1574}), FOLLOW_IN_VIEW);
    EXPECT_EQ(need({-32000, 0, -31840, 28}), FOLLOW_NOT) << "minimized";
}

class Follow : public RunningQuorl {
  protected:
    HWND editor = OpenWindow("editor", {1500, 900, 1700, 1000}); // its middle: (1600, 950)

    void SetUp() override {
        RunningQuorl::SetUp();
        ActionTable[ROW_KEEP_ACTIVE_IN_VIEW].value = 1;
        Desk.foreground = editor;
    }
};

TEST_F(Follow, TheViewGoesToAWindowThatBecomesActiveOutOfSightOnceItAnswersIfTheUserWantsIt) {
    RowOf(editor).answer = DeskAnswer::Hung;
    Wait(100);
    RowOf(editor).answer = DeskAnswer::Answers;
    ActionTable[ROW_KEEP_ACTIVE_IN_VIEW].value = 0;
    Wait(100);
    EXPECT_EQ(VDesk.left, 0);
    ActionTable[ROW_KEEP_ACTIVE_IN_VIEW].value = 1;
    Desk.trace.clear();
    Wait(100);
    EXPECT_EQ(VDesk, Rect(1088, 566, 2112, 1334));
    EXPECT_EQ(PlaceOf(editor), Rect(412, 334, 612, 434)) << "in the middle of the screen";
    EXPECT_TRUE(CameInOrder({"SetFocus", "SetActiveWindow", "BringWindowToTop", "SetForegroundWindow"}));
    EXPECT_EQ(Desk.foreground, editor) << "it has the keyboard again";
    Wait(200);
    EXPECT_EQ(VDesk.left, 1088);
    EXPECT_EQ(CallsOf("EnumWindows"), 3) << "the map is fresh at each tick";

    ScrollView(MainWnd, 0, 0, SV_ABSOLUTE, 30);
    Wait(100);
    EXPECT_EQ(VDesk.left, 0) << "where the user goes the view stays";
    Desk.foreground = editor;
    Command(ROW_CENTER_ON_ACTIVE);
    EXPECT_EQ(VDesk.left, 1088);
}

TEST_F(Follow, AHeldButtonHoldsTheViewBackIfTheUserWantsIt) {
    ActionTable[ROW_SUPPRESS_FOLLOW].value = 1;
    for (const int button : {VK_LBUTTON, VK_MBUTTON, VK_RBUTTON}) {
        HoldKey(button, 1);
        Wait(100);
        EXPECT_EQ(VDesk.left, 0) << button;
        HoldKey(button, 0);
    }
    HoldKey(VK_LBUTTON, 1);
    ActionTable[ROW_SUPPRESS_FOLLOW].value = 0;
    Wait(100);
    EXPECT_GT(VDesk.left, 0) << "without the setting the button does not matter";
}

TEST_F(Follow, AWindowThatStaysWhereItIsDoesNotDrawTheViewOnAndOn) {
    LockWindow(editor);
    Wait(1000);
    EXPECT_EQ(VDesk, Rect(1088, 566, 2112, 1334)) << "once";

    RowOf(editor).place = {1400, 100, 1600, 200};
    Wait(100);
    EXPECT_EQ(VDesk.left, 2076) << "another place is gone to";

    ScrollView(MainWnd, 0, 0, SV_ABSOLUTE, 30);
    Desk.foreground = OpenWindow("short", {0, 0, 90, 90});
    Wait(100);
    Desk.foreground = editor;
    Wait(1000);
    EXPECT_EQ(VDesk.left, 988) << "and so is a window that becomes active anew, once";
}
