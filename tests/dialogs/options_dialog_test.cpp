// Whole stories with the Options dialog: what it shows, what the user does, what OK makes of it.
#include "dialogs/dialog_test.h"
#include "dialogs/options_rules.h"
#include "dialogs/registry.h"
#include "dialogs/spinner.h"

#include <array>
#include <bit>
#include <climits>

namespace {

// Its controls.
constexpr int HEIGHT = 1000, WIDTH = 1001, BORDER = 1002, DELAY_TIME = 1003, NOTE = 1077;
constexpr int MAXSCROLL = 1007, MINSCROLL = 1008, MOUSESCROLL = 1009;
constexpr int BY_MAX = 1073, BY_MIN = 1074, BY_MOUSE = 1075, BY_SCREEN = 1076;
constexpr int AFTER_TIME = 1078, AT_ONCE = 1079, AFTER_LEFT_CLICK = 1080, AFTER_RIGHT_CLICK = 1082;
constexpr int HEIGHT_SPINNER = 54321, WIDTH_SPINNER = 54322;

class OptionsDialog : public DialogTest {
  protected:
    void Open() { DialogTest::Open(54); }

    // And leaves the edit box.
    void TypeAndLeave(int id, const char* text) const {
        Type(id, text);
        GoToControl(At(IDOK));
    }
    void PressSpinner(int id, int y) const {
        SendMessageA(At(id), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, y));
        SendMessageA(At(id), WM_LBUTTONUP, 0, MAKELPARAM(7, y));
    }
};

TEST_F(OptionsDialog, ShowsWhatIsInForceAndOkTakesOverWhatIsTypedAndHoldsEveryWindowInside) {
    const HWND editor = OpenKnown("editor", {100, 100, 500, 400});
    Options.minscroll = 10;
    Open();
    Desk.trace.clear();
    const struct {
        int box;
        const char *shown, *typed;
    } numbers[] = {
        {WIDTH,       "4096", "5000"},
        {BORDER,      "4",    "11"  },
        {MAXSCROLL,   "100",  "5"   },
        {MINSCROLL,   "10",   "3"   },
        {MOUSESCROLL, "800",  "0"   },
        {HEIGHT,      "1536", "2000"},
    };
    for (const auto& [box, shown, typed] : numbers) {
        EXPECT_EQ(TextOf(box), shown);
        Type(box, typed);
    }
    RowOf(editor).received.clear();
    Click(IDOK);
    EXPECT_EQ(Quorl, Rect(0, 0, 5000, 2000));
    EXPECT_EQ(Options.border, 11);
    EXPECT_EQ(Options.maxscroll, 10);
    EXPECT_EQ(Options.minscroll, 3);
    EXPECT_EQ(Options.mousescroll, 1);
    EXPECT_EQ(RowOf(editor).received.size(), 1U) << "one ping: a larger desktop gathers nothing";
    EXPECT_TRUE(CameInOrder({"UpdateWindow", "SendMessageTimeoutA", "EndDialog"}));
}

TEST(OptionsRules, NumbersTakenOverAreHeldInTheirLimits) {
    using InTurn = std::array<int, 6>;
    const struct {
        OptionNumbers shown;
        int minscroll; // so far: the least of the new maxscroll
        InTurn taken;
    } cases[] = {
        {{767, 1023, 1, 50, 200, 0},              5,     {768, 1024, 2, 50, 50, 1}              },
        {{40000, 50000, 10, 40000, 40000, 40000}, 5,     {40000, 50000, 11, 32000, 32000, 32000}},
        {{INT_MIN, -1, INT_MAX, 0, 0, -1},        1,     {768, 1024, 11, 1, 1, 1}               },
        {{2000, 3000, 4, 9, 9, 9},                40000, {2000, 3000, 5, 40000, 9, 9}           },
    };
    for (const auto& [shown, minscroll, taken] : cases)
        EXPECT_EQ(std::bit_cast<InTurn>(AcceptedNumbers(shown, 1024, 768, minscroll)), taken);
}

TEST_F(OptionsDialog, SpinnersAndHiddenButtonsCountInWholeScreensUpToTheLargestDesktop) {
    constexpr int UP = 5, DOWN = 16; // pixels from the spinner's top
    Open();
    const RECT edit = PlaceOf(At(HEIGHT));
    EXPECT_EQ(PlaceOf(At(HEIGHT_SPINNER)), Rect(edit.right, edit.top, edit.right + 15, edit.top + 21));
    TypeAndLeave(HEIGHT, "2000");
    Send(1022);
    EXPECT_EQ(TextOf(HEIGHT), "2304");
    PressSpinner(HEIGHT_SPINNER, UP);
    EXPECT_EQ(TextOf(HEIGHT), "2304") << "the spinner had still counted two";
    Send(1023);
    EXPECT_EQ(TextOf(HEIGHT), "1536");
    TypeAndLeave(HEIGHT, "31999");
    PressSpinner(HEIGHT_SPINNER, UP);
    EXPECT_EQ(TextOf(HEIGHT), "32000");
    Type(WIDTH, "9999"); // the focus is still in there
    PressSpinner(WIDTH_SPINNER, DOWN);
    EXPECT_EQ(TextOf(WIDTH), "3072");
    Send(1024);
    EXPECT_EQ(TextOf(WIDTH), "4096");
    TypeAndLeave(WIDTH, "4294967295");
    EXPECT_EQ(TextOf(WIDTH), "0");
    Send(1025);
    EXPECT_EQ(TextOf(WIDTH), "1024") << "at least one screen";
    Press(VK_ESCAPE);
    EXPECT_EQ(Quorl, Rect(0, 0, 4096, 1536));
}

TEST_F(OptionsDialog, ASmallerDesktopGathersItsWindowsAndLeavesTheView) {
    Command(30); // two screens to the right
    Command(30);
    const HWND editor = OpenWindow("editor", {1500, 200, 1800, 400});
    Open();
    Type(WIDTH, "2048");
    Click(IDOK);
    EXPECT_EQ(PlaceOf(editor), Rect(476, 200, 776, 400));
    EXPECT_EQ(VDesk, Rect(2048, 0, 3072, 768)) << "the next scroll brings it back";
}

TEST_F(OptionsDialog, ADelayIsChosenByItsRadioAndOnlyATimeNeedsANumber) {
    Options.mousescroll_delay = 2; // its radio is hidden and cannot be chosen again
    Open();
    EXPECT_EQ(TextOf(NOTE), "When mouse scroll actions are used, these items determine how to scroll.");
    Click(AFTER_TIME);
    Type(DELAY_TIME, "70000");
    Click(AFTER_LEFT_CLICK);
    EXPECT_FALSE(IsWindowEnabled(At(DELAY_TIME)));
    Click(BY_MOUSE);
    Click(IDOK);
    EXPECT_EQ(Options.mousescroll_delay, 1);
    EXPECT_EQ(Options.mousescroll_type, 2);
    EXPECT_EQ(Options.mousescroll_delay_time, 70000) << "there is no limit, and it need not be enabled";
}

TEST_F(OptionsDialog, StoredKindsOfScrollSurviveWhateverTheyAre) {
    const Ids radios[] = {
        {BY_MIN,            AT_ONCE},
        {BY_MAX,                 AFTER_LEFT_CLICK},
        {BY_MOUSE,AFTER_RIGHT_CLICK},
        {BY_SCREEN,          AFTER_TIME},
        {}
    };
    for (const int kind : {0, 1, 2, 3, 4, -1}) {
        Options.mousescroll_type = Options.mousescroll_delay = kind;
        Open();
        EXPECT_EQ(Checked(), radios[kind < 0 ? 4 : kind]) << kind;
        EXPECT_EQ(IsWindowEnabled(At(DELAY_TIME)), kind == 3);
        EXPECT_EQ(!(RowOf(At(AT_ONCE)).style & WS_TABSTOP), kind == 1 || kind == 3)
            << "Tab finds the first when none or a hidden one is checked";
        Click(IDOK);
        EXPECT_EQ(Options.mousescroll_type, kind);
        EXPECT_EQ(Options.mousescroll_delay, kind);
    }
}

TEST_F(OptionsDialog, WithoutTheHookLibraryTheMouseOptionsAreOffAndStay) {
    Options.hook_present = 0;
    Options.mousescroll_delay = 3;
    Open();
    EXPECT_EQ(Checked(), Ids{});
    EXPECT_FALSE(IsWindowEnabled(At(MOUSESCROLL)) || IsWindowEnabled(At(DELAY_TIME)));
    EXPECT_EQ(TextOf(NOTE),
              "Mouse scroll options are disabled because quorl.dll is not present or failed to load.");
    Click(IDOK);
    EXPECT_EQ(Options.mousescroll_delay_time, 100);
}

TEST_F(OptionsDialog, WhatItsButtonsOpenOutlivesItWithTheMapForItsOwner) {
    Open();
    Click(3);
    Click(1064);
    Click(IDOK);
    for (const int slot : {3, 6}) {
        EXPECT_TRUE(IsWindowVisible(DialogSlots[slot].handle));
        EXPECT_EQ(RowOf(DialogSlots[slot].handle).owner, MainWnd);
    }
}

} // namespace
