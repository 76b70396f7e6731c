#include "dialogs/dialog_test.h"
#include "dialogs/options_rules.h"
#include "dialogs/registry.h"

#include <climits>

using OptionsDialog = DialogTest;

TEST_F(OptionsDialog, OkStoresTheNumbers) {
    const HWND editor = OpenAndList("editor", {100, 100, 500, 400});
    Open(ACTION_OPTIONS);
    std::string shown;
    int number = 4000;
    for (const int box : {IDC_OPTIONS_WIDTH, IDC_OPTIONS_HEIGHT, IDC_OPTIONS_BORDER, IDC_OPTIONS_MAXSCROLL,
                          IDC_OPTIONS_MINSCROLL, IDC_OPTIONS_MOUSESCROLL}) {
        shown += Text(box) + " ";
        Type(box, std::to_string(number += 100).c_str());
    }
    EXPECT_EQ(shown, "4096 1536 4 100 5 800 ");
    WindowOf(editor).received.clear();
    Click(IDOK);
    EXPECT_EQ(Quorl, Rect(0, 0, 4100, 4200));
    EXPECT_EQ(Options.border, OptionDefs[OPTION_BORDER].userMax + 1) << "shown as one less";
    EXPECT_EQ((Numbers{Options.maxscroll, Options.minscroll, Options.mousescroll}),
              (Numbers{4400, 4400, 4600}));
    EXPECT_EQ(WindowOf(editor).received.size(), 1U) << "one ping: a larger desktop folds nothing";
}

TEST(OptionsRules, KeepTheScreenInsideAndMinscrollBelowMaxscroll) {
    const OptionNumbers accepted = AcceptNumbers({0, 0, INT_MIN, 50, 200, 0}, 1024, 768, 90);
    EXPECT_EQ((Numbers{accepted.height, accepted.width, accepted.border, accepted.maxscroll,
                       accepted.minscroll, accepted.mousescroll}),
              (Numbers{768, 1024, 2, 90, 90, 1}));
    EXPECT_EQ(StepSize(1100, 1024, -1), 1024);
}

TEST_F(OptionsDialog, SpinnersAndHiddenButtonsStepByWholeScreens) {
    const auto step = [this](int spinner, int y, int edit) {
        SendMessageA(Item(spinner), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, y));
        SendMessageA(Item(spinner), WM_LBUTTONUP, 0, MAKELPARAM(7, y));
        return Text(edit);
    };
    Open(ACTION_OPTIONS);
    EXPECT_EQ(RectOf(Item(IDC_OPTIONS_HEIGHT_SPINNER)).left, RectOf(Item(IDC_OPTIONS_HEIGHT)).right);
    EXPECT_EQ(step(IDC_OPTIONS_WIDTH_SPINNER, 16, IDC_OPTIONS_WIDTH), "3072");
    Type(IDC_OPTIONS_HEIGHT, "2000");
    SendMessageA(dialog, WM_COMMAND, IDC_OPTIONS_HEIGHT_MORE, 0);
    EXPECT_EQ(Text(IDC_OPTIONS_HEIGHT), "2304");
    Type(IDC_OPTIONS_HEIGHT, "31999");
    FocusControl(Item(IDC_OPTIONS_WIDTH));
    EXPECT_EQ(step(IDC_OPTIONS_HEIGHT_SPINNER, 5, IDC_OPTIONS_HEIGHT), "32000") << "the largest desktop";
    SendMessageA(dialog, WM_COMMAND, IDC_OPTIONS_WIDTH_LESS, 0);
    EXPECT_EQ(Text(IDC_OPTIONS_WIDTH), "2048");
    Press(VK_ESCAPE);
    EXPECT_EQ(Quorl, Rect(0, 0, 4096, 1536));
}

TEST_F(OptionsDialog, ASmallerDesktopFoldsWindowsAndKeepsTheView) {
    RunAction(ACTION_VIEW_TO_RIGHT);
    const HWND editor = OpenWindow("editor", {1500, 200, 1800, 400});
    for (const char* width : {"4096", "2048"}) {
        EXPECT_EQ(RectOf(editor).left, 1500);
        Open(ACTION_OPTIONS);
        Type(IDC_OPTIONS_WIDTH, width);
        SendMessageA(MainWnd, WM_DISPLAYCHANGE, 0, 0);
        Click(IDOK);
        EXPECT_EQ(Text(IDC_OPTIONS_WIDTH), width) << "refused until the displays have settled";
        Wait(2000);
        Click(IDOK);
    }
    EXPECT_EQ(RectOf(editor), Rect(476, 200, 776, 400));
    EXPECT_EQ(VDesk.left, 3072) << "until the next scroll";
}

TEST_F(OptionsDialog, StoresTheChosenDelayAndOpensOtherDialogs) {
    Options.mousescroll_delay = 2; // its hidden button must not win over the user's choice
    Open(ACTION_OPTIONS);
    Click(IDC_OPTIONS_AFTER_TIME);
    Type(IDC_OPTIONS_DELAY_TIME, "70000");
    Click(IDC_OPTIONS_LEFT_CLICK, IDC_OPTIONS_BY_MOUSE, IDC_OPTIONS_ACTIONS, IDC_OPTIONS_MENUS, IDOK);
    EXPECT_TRUE(DialogHandles[DIALOG_ACTIONS] && DialogHandles[DIALOG_CUSTOMIZE_MENU]);
    EXPECT_EQ((Numbers{Options.mousescroll_delay, Options.mousescroll_type}), (Numbers{1, 2}));
    EXPECT_EQ(Options.mousescroll_delay_time, 70000) << "stored although disabled";
}

TEST_F(OptionsDialog, OkKeepsStoredTypesAndDelays) {
    const std::size_t checked[] = {0, 2, 2, 2, 2, 0};
    for (const int stored : {-1, 0, 1, 2, 3, 4}) {
        Options.mousescroll_type = Options.mousescroll_delay = stored;
        Open(ACTION_OPTIONS);
        EXPECT_EQ(Checked().size(), checked[stored + 1]);
        EXPECT_EQ(IsWindowEnabled(Item(IDC_OPTIONS_DELAY_TIME)), stored == 3);
        EXPECT_EQ(WindowOf(Item(IDC_OPTIONS_AT_ONCE)).style & WS_TABSTOP,
                  stored == 1 || stored == 3 ? 0 : WS_TABSTOP)
            << "unless a visible button is checked";
        Click(IDOK);
        EXPECT_EQ((Numbers{Options.mousescroll_type, Options.mousescroll_delay}), Numbers(2, stored));
    }
}
