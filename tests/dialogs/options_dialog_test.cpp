// Whole stories with the Options dialog: what it shows, what the user does, what OK makes of it.
#include "dialogs/dialog_test.h"
#include "dialogs/registry.h"
#include "dialogs/spinner.h"

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
    int Counted(int spinner) const { return StateOfSpinner(At(spinner))->value; }
};

TEST_F(OptionsDialog, ShowsWhatIsInForce) {
    Options.mousescroll_delay_time = 40;
    Open();
    EXPECT_TRUE(IsWindowVisible(dialog));
    Texts texts;
    for (const int id : {HEIGHT, WIDTH, BORDER, MAXSCROLL, MINSCROLL, MOUSESCROLL, DELAY_TIME})
        texts.push_back(TextOf(id));
    EXPECT_EQ(texts, (Texts{"1536", "4096", "4", "100", "5", "800", "40"}));
    EXPECT_EQ(TextOf(NOTE), "When mouse scroll actions are used, these items determine how to scroll.");
    const RECT edit = PlaceOf(At(WIDTH));
    EXPECT_EQ(PlaceOf(At(WIDTH_SPINNER)), Rect(edit.right, edit.top, edit.right + 15, edit.top + 21));
    EXPECT_EQ(Counted(WIDTH_SPINNER), 4);
    EXPECT_EQ(StateOfSpinner(At(HEIGHT_SPINNER))->interval, 250U);
}

TEST_F(OptionsDialog, SpinnersAndHiddenButtonsCountInWholeScreensUpToTheLargestDesktop) {
    constexpr int UP = 5, DOWN = 16; // pixels from the spinner's top
    Open();
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
    EXPECT_EQ(Counted(HEIGHT_SPINNER), 41);
    Type(WIDTH, "9999"); // the focus is still in there
    PressSpinner(WIDTH_SPINNER, DOWN);
    EXPECT_EQ(TextOf(WIDTH), "3072");
    Send(1025);
    EXPECT_EQ(TextOf(WIDTH), "2048");
    Send(1024);
    EXPECT_EQ(TextOf(WIDTH), "3072");
    TypeAndLeave(WIDTH, "4294967295");
    EXPECT_EQ(TextOf(WIDTH), "0");

    Press(VK_ESCAPE);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Quorl, Rect(0, 0, 4096, 1536));
}

TEST_F(OptionsDialog, OkTakesOverWhatIsShownAndHoldsEveryWindowInside) {
    const HWND editor = OpenKnown("editor", {100, 100, 500, 400});
    Options.minscroll = 10;
    Open();
    Desk.trace.clear();
    Type(WIDTH, "4096");
    Type(BORDER, "11");
    Type(MAXSCROLL, "5");
    Type(MINSCROLL, "3");
    Type(MOUSESCROLL, "0");
    Type(HEIGHT, "2000");
    RowOf(editor).received.clear();
    Click(IDOK);
    EXPECT_EQ(Quorl, Rect(0, 0, 4096, 2000));
    EXPECT_EQ(Options.border, 11);
    EXPECT_EQ(Options.maxscroll, 10);
    EXPECT_EQ(Options.minscroll, 3);
    EXPECT_EQ(Options.mousescroll, 1);
    EXPECT_EQ(RowOf(editor).received.size(), 1U) << "one ping: a larger desktop gathers nothing";
    EXPECT_TRUE(CameInOrder({"UpdateWindow", "SendMessageTimeoutA", "EndDialog"}));
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
    Click(AFTER_TIME);
    EXPECT_TRUE(IsWindowEnabled(At(DELAY_TIME)));
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
    const struct {
        int kind; // of scroll, and of its delay
        Ids checked;
        int bTabStop; // at the first delay
    } cases[] = {
        {0,  {BY_MIN, AT_ONCE},             0},
        {1,  {BY_MAX, AFTER_LEFT_CLICK},    0},
        {2,  {BY_MOUSE, AFTER_RIGHT_CLICK}, 1}, // hidden, so Tab would find none
        {3,  {BY_SCREEN, AFTER_TIME},       0},
        {4,  {},                            1},
        {-1, {},                            1},
    };
    for (const auto& [kind, checked, bTabStop] : cases) {
        Options.mousescroll_type = Options.mousescroll_delay = kind;
        Open();
        EXPECT_EQ(Checked(), checked) << kind;
        EXPECT_EQ(IsWindowEnabled(At(DELAY_TIME)), kind == 3);
        EXPECT_TRUE(!bTabStop || (RowOf(At(AT_ONCE)).style & WS_TABSTOP)) << kind;
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
    for (const int id : {MOUSESCROLL, BY_MAX, BY_MIN, BY_MOUSE, BY_SCREEN, AT_ONCE, AFTER_LEFT_CLICK,
                         AFTER_RIGHT_CLICK, AFTER_TIME, DELAY_TIME})
        EXPECT_FALSE(IsWindowEnabled(At(id))) << id;
    EXPECT_EQ(TextOf(NOTE),
              "Mouse scroll options are disabled because quorl.dll is not present or failed to load.");
    Click(IDOK);
    EXPECT_EQ(Options.mousescroll_delay, 3);
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
