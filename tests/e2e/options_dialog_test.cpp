// The Options dialog by real keys and the real mouse; what it did is seen in windows and in the settings
// file.
#include "dialogs.h"
#include "mouse.h"
#include "settings_file.h"

#include <algorithm>

namespace {

const int HEIGHT = 1000;
const int WIDTH = 1001;
const int DELAY_TIME = 1003;
const int MAX_SCROLL = 1007;
const int MOUSE_SCROLL = 1009;
const int BY_MIN = 1074;
const int AFTER_TIME = 1078;
const int HEIGHT_SPINNER = 54321;
const int WIDTH_SPINNER = 54322;

HWND OpenOptions() {
    return OpenByRow(54, "Options...");
}

// The number of the control that has the keyboard; 0: none of the dialog's.
int Focused(HWND dialog) {
    GUITHREADINFO state = {};
    state.cbSize = sizeof state;
    GetGUIThreadInfo(GetWindowThreadProcessId(dialog, nullptr), &state);
    return state.hwndFocus && GetParent(state.hwndFocus) == dialog ? GetDlgCtrlID(state.hwndFocus) : 0;
}

// By its row; the last line is written last.
void Save() {
    DoRow(47);
    EXPECT_SOON(Stored("Action122"), std::string("-1|-1|-1|-1|1"));
}

void Button(DWORD flag) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flag;
    SendInput(1, &input, sizeof input);
}

// Holds a place of the spinner for a while.
void Hold(HWND spinner, POINT at, DWORD milliseconds) {
    ClientToScreen(spinner, &at);
    MoveMouse(at);
    Button(MOUSEEVENTF_LEFTDOWN);
    Sleep(milliseconds);
    Button(MOUSEEVENTF_LEFTUP);
}

const POINT UP = {7, 5};
const POINT DOWN = {7, 16};

// A step that must change what the edit box shows; clicked again when Wine has lost a click.
void Step(HWND dialog, int edit, int spinner, POINT at) {
    const std::string before = ControlText(dialog, edit);
    for (int tries = 0; tries < 5 && ControlText(dialog, edit) == before; ++tries)
        PressAt(Control(dialog, spinner), at);
}

void Choose(HWND dialog, int radio) {
    for (int tries = 0; tries < 5 && !IsChecked(dialog, radio); ++tries)
        Press(Control(dialog, radio));
}

} // namespace

TEST(OptionsDialog, ItsSpinnersStepTheDesktopByScreensAndNothingChangesUntilOk) {
    ASSERT_TRUE(StartQuorl());
    const HWND options = OpenOptions();
    ASSERT_TRUE(options);
    const Place edit = PlaceOf(Control(options, HEIGHT));
    const HWND height = Control(options, HEIGHT_SPINNER);
    EXPECT_EQ(PlaceOf(height), (Place{edit.right, edit.top, edit.right + 15, edit.top + 21}));
    EXPECT_EQ(ControlText(options, HEIGHT), "1536");
    EXPECT_EQ(ControlText(options, WIDTH), "4096");

    Step(options, HEIGHT, HEIGHT_SPINNER, UP);
    EXPECT_EQ(ControlText(options, HEIGHT), "2304");
    Step(options, HEIGHT, HEIGHT_SPINNER, DOWN);
    Step(options, HEIGHT, HEIGHT_SPINNER, DOWN);
    EXPECT_EQ(ControlText(options, HEIGHT), "768");
    for (int tries = 0; tries < 5 && ControlText(options, WIDTH) == "4096"; ++tries)
        Hold(Control(options, WIDTH_SPINNER), UP, 1100);
    const std::string held = ControlText(options, WIDTH);
    EXPECT_GE(std::stoi(held), 6 * SCREEN_W) << "a held button repeats";
    Sleep(600);
    EXPECT_EQ(ControlText(options, WIDTH), held) << "a button let go does not";
    EXPECT_EQ(Focused(options), HEIGHT) << "the keyboard stays in the edit box";

    PressKeys({VK_ESCAPE});
    EXPECT_TRUE(WaitForEnd(options));
    Save();
    EXPECT_EQ(Stored("Quorl.right"), "4096");
    EXPECT_EQ(Stored("Quorl.bottom"), "1536");
}

TEST(OptionsDialog, NumbersTypedAreHeldInTheirLimitsAndTakenOverByEnter) {
    ASSERT_TRUE(StartQuorl());
    const HWND options = OpenOptions();
    ASSERT_TRUE(options);
    TypeOver(Control(options, HEIGHT), "40000");
    PressKeys({VK_TAB});
    EXPECT_SOON(ControlText(options, HEIGHT), std::string("32000"));
    PressAt(Control(options, HEIGHT_SPINNER), UP);
    EXPECT_EQ(ControlText(options, HEIGHT), "32000") << "there is no room for another screen";
    TypeOver(Control(options, HEIGHT), "2000");
    TypeOver(Control(options, MAX_SCROLL), "55");
    TypeOver(Control(options, 1002), "99");
    OpenOptions(); // raises what is open
    EXPECT_EQ(ControlText(options, MAX_SCROLL), "55");

    PressKeys({VK_RETURN});
    EXPECT_TRUE(WaitForEnd(options));
    Save();
    EXPECT_EQ(Stored("Quorl.bottom"), "2000");
    EXPECT_EQ(Stored("maxscroll"), "55");
    EXPECT_EQ(Stored("border"), "11");
    const HWND again = OpenOptions();
    ASSERT_TRUE(again);
    EXPECT_EQ(ControlText(again, HEIGHT), "2000");
    EXPECT_EQ(ControlText(again, 1002), "10");
    Step(again, HEIGHT, HEIGHT_SPINNER, UP);
    EXPECT_EQ(ControlText(again, HEIGHT), "2304") << "two whole screens, and one more";
}

TEST(OptionsDialog, TabGoesThroughItDownTheColumnsAndThenThroughTheGroups) {
    ASSERT_TRUE(StartQuorl());
    const HWND options = OpenOptions();
    ASSERT_TRUE(options);
    for (const int control : {1000, 1001, 1002, 1007, 1008, 1009, 1, 2, 3, 1064, 1076, 1079}) {
        EXPECT_SOON(Focused(options), control);
        PressKeys({VK_TAB});
    }
    EXPECT_SOON(Focused(options), HEIGHT) << "the time is off, so round again";
    PressKeys({VK_SHIFT, VK_TAB});
    EXPECT_SOON(Focused(options), 1079);
    PressKeys({VK_UP}); // round the group, over the one that is hidden
    EXPECT_SOON(Focused(options), AFTER_TIME);
    EXPECT_SOON(IsOn(options, DELAY_TIME), true);
    PressKeys({VK_TAB});
    EXPECT_SOON(Focused(options), DELAY_TIME);
}

TEST(OptionsDialog, TabReachesAGroupThatShowsNoChoiceAndLeavesItSo) {
    Store("mousescroll_type", "9");
    Store("mousescroll_delay", "2"); // its button is hidden
    ASSERT_TRUE(StartQuorl());
    const HWND options = OpenOptions();
    ASSERT_TRUE(options);
    EXPECT_SOON(Focused(options), HEIGHT);
    PressKeys({VK_SHIFT, VK_TAB});
    EXPECT_SOON(Focused(options), 1079);
    PressKeys({VK_SHIFT, VK_TAB});
    EXPECT_SOON(Focused(options), 1073) << "the topmost";
    PressKeys({VK_RETURN});
    EXPECT_TRUE(WaitForEnd(options));
    Save();
    EXPECT_EQ(Stored("mousescroll_type"), "9");
    EXPECT_EQ(Stored("mousescroll_delay"), "2");
}

TEST(OptionsDialog, TheWayOfAnEdgeScrollIsChosenByTheMouse) {
    ASSERT_TRUE(StartQuorl());
    const HWND options = OpenOptions();
    ASSERT_TRUE(options);
    EXPECT_TRUE(IsChecked(options, 1076) && IsChecked(options, 1079));
    for (const int hidden : {1022, 1023, 1024, 1025, 1077, 1082})
        EXPECT_FALSE(IsShown(options, hidden)) << hidden;
    EXPECT_FALSE(IsOn(options, DELAY_TIME));
    Choose(options, AFTER_TIME);
    EXPECT_TRUE(IsOn(options, DELAY_TIME));
    Choose(options, 1080);
    EXPECT_FALSE(IsOn(options, DELAY_TIME));
    Choose(options, AFTER_TIME);
    TypeOver(Control(options, DELAY_TIME), "250");
    Choose(options, BY_MIN);
    CloseBy(options, 1);
    Save();
    EXPECT_EQ(Stored("mousescroll_type"), "0");
    EXPECT_EQ(Stored("mousescroll_delay"), "3");
    EXPECT_EQ(Stored("mousescroll_delay_time"), "250");
}

TEST(OptionsDialog, WhatItsButtonsOpenOutlivesIt) {
    const HWND quorl = StartQuorl();
    ASSERT_TRUE(quorl);
    const HWND options = OpenOptions();
    ASSERT_TRUE(options);
    HWND actions = nullptr;
    for (int tries = 0; tries < 3 && !actions; ++tries) {
        PressOnly(Control(options, 3));
        actions = WaitForBox("Actions...");
    }
    ASSERT_TRUE(actions);
    EXPECT_EQ(GetWindow(actions, GW_OWNER), options);
    EXPECT_SOON(GetForegroundWindow(), actions); // it comes there only after it shows
    Activate(options);
    EXPECT_SOON(Focused(options), 3);
    PressKeys({VK_TAB});
    EXPECT_SOON(Focused(options), 1064);
    PressKeys({VK_SPACE});
    const HWND menus = WaitForBox("Customize Menu...");
    ASSERT_TRUE(menus);
    EXPECT_SOON(GetForegroundWindow(), menus);

    Activate(options);
    EXPECT_SOON(Focused(options), 1064);
    PressKeys({VK_ESCAPE});
    EXPECT_TRUE(WaitForEnd(options));
    for (const HWND opened : {actions, menus}) {
        EXPECT_TRUE(IsWindowVisible(opened));
        EXPECT_EQ(GetWindow(opened, GW_OWNER), quorl);
        Activate(opened);
        EXPECT_SOON(Focused(opened) != 0, true);
        PressKeys({VK_RETURN});
        EXPECT_TRUE(WaitForEnd(opened)) << "it still takes keys";
    }
    EXPECT_TRUE(OpenOptions()) << "and Options opens again";
}

TEST(OptionsDialog, ASmallerDesktopFoldsItsWindowsBackOntoTheScreen) {
    const HWND editor = OpenWindow("editor", {1500, 900, 1800, 1100});
    ASSERT_TRUE(StartQuorl());
    const HWND options = OpenOptions();
    ASSERT_TRUE(options);
    CloseBy(options, 1);
    EXPECT_EQ(PlaceOf(editor), (Place{1500, 900, 1800, 1100})) << "the same size folds nothing";

    const HWND again = OpenOptions();
    ASSERT_TRUE(again);
    Step(again, WIDTH, WIDTH_SPINNER, DOWN);
    CloseBy(again, 1);
    EXPECT_SOON(PlaceOf(editor), (Place{476, 132, 776, 332}));
}

TEST(OptionsDialog, WithoutTheHookLibraryItsMouseOptionsAreOffAndStay) {
    const std::string alone = ProgramFolder() + "\\alone";
    CreateDirectoryA(alone.c_str(), nullptr);
    ASSERT_TRUE(CopyFileA((ProgramFolder() + "\\quorl.exe").c_str(), (alone + "\\quorl.exe").c_str(), FALSE));
    Store("mousescroll_delay", "3");
    ASSERT_TRUE(StartQuorl(alone));
    const HWND options = OpenOptions();
    ASSERT_TRUE(options);
    for (const int control : {MOUSE_SCROLL, 1073, 1074, 1075, 1076, 1078, 1079, 1080, 1082, DELAY_TIME})
        EXPECT_FALSE(IsOn(options, control) || IsChecked(options, control)) << control;
    EXPECT_EQ(ControlText(options, DELAY_TIME), "");
    CloseBy(options, 1);
    Save();
    EXPECT_EQ(Stored("mousescroll_delay"), "3");
    EXPECT_EQ(Stored("mousescroll_delay_time"), "100");
}
