// Whole stories with the Options dialog: what it shows, what the user does, what OK makes of it.
#include "dialogs/options_dialog.h"

#include "core/state.h"
#include "dialogs/registry.h"
#include "dialogs/spinner.h"
#include "scroll/window_table.h"
#include "support/quorl_test.h"

namespace {

const int HEIGHT = 1000;
const int WIDTH = 1001;
const int DELAY_TIME = 1003;
const int HEIGHT_SPINNER = 54321;
const int WIDTH_SPINNER = 54322;

HWND Dialog() {
    return DialogSlots[2].handle;
}

HWND Control(int id) {
    return GetDlgItem(Dialog(), id);
}

std::string Text(int id) {
    char text[256] = "";
    GetDlgItemTextA(Dialog(), id, text, sizeof text);
    return text;
}

void Click(int id) {
    ClickControl(Control(id));
}

// And leaves the edit box.
void Type(int id, const char* text) {
    TypeInto(Control(id), text);
    GoToControl(Control(IDOK));
}

// The template keeps it out of sight, so only a program can press it.
void PressHidden(int button) {
    SendMessageA(Dialog(), WM_COMMAND, static_cast<WPARAM>(button),
                 reinterpret_cast<LPARAM>(Control(button)));
}

void PressSpinner(int id, int y) {
    SendMessageA(Control(id), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, y));
    SendMessageA(Control(id), WM_LBUTTONUP, 0, MAKELPARAM(7, y));
}

const int UP = 5;
const int DOWN = 16;

std::vector<int> Checked() {
    std::vector<int> checked;
    for (const int radio : {1073, 1074, 1075, 1076, 1078, 1079, 1080, 1082})
        if (IsDlgButtonChecked(Dialog(), radio))
            checked.push_back(radio);
    return checked;
}

class OptionsDialog : public QuorlTest {
  protected:
    void SetUp() override {
        QuorlTest::SetUp();
        ASSERT_EQ(StartQuorl(), 1);
    }

    // As often as it was closed.
    static void Open() {
        Command(54);
        ASSERT_TRUE(Dialog());
        Desk.trace.clear();
    }
};

TEST_F(OptionsDialog, ShowsWhatIsInForce) {
    Options.mousescroll_delay_time = 40;
    Open();
    EXPECT_TRUE(IsWindowVisible(Dialog()));
    EXPECT_EQ(DialogHandles[2], Dialog());
    const struct {
        int id;
        const char* text;
    } cases[] = {
        {1000, "1536"                                                                    },
        {1001, "4096"                                                                    },
        {1002, "4"                                                                       },
        {1007, "100"                                                                     },
        {1008, "5"                                                                       },
        {1009, "800"                                                                     },
        {1003, "40"                                                                      },
        {1077, "When mouse scroll actions are used, these items determine how to scroll."}
    };
    for (const auto& c : cases)
        EXPECT_EQ(Text(c.id), c.text) << c.id;
    EXPECT_EQ(Checked(), (std::vector<int>{1076, 1079}));
    EXPECT_FALSE(IsWindowEnabled(Control(DELAY_TIME)));
    const RECT edit = PlaceOf(Control(WIDTH));
    EXPECT_EQ(PlaceOf(Control(WIDTH_SPINNER)), Rect(edit.right, edit.top, edit.right + 15, edit.top + 21));
    EXPECT_EQ(StateOfSpinner(Control(WIDTH_SPINNER))->value, 4);
    EXPECT_EQ(StateOfSpinner(Control(HEIGHT_SPINNER))->value, 2);
    EXPECT_EQ(StateOfSpinner(Control(HEIGHT_SPINNER))->interval, 250U);
}

TEST_F(OptionsDialog, SpinnersAndHiddenButtonsCountInWholeScreensUpToTheLargestDesktop) {
    Open();
    Type(HEIGHT, "2000");
    EXPECT_EQ(StateOfSpinner(Control(HEIGHT_SPINNER))->value, 2);
    PressHidden(1022);
    EXPECT_EQ(Text(HEIGHT), "2304");
    PressSpinner(HEIGHT_SPINNER, UP);
    EXPECT_EQ(Text(HEIGHT), "2304") << "the spinner had still counted two";
    Type(HEIGHT, "31999");
    PressSpinner(HEIGHT_SPINNER, UP);
    EXPECT_EQ(Text(HEIGHT), "32000");
    EXPECT_EQ(StateOfSpinner(Control(HEIGHT_SPINNER))->value, 41);
    TypeInto(Control(WIDTH), "9999"); // the focus is still in there
    PressSpinner(WIDTH_SPINNER, DOWN);
    EXPECT_EQ(Text(WIDTH), "3072");
    PressHidden(1025);
    EXPECT_EQ(Text(WIDTH), "2048");
    Type(WIDTH, "4294967295");
    EXPECT_EQ(Text(WIDTH), "0");
    PressSpinner(WIDTH_SPINNER, DOWN);
    EXPECT_EQ(Text(WIDTH), "0");

    Click(IDCANCEL);
    EXPECT_FALSE(Dialog());
    EXPECT_EQ(Quorl, Rect(0, 0, 4096, 1536));
}

TEST_F(OptionsDialog, OkTakesOverWhatIsShownAndHoldsEveryWindowInside) {
    const HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    RebuildWindowTable();
    Options.minscroll = 10;
    Open();
    const struct {
        int id;
        const char* text;
    } typed[] = {
        {1000, "2000"},
        {1001, "4096"},
        {1002, "11"  },
        {1007, "5"   },
        {1008, "3"   },
        {1009, "0"   }
    };
    for (const auto& [id, text] : typed)
        Type(id, text);
    RowOf(editor).received.clear();
    Click(IDOK);
    EXPECT_FALSE(Dialog());
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
    EXPECT_EQ(Quorl, Rect(0, 0, 2048, 1536));
    EXPECT_EQ(VDesk, Rect(2048, 0, 3072, 768)) << "the next scroll brings it back";
}

TEST_F(OptionsDialog, ADelayIsChosenByItsRadioAndOnlyATimeNeedsANumber) {
    Options.mousescroll_delay = 2; // its radio is hidden and cannot be chosen again
    Open();
    Click(1078);
    EXPECT_TRUE(IsWindowEnabled(Control(DELAY_TIME)));
    Click(1080);
    EXPECT_FALSE(IsWindowEnabled(Control(DELAY_TIME)));
    Click(1075);
    SetDlgItemTextA(Dialog(), DELAY_TIME, "70000");
    Click(IDOK);
    EXPECT_EQ(Options.mousescroll_delay, 1);
    EXPECT_EQ(Options.mousescroll_type, 2);
    EXPECT_EQ(Options.mousescroll_delay_time, 70000) << "there is no limit, and it need not be enabled";
}

TEST_F(OptionsDialog, StoredKindsOfScrollSurviveWhateverTheyAre) {
    const struct {
        int type, delay;
        std::vector<int> checked;
        int bTime;
    } cases[] = {
        {0,  0,  {1074, 1079}, 0},
        {1,  1,  {1073, 1080}, 0},
        {2,  2,  {1075, 1082}, 0},
        {3,  3,  {1076, 1078}, 1},
        {4,  4,  {},           0},
        {-1, -1, {},           0},
    };
    for (const auto& c : cases) {
        Options.mousescroll_type = c.type;
        Options.mousescroll_delay = c.delay;
        Open();
        EXPECT_EQ(Checked(), c.checked);
        EXPECT_EQ(IsWindowEnabled(Control(DELAY_TIME)), c.bTime);
        const bool inSight = c.delay == 0 || c.delay == 1 || c.delay == 3;
        EXPECT_TRUE(inSight || (RowOf(Control(1079)).style & WS_TABSTOP)) << "Tab finds the first one";
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
        EXPECT_FALSE(IsWindowEnabled(Control(id))) << id;
    EXPECT_EQ(Text(DELAY_TIME), "");
    EXPECT_EQ(Text(1077),
              "Mouse scroll options are disabled because quorl.dll is not present or failed to load.");
    EXPECT_FALSE(IsWindowVisible(Control(1077)));
    SetDlgItemTextA(Dialog(), 1009, "50");
    Click(IDOK);
    EXPECT_EQ(Options.mousescroll, 50);
    EXPECT_EQ(Options.mousescroll_delay, 3);
    EXPECT_EQ(Options.mousescroll_delay_time, 100);
}

TEST_F(OptionsDialog, WorksWithoutSpinners) {
    Desk.fault = {.call = "GetClassInfoExA", .callsLeft = 1, .bForGood = 1};
    Desk.classes.erase(SPINNER_CLASS);
    Open();
    DestroyWindow(Control(HEIGHT_SPINNER));
    Type(HEIGHT, "40000");
    EXPECT_EQ(Text(HEIGHT), "40000") << "nobody limits it";
    Type(WIDTH, "7");
    Click(IDOK);
    EXPECT_EQ(Quorl, Rect(0, 0, 1024, 40000));
}

TEST_F(OptionsDialog, WhatItsButtonsOpenOutlivesItWithTheMapForItsOwner) {
    Open();
    Click(3);
    Click(1064);
    const HWND opened[] = {DialogSlots[3].handle, DialogSlots[6].handle};
    for (const HWND dialog : opened)
        EXPECT_EQ(RowOf(dialog).owner, Dialog());
    Click(IDOK);
    EXPECT_FALSE(DialogHandles[2]) << "no key goes to a window that is gone";
    for (const HWND dialog : opened) {
        EXPECT_TRUE(IsWindowVisible(dialog));
        EXPECT_EQ(RowOf(dialog).owner, MainWnd);
    }
    Open();
}

TEST_F(OptionsDialog, ASecondRequestKeepsWhatIsTyped) {
    Open();
    const HWND dialog = Dialog();
    SetDlgItemTextA(dialog, HEIGHT, "1800");
    EXPECT_EQ(OpenOptionsDialog(MainWnd), 1);
    EXPECT_EQ(Dialog(), dialog);
    EXPECT_EQ(Text(HEIGHT), "1800");
}

} // namespace
