// Bindings as a user changes them in the Actions dialog, and what the keys and the mouse do then.
#include "dialogs.h"
#include "mouse.h"
#include "settings_file.h"

#include <commctrl.h>

namespace {

enum ControlId {
    SHIFT = 1028,
    ALT = 1030,
    CTRL = 1031,
    RIGHT = 1033,
    LEFT = 1034,
    WIN = 1036,
    KEYS = 1038,
    GROUP = 1049,
    TABS = 1050,
    LIST = 1051,
    CLEAR = 1052,
    APPLY = 1053,
    WARNING = 1069,
};

// Items of the lists: "Display Quorl menu" and "Move one desktop to the right".
constexpr int KEY_MENU = 0, KEY_RIGHT_SCREEN = 25, MOUSE_MENU = 0, MOUSE_RIGHT_SCREEN = 21;

std::string BindingOf(HWND dialog, int item) {
    return ItemText(Control(dialog, LIST), item, 0);
}

int NumItems(HWND dialog) {
    return static_cast<int>(SendMessageA(Control(dialog, LIST), LVM_GETITEMCOUNT, 0, 0));
}

// 1 if no program holds the combination.
bool IsFree(UINT modifiers, UINT key) {
    const bool free = RegisterHotKey(nullptr, 7, modifiers, key);
    UnregisterHotKey(nullptr, 7);
    return free;
}

std::string Flags(HWND dialog) {
    std::string flags;
    for (const int id : {SHIFT, ALT, CTRL, WIN, LEFT, RIGHT})
        flags += IsChecked(dialog, id) ? '1' : '0';
    return flags;
}

std::string Shown(HWND dialog) {
    std::string shown;
    for (const int id : {WIN, KEYS, WARNING, LEFT, RIGHT})
        shown += IsShown(dialog, id) ? '1' : '0';
    return shown;
}

HWND OpenActions() {
    return StartQuorl() ? OpenByRow(55, "Actions...") : nullptr;
}

} // namespace

TEST(ActionsDialog, EachTabListsItsActionsAndShowsTheBindingOfTheSelectedOne) {
    const HWND dialog = OpenActions();
    ASSERT_TRUE(dialog);
    EXPECT_SOON(NumItems(dialog), 103);
    EXPECT_SOON(Shown(dialog), std::string("11100"));
    EXPECT_SOON(BindingOf(dialog, KEY_MENU), std::string("S-C-A-Space"));
    EXPECT_SOON(ItemText(Control(dialog, LIST), KEY_MENU, 1), std::string("Display Quorl menu"));
    EXPECT_SOON(BindingOf(dialog, 102), std::string("<hotkey undefined>"));
    EXPECT_SOON(ItemText(Control(dialog, LIST), 102, 1), std::string("Toggle Ignore Toolwins"));
    PressItem(Control(dialog, LIST), KEY_RIGHT_SCREEN);
    EXPECT_SOON(Flags(dialog), std::string("011000"));
    EXPECT_SOON(ControlText(dialog, KEYS), std::string("Right"));

    PressTab(Control(dialog, TABS), 1);
    EXPECT_SOON(ControlText(dialog, GROUP), std::string("Mouse"));
    EXPECT_SOON(Shown(dialog), std::string("00011"));
    EXPECT_SOON(NumItems(dialog), 79);
    EXPECT_SOON(BindingOf(dialog, MOUSE_MENU), std::string("RB"));
    EXPECT_SOON(ItemText(Control(dialog, LIST), MOUSE_RIGHT_SCREEN, 1),
                std::string("Move one desktop to the right"));
    EXPECT_TRUE(GetWindowLongA(Control(dialog, LIST), GWL_STYLE) & WS_VSCROLL) << "the mouse can scroll it";
    PressItem(Control(dialog, LIST), 4);
    EXPECT_SOON(Flags(dialog), std::string("100010")) << "Shift and the left button";

    PressTab(Control(dialog, TABS), 0);
    EXPECT_SOON(ControlText(dialog, GROUP), std::string("Keyboard"));
    EXPECT_SOON(Shown(dialog), std::string("11100"));
    EXPECT_SOON(NumItems(dialog), 103);
    CloseBy(dialog, IDOK);
}

TEST(ActionsDialog, AnAppliedKeyWorksAtOnceAndClearReleasesIt) {
    const Place place = {20, 500, 220, 600};
    const HWND editor = OpenWindow("editor", place);
    const HWND dialog = OpenActions();
    ASSERT_TRUE(dialog);
    EXPECT_FALSE(IsFree(MOD_CONTROL | MOD_ALT, VK_RIGHT));
    PressItem(Control(dialog, LIST), KEY_RIGHT_SCREEN);
    ChooseLetter(Control(dialog, KEYS), 'Q');
    Press(Control(dialog, APPLY));
    EXPECT_SOON(BindingOf(dialog, KEY_RIGHT_SCREEN), std::string("C-A-Q"));
    EXPECT_SOON(IsFree(MOD_CONTROL | MOD_ALT, VK_RIGHT), true) << "the old key is released";
    PressKeys({VK_CONTROL, VK_MENU, 'Q'});
    EXPECT_SOON(PlaceOf(editor), Moved(place, -SCREEN_W, 0));
    DoRow(47);
    EXPECT_SOON(Stored("Action30"), std::string("-1|-1|6|81|0"));

    const Place before =
        PlaceOf(dialog); // a second request brings it back from wherever it went with the view
    DoRow(55);
    EXPECT_SOON(PlaceOf(dialog).left, (SCREEN_W - (before.right - before.left) / 2) / 2);
    Press(Control(dialog, CLEAR));
    EXPECT_SOON(BindingOf(dialog, KEY_RIGHT_SCREEN), std::string("<hotkey undefined>"));
    EXPECT_SOON(IsFree(MOD_CONTROL | MOD_ALT, 'Q'), true);
}

TEST(ActionsDialog, AKeyThatAnotherProgramHoldsIsReportedAndTheRowStandsUnbound) {
    const HWND dialog = OpenActions();
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_ALT, 'Q'));
    PressItem(Control(dialog, LIST), KEY_RIGHT_SCREEN);
    ChooseLetter(Control(dialog, KEYS), 'Q');
    PressOnly(Control(dialog, APPLY));
    const HWND box = WaitForBox("Error");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box), "Hotkey registeration failed (1409): \n\t\"Move one desktop to the right\" (30)"
                            "\nAnother program has already registered the hotkey combination.");
    AnswerBox("Error", VK_RETURN);
    UnregisterHotKey(nullptr, 1);
    EXPECT_SOON(BindingOf(dialog, KEY_RIGHT_SCREEN), std::string("<hotkey undefined>"));
    EXPECT_SOON(IsFree(MOD_CONTROL | MOD_ALT, VK_RIGHT), true);
    Press(Control(dialog, APPLY));
    EXPECT_SOON(BindingOf(dialog, KEY_RIGHT_SCREEN), std::string("C-A-Q")) << "now nobody holds it";
}

TEST(ActionsDialog, AMouseCombinationCountsAtTheNextClickOnTheMap) {
    const Place place = {20, 500, 220, 600};
    const HWND editor = OpenWindow("editor", place);
    const HWND dialog = OpenActions();
    ASSERT_TRUE(dialog);
    PressTab(Control(dialog, TABS), 1);
    PressItem(Control(dialog, LIST), MOUSE_MENU);
    Press(Control(dialog, CLEAR));
    EXPECT_SOON(BindingOf(dialog, MOUSE_MENU), std::string("<mkey undefined>"));
    PressItem(Control(dialog, LIST), MOUSE_RIGHT_SCREEN);
    Press(Control(dialog, LEFT));
    Press(Control(dialog, RIGHT));
    Press(Control(dialog, APPLY));
    EXPECT_SOON(BindingOf(dialog, MOUSE_RIGHT_SCREEN), std::string("RB"));

    const Place map = PlaceOf(QuorlWindow());
    MoveMouse({map.left + 20, map.bottom - 20});
    Click(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
    EXPECT_SOON(PlaceOf(editor), Moved(place, -SCREEN_W, 0));
}

TEST(ActionsDialog, TheKeyboardAloneDoesIt) {
    const HWND dialog = OpenActions();
    ASSERT_TRUE(dialog);
    EXPECT_SOON(GetForegroundWindow(), dialog);
    PressKeys({VK_END}); // the focus is in the list
    PressKeys({VK_HOME});
    EXPECT_SOON(Flags(dialog), std::string("111000"));
    PressInTurn({VK_TAB, VK_SPACE, VK_TAB, VK_TAB, VK_TAB, VK_TAB, 'Q', VK_TAB,
                 VK_SPACE}); // Shift off, past three flags, the key, Apply
    EXPECT_SOON(BindingOf(dialog, KEY_MENU), std::string("C-A-Q"));
    PressInTurn({VK_TAB, VK_TAB, VK_TAB, VK_RIGHT}); // Clear, OK, the tabs
    EXPECT_SOON(ControlText(dialog, GROUP), std::string("Mouse"));
    PressKeys({VK_ESCAPE});
    EXPECT_TRUE(WaitForEnd(dialog));
    PressKeys({VK_CONTROL, VK_MENU, 'Q'});
    EXPECT_SOON(OpenedMenu() != nullptr, true);
    PressKeys({VK_ESCAPE});
}
