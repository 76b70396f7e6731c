// What the dialogs do beside what the tour shows: by the keyboard alone, and where something stands in the
// way.
#include "dialogs.h"
#include "settings_file.h"

namespace {

constexpr int ACTION_LIST = 1062, INSERT_LINE = 5, INTO = 3, MENU_LIST = 1061; // of Customize Menu
constexpr int LIST = 1041;                                                     // of the Find dialogs
constexpr int NAME = 1025, SWATCH = 1040;                                      // of Name Region

// 1 if no program holds the combination.
bool IsFree(UINT modifiers, UINT key) {
    const bool free = RegisterHotKey(nullptr, 7, modifiers, key);
    UnregisterHotKey(nullptr, 7);
    return free;
}

HWND StartAndOpen(int row, const char* title) {
    StartQuorl();
    return OpenByRow(row, title);
}

// Has the settings saved and looks for a line of the file.
void ExpectSaved(const char* key, const std::string& wanted) {
    DoRow(SAVE);
    EXPECT_SOON(Stored(key), wanted) << key;
}

// In the system's own dialog for colours, which asks for a name of its own only in its title.
void ChooseColor(HWND dialog, const char* red, const char* green, const char* blue) {
    PressOnly(Control(dialog, SWATCH));
    const HWND colors = WaitForBox("Color");
    TypeOver(Control(colors, 706), red);
    TypeOver(Control(colors, 707), green);
    TypeOver(Control(colors, 708), blue);
    CloseBy(colors, IDOK);
}

COLORREF ColorOf(HWND swatch) {
    const Place place = PlaceOf(swatch);
    const HDC screen = GetDC(nullptr);
    const COLORREF color = GetPixel(screen, (place.left + place.right) / 2, (place.top + place.bottom) / 2);
    ReleaseDC(nullptr, screen);
    return color;
}

} // namespace

TEST(OptionsDialog, TheKeyboardAloneDoesIt) {
    constexpr int FIRST = 1000, DELAY_TIME = 1003, AFTER_TIME = 1078, AT_ONCE = 1079;
    const HWND options = StartAndOpen(54, "Options...");
    for (const int control : {FIRST, 1001, 1002, 1007, 1008, 1009, 1, 2, 3, 1064, 1076, AT_ONCE}) {
        EXPECT_SOON(Focused(options), control);
        PressKeys({VK_TAB});
    }
    EXPECT_SOON(Focused(options), FIRST) << "the time is off, so round again";
    PressKeys({VK_SHIFT, VK_TAB});
    EXPECT_SOON(Focused(options), AT_ONCE);
    PressKeys({VK_UP}); // round the group, over the one that is hidden
    EXPECT_SOON(Focused(options), AFTER_TIME);
    PressKeys({VK_TAB});
    EXPECT_SOON(Focused(options), DELAY_TIME) << "the time is on";
    TypeOver(Control(options, DELAY_TIME), "250");
    CloseByKey(options, VK_RETURN);
    ExpectSaved("mousescroll_delay", "3");
    ExpectSaved("mousescroll_delay_time", "250");
}

TEST(ActionsDialog, TheKeyboardAloneDoesIt) {
    constexpr int GROUP = 1049, KEYBOARD_LIST = 1051;
    const HWND dialog = StartAndOpen(55, "Actions...");
    EXPECT_SOON(Focused(dialog), KEYBOARD_LIST);
    PressInTurn({VK_END, VK_HOME});                                       // in the list
    PressInTurn({VK_TAB, VK_SPACE});                                      // Shift off
    PressInTurn({VK_TAB, VK_TAB, VK_TAB, VK_TAB, 'Q', VK_TAB, VK_SPACE}); // past three flags, the key, Apply
    PressInTurn({VK_TAB, VK_TAB, VK_TAB, VK_RIGHT});                      // Clear, OK, the tabs
    EXPECT_SOON(ControlText(dialog, GROUP), "Mouse");
    CloseByKey(dialog, VK_ESCAPE);
    PressKeys({VK_CONTROL, VK_MENU, 'Q'});
    EXPECT_SOON(OpenedMenu() != nullptr, true);
    PressKeys({VK_ESCAPE});
}

TEST(ActionsDialog, AKeyThatAnotherProgramHoldsIsReportedAndTheRowStandsUnbound) {
    constexpr int CTRL = 1031, KEYS = 1038, KEYBOARD_LIST = 1051, APPLY = 1053, RIGHT_BY_SCREEN = 25;
    const HWND dialog = StartAndOpen(55, "Actions...");
    ASSERT_TRUE(RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_ALT, 'Q'));
    EXPECT_FALSE(IsFree(MOD_CONTROL | MOD_ALT, VK_RIGHT));
    PressItem(Control(dialog, KEYBOARD_LIST), RIGHT_BY_SCREEN);
    EXPECT_SOON(IsChecked(dialog, CTRL), true);
    EXPECT_SOON(ControlText(dialog, KEYS), "Right");
    ChooseLetter(Control(dialog, KEYS), 'Q');
    PressOnly(Control(dialog, APPLY));
    EXPECT_EQ(BoxText(WaitForBox("Error")),
              "Hotkey registeration failed (1409): \n\t\"Move one desktop to the right\" (30)"
              "\nAnother program has already registered the hotkey combination.");
    AnswerBox("Error", VK_RETURN);
    EXPECT_SOON(IsFree(MOD_CONTROL | MOD_ALT, VK_RIGHT), true);
    UnregisterHotKey(nullptr, 1);
}

TEST(CustomizeMenuDialog, TheKeyboardAloneDoesItAndEscapeCancels) {
    const HWND dialog = StartAndOpen(74, "Customize Menu...");
    const auto inMenu = [dialog] { return ListTexts(Control(dialog, MENU_LIST)); };
    EXPECT_SOON(Focused(dialog), ACTION_LIST);
    PressInTurn({'R', VK_TAB, VK_TAB, VK_SPACE}); // in the list, past Test, into the menu
    EXPECT_SOON(inMenu().back(), "Remove Desktop from bottom");
    PressInTurn({VK_TAB, VK_HOME, VK_DOWN, VK_TAB, VK_SPACE}); // in the menu's list, out of it
    EXPECT_SOON(inMenu()[1], "Customize Menu...");
    CloseByKey(dialog, VK_ESCAPE);
    ExpectSaved("quorl_menu", "54|55|74|77|49|-1|56|57|-1|59");
}

TEST(CustomizeMenuDialog, AFullMenuTakesNoMore) {
    std::string full = "54";
    for (int entry = 1; entry < 500; ++entry)
        full += "|-1";
    Store("quorl_menu_count", "500");
    Store("quorl_menu", full.c_str());
    const HWND dialog = StartAndOpen(74, "Customize Menu...");
    const HWND menu = Control(dialog, MENU_LIST);
    PressRow(Control(dialog, ACTION_LIST), "Exit");
    Press(Control(dialog, INTO));
    EXPECT_SOON(SelectedRow(menu), 499);
    PressRow(menu, 0);
    Press(Control(dialog, INSERT_LINE));
    EXPECT_SOON(SelectedRow(menu), 1);
    EXPECT_EQ(ListTexts(menu).size(), 500U);
}

TEST(NameRegion, AColourIsChosenANameIsNeededAndEscapeChangesNothing) {
    const HWND dialog = StartAndOpen(49, "Name Region");
    PressKeys({VK_RETURN});
    AnswerBox("Fix name", VK_RETURN);
    ChooseColor(dialog, "200", "100", "50");
    EXPECT_SOON(ColorOf(Control(dialog, SWATCH)), COLORREF{RGB(200, 100, 50)});
    TypeOver(Control(dialog, NAME), "Mail 1");
    CloseByKey(dialog, VK_RETURN);

    const HWND again = OpenByRow(49, "Name Region");
    EXPECT_EQ(ControlText(again, NAME), "Mail 1");
    TypeOver(Control(again, NAME), "other");
    CloseByKey(again, VK_ESCAPE);
    ExpectSaved("Region0", "Mail 1|0|0|1024|768|3302600");
}

TEST(NameRegion, WithAllRowsInUseItSaysSoAndNothingIsLost) {
    for (int row = 0; row < 200; ++row) {
        const std::string number = std::to_string(row);
        Store(("Region" + number).c_str(), ("place " + number + "|" + number + "|7|1500|775|0").c_str());
    }
    Store("num_regions", "200");
    const HWND editor = OpenWindow("editor", EDITOR);
    const HWND dialog = StartAndOpen(49, "Name Region");
    TypeOver(Control(dialog, NAME), "more");
    PressOnly(Control(dialog, IDOK));
    AnswerBox("No room", VK_RETURN);
    EXPECT_EQ(ControlText(dialog, NAME), "more") << "the dialog waits for the user to make room";
    CloseBy(dialog, IDCANCEL);

    const HWND find = OpenByRow(111, "Find Region...");
    PressRow(Control(find, LIST), "place 99"); // the last one, sorted by name
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -99, -7));
    CloseBy(find, IDOK);
    ExpectSaved("Region199", "place 199|199|7|1500|775|0");
    ExpectSaved("num_regions", "200");
    DoRow(50); // unmarks the one that starts at the view
    ExpectSaved("num_regions", "199");
    DoRow(51);
    ExpectSaved("num_regions", "0");
}

TEST(FindWindows, AWindowThatHangsOrIsGoneIsNotGoneTo) {
    const HWND mail = OpenWindow("mail", {100, 500, 300, 700});
    OpenWindow("hung", {1800, 300, 2000, 500}, "hung");
    const HWND gone = OpenWindow("gone", {1800, 300, 2000, 500});
    const HWND list = Control(StartAndOpen(52, "Find Windows..."), LIST);
    PostMessageA(gone, WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitForEnd(gone));
    PressRow(list, "gone"); // which is listed yet
    PressRow(list, "hung");
    EXPECT_EQ(PlaceOf(mail), (Place{100, 500, 300, 700}));
    PressRow(list, "mail");
    EXPECT_SOON(GetForegroundWindow(), mail) << "Quorl goes on";
}
