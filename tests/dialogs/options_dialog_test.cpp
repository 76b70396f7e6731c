// Whole stories with the Options dialog: what it shows, what the user does, what OK makes of it.
#include "dialogs/dialog_test.h"
#include "dialogs/options_rules.h"
#include "dialogs/registry.h"

#include <climits>

namespace {

constexpr int ITSELF = 54; // its row
// Its controls.
constexpr int ACTIONS = 3, MENUS = 1064;
constexpr int HEIGHT = 1000, WIDTH = 1001, BORDER = 1002, DELAY_TIME = 1003;
constexpr int MAXSCROLL = 1007, MINSCROLL = 1008, MOUSESCROLL = 1009;
constexpr int BY_MAX = 1073, BY_MIN = 1074, BY_MOUSE = 1075, BY_SCREEN = 1076;
constexpr int AFTER_TIME = 1078, AT_ONCE = 1079, AFTER_LEFT_CLICK = 1080, AFTER_RIGHT_CLICK = 1082;
constexpr int HEIGHT_SPINNER = 54321, WIDTH_SPINNER = 54322;

using OptionsDialog = DialogTest;

TEST_F(OptionsDialog, ShowsWhatIsInForceAndOkTakesOverWhatIsTypedAndHoldsEveryWindowInside) {
    const HWND editor = OpenKnown("editor", {100, 100, 500, 400});
    Options.minscroll = 10;
    Open(ITSELF);
    EXPECT_EQ(PlaceOf(At(HEIGHT_SPINNER)).right - PlaceOf(At(HEIGHT)).right, 15);
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
    EXPECT_EQ((Numbers{Options.border, Options.maxscroll, Options.minscroll, Options.mousescroll}),
              (Numbers{11, 10, 3, 1}));
    EXPECT_EQ(RowOf(editor).received.size(), 1U) << "one ping: a larger desktop gathers nothing";
}

TEST(OptionsRules, NumbersTakenOverAreHeldInTheirLimits) {
    const auto taken = [](const OptionNumbers& shown, int minscroll) { // so far
        const OptionNumbers now = AcceptedNumbers(shown, 1024, 768, minscroll);
        return Numbers{now.height, now.width, now.border, now.maxscroll, now.minscroll, now.mousescroll};
    };
    EXPECT_EQ(taken({767, 1023, 0, 50, 200, 0}, 5), (Numbers{768, 1024, 2, 50, 50, 1}));
    EXPECT_EQ(taken({40000, 50000, 10, 40000, 40000, 40000}, 5),
              (Numbers{40000, 50000, 11, 32000, 32000, 32000}));
    EXPECT_EQ(taken({INT_MIN, -1, INT_MAX, 0, 0, -1}, 1), (Numbers{768, 1024, 11, 1, 1, 1}));
}

TEST_F(OptionsDialog, SpinnersAndHiddenButtonsCountInWholeScreensUpToTheLargestDesktop) {
    constexpr int UP = 5, DOWN = 16; // pixels from the spinner's top
    const auto after = [this](int edit, int y) {
        const HWND spinner = At(edit == HEIGHT ? HEIGHT_SPINNER : WIDTH_SPINNER);
        SendMessageA(spinner, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, y));
        SendMessageA(spinner, WM_LBUTTONUP, 0, MAKELPARAM(7, y));
        return TextOf(edit);
    };
    Open(ITSELF);
    Type(HEIGHT, "2000");
    Send(1022);
    EXPECT_EQ(TextOf(HEIGHT), "2304");
    EXPECT_EQ(after(HEIGHT, UP), "2304") << "the spinner had still counted two";
    Type(HEIGHT, "31999");
    Type(WIDTH, "9999"); // the focus is still in there
    EXPECT_EQ(after(HEIGHT, UP), "32000");
    EXPECT_EQ(after(WIDTH, DOWN), "3072");
    Send(1025);
    EXPECT_EQ(TextOf(WIDTH), "2048");
    Press(VK_ESCAPE);
    EXPECT_EQ(Quorl, Rect(0, 0, 4096, 1536));
}

TEST_F(OptionsDialog, ASmallerDesktopGathersItsWindowsAndLeavesTheView) {
    Command(30); // two screens to the right
    Command(30);
    const HWND editor = OpenWindow("editor", {1500, 200, 1800, 400});
    Open(ITSELF);
    Click(IDOK);
    EXPECT_EQ(PlaceOf(editor).left, 1500) << "the desktop is as large as before";
    Open(ITSELF);
    Type(WIDTH, "2048");
    Click(IDOK);
    EXPECT_EQ(PlaceOf(editor), Rect(476, 200, 776, 400));
    EXPECT_EQ(VDesk, Rect(2048, 0, 3072, 768)) << "the next scroll brings it back";
}

TEST_F(OptionsDialog, ADelayIsChosenByItsRadioAndOnlyATimeNeedsANumber) {
    Options.mousescroll_delay = 2; // its radio is hidden and cannot be chosen again
    Open(ITSELF);
    Click(AFTER_TIME);
    Type(DELAY_TIME, "70000");
    Click(AFTER_LEFT_CLICK, BY_MOUSE);
    EXPECT_FALSE(IsWindowEnabled(At(DELAY_TIME)));
    Click(ACTIONS, MENUS, IDOK);
    EXPECT_TRUE(DialogHandles[KEYS_ACTIONS] && DialogHandles[KEYS_CUSTOMIZE_MENU]) << "they outlive it";
    EXPECT_EQ((Numbers{Options.mousescroll_delay, Options.mousescroll_type}), (Numbers{1, 2}));
    EXPECT_EQ(Options.mousescroll_delay_time, 70000) << "there is no limit, and it need not be enabled";
}

TEST_F(OptionsDialog, StoredKindsOfScrollSurviveWhateverTheyAre) {
    const int types[] = {BY_MIN, BY_MAX, BY_MOUSE, BY_SCREEN};
    const int delays[] = {AT_ONCE, AFTER_LEFT_CLICK, AFTER_RIGHT_CLICK, AFTER_TIME};
    for (const int kind : {0, 1, 2, 3, 4, -1}) {
        Options.mousescroll_type = Options.mousescroll_delay = kind;
        Open(ITSELF);
        const int bKnown = kind >= 0 && kind < 4;
        EXPECT_EQ(Checked(), bKnown ? Numbers({types[kind], delays[kind]}) : Numbers{}) << kind;
        EXPECT_EQ(IsWindowEnabled(At(DELAY_TIME)), kind == 3);
        Click(IDOK);
        EXPECT_EQ((Numbers{Options.mousescroll_type, Options.mousescroll_delay}), Numbers(2, kind));
    }
}

TEST_F(OptionsDialog, WithoutTheHookLibraryTheMouseOptionsAreOffAndStay) {
    Options.hook_present = 0;
    Options.mousescroll_delay = 3;
    Open(ITSELF);
    EXPECT_EQ(Checked(), Numbers{});
    EXPECT_FALSE(IsWindowEnabled(At(MOUSESCROLL)) || IsWindowEnabled(At(DELAY_TIME)));
    Click(IDOK);
    EXPECT_EQ(Options.mousescroll_delay_time, 100);
}

} // namespace
