#include "toolwin/tip.h"

#include "support/quorl_test.h"

#include <string>

class Tip : public RunningQuorl {
  protected:
    static HWND Say(const std::string& text) { return ShowTip(MainWnd, text.c_str(), 1); }
};

TEST_F(Tip, IsAStripAsWideAsTheMapThatTakesTheKeyboardFromNobody) {
    const HWND before = Desk.foreground;
    const HWND tip = Say("hello");
    EXPECT_EQ(Desk.foreground, before);
    EXPECT_EQ(PlaceOf(tip), Rect(100, 84, 300, 100));
    EXPECT_EQ(RowOf(tip).exStyle, DWORD{WS_EX_TOPMOST | WS_EX_TOOLWINDOW});
    EXPECT_EQ(RowOf(tip).style, DWORD{WS_POPUP | WS_VISIBLE | WS_BORDER});
    const DeskStroke& drawn = Desk.strokes.back();
    EXPECT_EQ(drawn.text, "hello");
    EXPECT_EQ(drawn.format, UINT{DT_WORDBREAK | DT_NOPREFIX | DT_END_ELLIPSIS | DT_MODIFYSTRING});
    const auto* font = static_cast<const DeskObject*>(drawn.font);
    EXPECT_EQ(font->face, "Arial");

    SendMessageA(tip, WM_CLOSE, 0, 0);
    EXPECT_FALSE(font->bLive);
    EXPECT_NE(Say("again"), tip);
    EXPECT_EQ(LastTip(), "again");
}

TEST_F(Tip, GoesOnTheSecondTickAfterTheLastTextOrUnderTheMouse) {
    SendMessageA(Say("none"), WM_CLOSE, 0, 0); // its timer goes with it
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
    EXPECT_EQ(TipTop({110, 16, 400, 400}, 16), 0);
}

TEST_F(Tip, CutsALongTextAndSwitchedOffLeavesWhatIsOnShowAlone) {
    Tell("%s", std::string(300, 'c').c_str());
    EXPECT_EQ(LastTip(), std::string(255, 'c'));
    const HWND tip = TipWnd;
    Command(ROW_TOOLTIP);
    Tell("%s", "two");
    EXPECT_EQ(TipWnd, nullptr);
    EXPECT_TRUE(IsWindowVisible(tip));
    EXPECT_EQ(LastTip(), std::string(255, 'c'));
}
