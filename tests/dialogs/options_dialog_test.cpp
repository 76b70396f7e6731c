// Whole stories with the Options dialog: what it shows, what the user does, what OK makes of it.
#include "dialogs/options_dialog.h"

#include "dialogs/dialog_test.h"
#include "dialogs/registry.h"
#include "dialogs/spinner.h"
#include "scroll/window_table.h"

namespace {

// Its controls.
constexpr int HEIGHT = 1000, WIDTH = 1001, DELAY_TIME = 1003, NOTE = 1077;
constexpr int HEIGHT_SPINNER = 54321, WIDTH_SPINNER = 54322;

constexpr int UP = 5, DOWN = 16; // on a spinner, pixels from its top

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

    std::vector<int> Checked() const {
        std::vector<int> checked;
        for (const int radio : {1073, 1074, 1075, 1076, 1078, 1079, 1080, 1082})
            if (Kept(radio).bChecked)
                checked.push_back(radio);
        return checked;
    }
};

TEST_F(OptionsDialog, ShowsWhatIsInForce) {
    Options.mousescroll_delay_time = 40;
    Open();
    EXPECT_TRUE(IsWindowVisible(dialog));
    Texts texts;
    for (const int id : {1000, 1001, 1002, 1007, 1008, 1009, 1003})
        texts.push_back(TextOf(id));
    EXPECT_EQ(texts, (Texts{"1536", "4096", "4", "100", "5", "800", "40"}));
    EXPECT_EQ(TextOf(NOTE), "When mouse scroll actions are used, these items determine how to scroll.");
    const RECT edit = PlaceOf(At(WIDTH));
    EXPECT_EQ(PlaceOf(At(WIDTH_SPINNER)), Rect(edit.right, edit.top, edit.right + 15, edit.top + 21));
    EXPECT_EQ(Counted(WIDTH_SPINNER), 4);
    EXPECT_EQ(Counted(HEIGHT_SPINNER), 2);
    EXPECT_EQ(StateOfSpinner(At(HEIGHT_SPINNER))->interval, 250U);
}

TEST_F(OptionsDialog, SpinnersAndHiddenButtonsCountInWholeScreensUpToTheLargestDesktop) {
    Open();
    TypeAndLeave(HEIGHT, "2000");
    EXPECT_EQ(Counted(HEIGHT_SPINNER), 2);
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
    const HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    RebuildWindowTable();
    Options.minscroll = 10;
    Open();
    Desk.trace.clear();
    TypeAndLeave(1000, "2000");
    TypeAndLeave(1001, "4096");
    TypeAndLeave(1002, "11");
    TypeAndLeave(1007, "5");
    TypeAndLeave(1008, "3");
    TypeAndLeave(1009, "0");
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
    TypeAndLeave(WIDTH, "2048");
    Click(IDOK);
    EXPECT_EQ(PlaceOf(editor), Rect(476, 200, 776, 400));
    EXPECT_EQ(VDesk, Rect(2048, 0, 3072, 768)) << "the next scroll brings it back";
}

TEST_F(OptionsDialog, ADelayIsChosenByItsRadioAndOnlyATimeNeedsANumber) {
    Options.mousescroll_delay = 2; // its radio is hidden and cannot be chosen again
    Open();
    Click(1078);
    EXPECT_TRUE(IsWindowEnabled(At(DELAY_TIME)));
    Click(1080);
    EXPECT_FALSE(IsWindowEnabled(At(DELAY_TIME)));
    Click(1075);
    SetDlgItemTextA(dialog, DELAY_TIME, "70000");
    Click(IDOK);
    EXPECT_EQ(Options.mousescroll_delay, 1);
    EXPECT_EQ(Options.mousescroll_type, 2);
    EXPECT_EQ(Options.mousescroll_delay_time, 70000) << "there is no limit, and it need not be enabled";
}

TEST_F(OptionsDialog, StoredKindsOfScrollSurviveWhateverTheyAre) {
    const struct {
        int type, delay;
        std::vector<int> checked;
        int bTime, bTabStop; // of the first delay
    } cases[] = {
        {0,  0,  {1074, 1079}, 0, 0},
        {1,  1,  {1073, 1080}, 0, 0},
        {2,  2,  {1075, 1082}, 0, 1}, // hidden, so Tab would find none
        {3,  3,  {1076, 1078}, 1, 0},
        {4,  4,  {},           0, 1},
        {-1, -1, {},           0, 1},
    };
    for (const auto& c : cases) {
        Options.mousescroll_type = c.type;
        Options.mousescroll_delay = c.delay;
        Open();
        EXPECT_EQ(Checked(), c.checked);
        EXPECT_EQ(IsWindowEnabled(At(DELAY_TIME)), c.bTime);
        EXPECT_TRUE(!c.bTabStop || (RowOf(At(1079)).style & WS_TABSTOP)) << c.delay;
        Click(IDOK);
        EXPECT_EQ(Options.mousescroll_type, c.type);
        EXPECT_EQ(Options.mousescroll_delay, c.delay);
    }
}

TEST_F(OptionsDialog, WithoutTheHookLibraryTheMouseOptionsAreOffAndStay) {
    Options.hook_present = 0;
    Options.mousescroll_delay = 3;
    Open();
    EXPECT_EQ(Checked(), std::vector<int>{});
    for (const int id : {1009, 1073, 1074, 1075, 1076, 1079, 1080, 1082, 1078, 1003})
        EXPECT_FALSE(IsWindowEnabled(At(id))) << id;
    EXPECT_EQ(TextOf(DELAY_TIME), "");
    EXPECT_EQ(TextOf(NOTE),
              "Mouse scroll options are disabled because quorl.dll is not present or failed to load.");
    SetDlgItemTextA(dialog, 1009, "50");
    Click(IDOK);
    EXPECT_EQ(Options.mousescroll, 50);
    EXPECT_EQ(Options.mousescroll_delay, 3);
    EXPECT_EQ(Options.mousescroll_delay_time, 100);
}

TEST_F(OptionsDialog, WithoutASpinnerNobodyLimitsTheSize) {
    Open();
    DestroyWindow(At(HEIGHT_SPINNER));
    TypeAndLeave(HEIGHT, "40000");
    TypeAndLeave(WIDTH, "7");
    Click(IDOK);
    EXPECT_EQ(Quorl, Rect(0, 0, 1024, 40000));
}

TEST_F(OptionsDialog, WhatItsButtonsOpenOutlivesItWithTheMapForItsOwner) {
    Open();
    Click(3);
    Click(1064);
    const HWND opened[] = {DialogSlots[3].handle, DialogSlots[6].handle};
    for (const HWND other : opened)
        EXPECT_EQ(RowOf(other).owner, dialog);
    Click(IDOK);
    for (const HWND other : opened) {
        EXPECT_TRUE(IsWindowVisible(other));
        EXPECT_EQ(RowOf(other).owner, MainWnd);
    }
    EXPECT_EQ(OpenOptionsDialog(MainWnd), 1);
}

} // namespace
