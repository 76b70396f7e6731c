#include "toolwin/tip.h"

#include "actions/action_table.h"
#include "core/state.h"
#include "scroll/scroll_view.h"
#include "support/quorl_test.h"

#include <string>

namespace {

class Tip : public QuorlTest {
  protected:
    void Start() {
        ASSERT_EQ(StartQuorl(), 1);
        Settle();
        Desk.strokes.clear();
    }

    static HWND Say(const char* text) { return ShowTip(MainWnd, text, 1); }

    static std::vector<std::string> Said() {
        std::vector<std::string> texts;
        for (const DeskStroke& stroke : Desk.strokes)
            if (stroke.what == "DrawTextExA" && RowOf(stroke.window).className == TIP_CLASS)
                texts.push_back(stroke.text);
        return texts;
    }

    static bool IsOnShow(HWND tip) { return (RowOf(tip).style & WS_VISIBLE) != 0; }
};

TEST_F(Tip, IsAStripAsWideAsTheMapThatTakesTheKeyboardFromNobody) {
    const HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    Start();
    Desk.foreground = editor;

    const HWND tip = Say("hello");

    ASSERT_NE(tip, nullptr);
    EXPECT_EQ(Desk.foreground, editor);
    EXPECT_EQ(PlaceOf(tip), Rect(100, 84, 300, 100));
    EXPECT_EQ(RowOf(tip).exStyle, DWORD{WS_EX_TOPMOST | WS_EX_TOOLWINDOW});
    EXPECT_EQ(RowOf(tip).style, DWORD{WS_POPUP | WS_VISIBLE | WS_BORDER});
    EXPECT_EQ(RowOf(tip).title, "w_ToolTip");
    ASSERT_FALSE(Desk.strokes.empty());
    const DeskStroke& drawn = Desk.strokes.back();
    EXPECT_EQ(drawn.text, "hello");
    EXPECT_EQ(drawn.rect.left, 2);
    EXPECT_EQ(drawn.format, 0x18810U);
    const auto* font = static_cast<const DeskObject*>(drawn.font);
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(font->face + "/" + std::to_string(font->height) + "/" + std::to_string(font->weight),
              "Arial/14/300");
}

TEST_F(Tip, GoesOnTheSecondTickAfterTheLastText) {
    Start();
    const HWND tip = Say("one");
    Wait(900);
    EXPECT_EQ(Say("two"), tip);
    Wait(1000); // the first tick, 100 ms after the text
    EXPECT_TRUE(IsOnShow(tip));
    Wait(100);
    EXPECT_FALSE(IsOnShow(tip));
    Say("three");
    EXPECT_TRUE(IsOnShow(tip));
}

TEST_F(Tip, FollowsItsOwnerToTheSideAndWhenItComesBack) {
    Start();
    const HWND tip = Say("one");
    RowOf(MainWnd).place = {100, 300, 400, 400};
    Say("two");
    EXPECT_EQ(Said(), (std::vector<std::string>{"one", "two"}));
    EXPECT_EQ(PlaceOf(tip), Rect(100, 84, 300, 100)) << "the left edge alone counts while it shows";
    RowOf(MainWnd).place = {110, 5, 400, 105};
    Say("three");
    EXPECT_EQ(PlaceOf(tip), Rect(110, 105, 400, 121)) << "no room above";
    HideTip(tip);
    RowOf(MainWnd).place = {110, 300, 400, 400};
    Say("four");
    EXPECT_EQ(PlaceOf(tip), Rect(110, 284, 400, 300));
    EXPECT_EQ(TipTop({100, 16, 300, 200}, 16), 0) << "just room";
    EXPECT_EQ(TipTop({100, -50, 300, 20}, 16), 20);
}

TEST_F(Tip, VanishesUnderTheMouse) {
    Start();
    const HWND tip = Say("one");
    PostMessageA(tip, WM_MOUSEMOVE, 0, 0);
    Settle();
    EXPECT_FALSE(IsOnShow(tip));
    HideTip(nullptr); // no strip, no harm
}

TEST_F(Tip, CutsATextAt255Characters) {
    Start();
    Say(std::string(255, 'a').c_str());
    EXPECT_EQ(Said().back(), std::string(255, 'a'));
    Say(std::string(300, 'b').c_str());
    EXPECT_EQ(Said().back(), std::string(255, 'b'));
    Tell("%s", std::string(300, 'c').c_str());
    EXPECT_EQ(Said().back(), std::string(255, 'c'));
}

TEST_F(Tip, SwitchedOffItLeavesWhatIsOnShowAlone) {
    Start();
    Tell("%s", "one");
    const HWND tip = TipWnd;
    Command(ROW_TOOLTIP);
    Tell("%s", "two");
    EXPECT_EQ(TipWnd, nullptr);
    EXPECT_TRUE(IsOnShow(tip));
    EXPECT_EQ(Said().back(), "one");
    Wait(2000);
    EXPECT_FALSE(IsOnShow(tip));
}

TEST_F(Tip, IsMadeAnewWhenSomethingClosedIt) {
    Start();
    const HWND first = Say("one");
    const auto* font = static_cast<const DeskObject*>(Desk.strokes.back().font);
    const std::size_t timers = Desk.timers.size();
    SendMessageA(first, WM_CLOSE, 0, 0);
    EXPECT_EQ(RowOf(first).handle, nullptr);
    EXPECT_FALSE(font->bLive);
    EXPECT_EQ(Desk.timers.size(), timers - 1);

    const HWND second = Say("two");
    EXPECT_NE(second, first);
    EXPECT_TRUE(IsOnShow(second));
    EXPECT_EQ(Said().back(), "two");
    Wait(2000);
    EXPECT_FALSE(IsOnShow(second)) << "its timer runs again";
}

TEST_F(Tip, EveryScrollTellsWhereTheViewStandsAndEverySecondOneItsNumber) {
    Start();
    ScrollView(MainWnd, 100, 0, SV_RELATIVE, 6);
    ScrollView(MainWnd, -5000, 0, SV_RELATIVE, 7);
    ScrollView(MainWnd, -5000, 0, SV_RELATIVE, 8);
    EXPECT_EQ(Said(),
              (std::vector<std::string>{"CTR: 0  ID: 6", "VDesk: 100,0 - 1124,768", "VDesk: 0,0 - 1024,768",
                                        "CTR: 2  ID: 8", "VDesk: 0,0 - 1024,768"}));
    EXPECT_NE(TipWnd, nullptr);
}

} // namespace
