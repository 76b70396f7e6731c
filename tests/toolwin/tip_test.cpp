#include "toolwin/tip.h"

#include "support/quorl_test.h"

class Tip : public RunningQuorl {
  protected:
    static HWND Say(const char* text) { return ShowTip(MainWnd, text, 1); }
};

TEST_F(Tip, IsAStripAsWideAsTheMapThatTakesTheKeyboardFromNobody) {
    const HWND before = Desk.foreground;
    const HWND tip = Say("hello");
    EXPECT_EQ(Desk.foreground, before);
    EXPECT_EQ(PlaceOf(tip), Rect(100, 84, 300, 100));
    EXPECT_EQ(RowOf(tip).exStyle, DWORD{WS_EX_TOPMOST | WS_EX_TOOLWINDOW});
    EXPECT_EQ(Desk.strokes.back().text, "hello");
    EXPECT_TRUE(Desk.strokes.back().format & DT_NOPREFIX);
}

TEST_F(Tip, GoesOnTheSecondTickAfterTheLastTextOrUnderTheMouse) {
    const HWND tip = Say("one");
    Wait(1100);
    EXPECT_EQ(Say("two"), tip);
    Wait(900); // the first tick since
    EXPECT_TRUE(IsWindowVisible(tip));
    Wait(1000);
    EXPECT_FALSE(IsWindowVisible(tip));
    Say("three");
    SendMessageA(tip, WM_MOUSEMOVE, 0, 0);
    EXPECT_FALSE(IsWindowVisible(tip));
}

TEST_F(Tip, FollowsItsOwnerToTheSide) {
    const HWND tip = Say("one");
    RowOf(MainWnd).place = {100, 300, 400, 400};
    Say("two");
    EXPECT_EQ(PlaceOf(tip), Rect(100, 84, 300, 100)) << "the left edge alone counts while it shows";
    RowOf(MainWnd).place = {110, 15, 400, 105};
    Say("three");
    EXPECT_EQ(PlaceOf(tip), Rect(110, 105, 400, 121)) << "no room above";
}

TEST_F(Tip, CutsALongTextAndSwitchedOffLeavesWhatIsOnShowAlone) {
    Tell("%s", std::string(300, 'c').c_str());
    EXPECT_EQ(LastTip(), std::string(255, 'c'));
    Command(ROW_TOOLTIP);
    Tell("%s", "two");
    EXPECT_EQ(LastTip(), std::string(255, 'c'));
}
