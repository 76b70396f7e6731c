#include "status/status_strip.h"

#include "support/quorl_test.h"

class StatusStrip : public RunningQuorl {};

TEST_F(StatusStrip, AppearsAboveOrBelowTheMapWithoutActivation) {
    const HWND before = Desk.foreground;
    Desk.systemColors[COLOR_INFOTEXT] = 0xffff00;
    ShowTip("%s", std::string(300, 'c').c_str());
    EXPECT_EQ(LastStatus(), std::string(255, 'c'));
    ShowTitleTip("d", std::wstring(300, L'd').c_str(), "d");
    EXPECT_EQ(LastStatus(), std::string(255, 'd'));
    EXPECT_EQ(Desk.foreground, before);
    EXPECT_EQ(RectOf(TipWnd), Rect(100, 84, 300, 100));
    EXPECT_TRUE(Desk.drawCalls.back().format & DT_NOPREFIX);
    EXPECT_EQ(Desk.drawCalls.back().textColor, 0xffff00U) << "COLOR_INFOTEXT";
    WindowOf(MainWnd).rect = {100, 300, 400, 400};
    ShowTip("two");
    EXPECT_EQ(RectOf(TipWnd), Rect(100, 84, 300, 100)) << "only the left edge counts while it is visible";
    WindowOf(MainWnd).rect = {110, 15, 400, 105};
    ShowTip("three");
    EXPECT_EQ(RectOf(TipWnd), Rect(110, 105, 400, 121));
    RunAction(ACTION_TOOLTIP);
    ShowTip("switched off");
    EXPECT_EQ(LastStatus(), "three");
}

TEST_F(StatusStrip, HidesOnTheSecondTickOrUnderTheMouse) {
    ShowTip("one");
    Wait(1100);
    ShowTip("two");
    Wait(900); // the first tick since
    EXPECT_TRUE(IsWindowVisible(TipWnd));
    Wait(1000);
    EXPECT_FALSE(IsWindowVisible(TipWnd));
    ShowTip("three");
    SendMessageA(TipWnd, WM_MOUSEMOVE, 0, 0);
    EXPECT_FALSE(IsWindowVisible(TipWnd));
}
