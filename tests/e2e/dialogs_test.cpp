// What the dialogs do beside what the tour shows: by the keyboard alone, and where something stands in the
// way.
#include "dialogs.h"

namespace {

constexpr int NAME = 1025, SWATCH = 1040, LIST = 1041, GROUP = 1049, KEYBOARD_LIST = 1051;
constexpr int MENU_LIST = 1061, ACTION_LIST = 1062;

} // namespace

TEST(KeyboardAlone, BindsAKeyThatEscapeLeavesBound) {
    StartQuorl();
    const HWND actions = OpenByRow(55, "Actions...");
    EXPECT_SOON(Focused(actions), KEYBOARD_LIST);
    PressInTurn({VK_END, VK_HOME});                                       // in the list
    PressInTurn({VK_TAB, VK_SPACE});                                      // Shift off
    PressInTurn({VK_TAB, VK_TAB, VK_TAB, VK_TAB, 'Q', VK_TAB, VK_SPACE}); // past three flags, the key, Apply
    PressInTurn({VK_TAB, VK_TAB, VK_TAB, VK_RIGHT});                      // Clear, OK, the tabs
    EXPECT_SOON(ControlText(actions, GROUP), "Mouse");
    CloseByKey(actions, VK_ESCAPE);
    PressKeys({VK_CONTROL, VK_MENU, 'Q'});
    EXPECT_SOON(OpenedMenu() != nullptr, true);
    PressKeys({VK_ESCAPE});
}

TEST(NameRegion, ANameIsNeededAndTheColourIsChosenInTheSystemsOwnDialog) {
    StartQuorl();
    const HWND dialog = OpenByRow(49, "Name Region");
    PressKeys({VK_RETURN});
    AnswerBox("Fix name", VK_RETURN);
    PressOnly(Control(dialog, SWATCH));
    const HWND colors = WaitForBox("Color");
    TypeOver(Control(colors, 706), "200");
    TypeOver(Control(colors, 707), "100");
    TypeOver(Control(colors, 708), "50");
    CloseBy(colors, IDOK);
    TypeOver(Control(dialog, NAME), "Mail 1");
    CloseByKey(dialog, VK_RETURN);
    ExpectSaved("Region0", "Mail 1|0|0|1024|768|3302600");
}

TEST(Tables, AreFullAtTheirLimits) {
    std::string menu = "54";
    for (int entry = 1; entry < 500; ++entry)
        menu += "|-1";
    Store("quorl_menu_count", "500");
    Store("quorl_menu", menu);
    for (int row = 0; row < 200; ++row)
        Store("Region" + std::to_string(row), "place|" + std::to_string(row) + "|7|1500|775|0");
    Store("num_regions", "200");
    StartQuorl();
    const HWND customize = OpenByRow(74, "Customize Menu...");
    PressRow(Control(customize, ACTION_LIST), "Exit");
    Press(Control(customize, 3));
    EXPECT_EQ(ListTexts(Control(customize, MENU_LIST)).size(), 500U);
    CloseBy(customize, IDOK);

    const HWND name = OpenByRow(49, "Name Region");
    TypeOver(Control(name, NAME), "more");
    PressOnly(Control(name, IDOK));
    AnswerBox("No room", VK_RETURN);
    EXPECT_EQ(ControlText(name, NAME), "more") << "the dialog waits for the user to make room";
    CloseBy(name, IDCANCEL);
    ExpectSaved("Region199", "place|199|7|1500|775|0");
    PressRow(Control(OpenByRow(111, "Find Region..."), LIST), "place");
    DoRow(50); // unmarks the one that starts at the view
    ExpectSaved("num_regions", "199");
    DoRow(51);
    ExpectSaved("num_regions", "0");
}
