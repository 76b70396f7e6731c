// The popup menu as a user composes it in the Customize Menu dialog.
#include "dialogs.h"
#include "settings_file.h"

#include <algorithm>

namespace {

enum ControlId {
    INTO = 3,
    OUT_OF = 4,
    INSERT_LINE = 5,
    TEST_ACTION = 10,
    MENU_LIST = 1061,
    ACTION_LIST = 1062,
    UP = 1065,
    DOWN = 1066,
};

using Texts = std::vector<std::string>;

const char LINE[] = "<---------------->";
const char START_MENU[] = "54|55|74|77|49|-1|56|57|-1|59";

HWND OpenCustomize() {
    return StartQuorl() ? OpenByRow(74, "Customize Menu...") : nullptr;
}

Texts Available(HWND dialog) {
    return ListTexts(Control(dialog, ACTION_LIST));
}

Texts InMenu(HWND dialog) {
    return ListTexts(Control(dialog, MENU_LIST));
}

int RowOf(const Texts& texts, const char* text) {
    const auto found = std::find(texts.begin(), texts.end(), text);
    return found == texts.end() ? -1 : static_cast<int>(found - texts.begin());
}

void PressAction(HWND dialog, const char* text) {
    PressRow(Control(dialog, ACTION_LIST), RowOf(Available(dialog), text));
}

void PressEntry(HWND dialog, int row) {
    PressRow(Control(dialog, MENU_LIST), row);
}

int NumEntries(HWND dialog) {
    return static_cast<int>(SendMessageA(Control(dialog, MENU_LIST), LB_GETCOUNT, 0, 0));
}

int Selected(HWND dialog) {
    return SelectedRow(Control(dialog, MENU_LIST));
}

std::string SavedMenu(const std::string& wanted) {
    DoRow(47);
    return Soon([] { return Stored("quorl_menu"); }, wanted);
}

bool IsMapShown() {
    return IsWindowVisible(QuorlWindow());
}

} // namespace

TEST(CustomizeMenuDialog, EntriesComeAndGoAndMoveAndTheFileHasThemInTheirOrder) {
    const HWND dialog = OpenCustomize();
    ASSERT_TRUE(dialog);
    const Texts available = Available(dialog);
    EXPECT_EQ(InMenu(dialog),
              (Texts{"Options...", "Define Actions...", "Customize Menu...", "Show Quorl Toolwin",
                     "Mark Current Region...", LINE, "Help...", "About...", LINE, "Exit"}));
    EXPECT_EQ(available[0], "Activate Screen Saver") << "in the order of the alphabet";
    EXPECT_EQ(RowOf(available, "Exit"), -1);

    PressAction(dialog, "Find Window...");
    Press(Control(dialog, INTO));
    EXPECT_SOON(Selected(dialog), 10);
    EXPECT_EQ(InMenu(dialog).back(), "Find Window...");
    EXPECT_EQ(RowOf(Available(dialog), "Find Window..."), -1);
    Press(Control(dialog, UP));
    Press(Control(dialog, UP));
    Press(Control(dialog, DOWN));
    EXPECT_SOON(Selected(dialog), 9);
    Press(Control(dialog, INSERT_LINE));
    EXPECT_SOON(Selected(dialog), 10) << "the same entry as before";

    PressEntry(dialog, 3);
    Press(Control(dialog, OUT_OF));
    EXPECT_SOON(Selected(dialog), -1);
    EXPECT_NE(RowOf(Available(dialog), "Show Quorl Toolwin"), -1);
    PressEntry(dialog, 4); // a line of the start menu
    Press(Control(dialog, OUT_OF));
    EXPECT_SOON(Selected(dialog), 7) << "the first line that was written here";
    PressEntry(dialog, 0);
    Press(Control(dialog, OUT_OF)); // Options stays
    EXPECT_SOON(Selected(dialog), 0);
    const std::string edited = "54|55|74|49|56|57|-1|-2|52|59";
    EXPECT_EQ(SavedMenu(edited), edited);
    CloseBy(dialog, IDOK);
    EXPECT_EQ(SavedMenu(edited), edited);
}

TEST(CustomizeMenuDialog, CancelRestoresTheMenuAsItStoodWhenTheDialogOpened) {
    const HWND dialog = OpenCustomize();
    ASSERT_TRUE(dialog);
    PressEntry(dialog, 9);
    Press(Control(dialog, OUT_OF));
    PressEntry(dialog, 2);
    Press(Control(dialog, INSERT_LINE));
    const Place centered = PlaceOf(dialog);
    DoRow(74); // raises it, and what is kept for Cancel is not renewed
    EXPECT_SOON(PlaceOf(dialog) == centered, false);
    EXPECT_EQ(NumEntries(dialog), 10);
    EXPECT_EQ(SavedMenu("54|55|-2|74|77|49|-1|56|57|-1"), "54|55|-2|74|77|49|-1|56|57|-1");
    CloseBy(dialog, IDCANCEL);
    EXPECT_EQ(SavedMenu(START_MENU), START_MENU);
}

TEST(CustomizeMenuDialog, TestRunsTheSelectedActionOfEitherList) {
    const HWND dialog = OpenCustomize();
    ASSERT_TRUE(dialog);
    PressEntry(dialog, 3); // the map
    Press(Control(dialog, TEST_ACTION));
    EXPECT_SOON(IsMapShown(), false);
    Press(Control(dialog, TEST_ACTION));
    EXPECT_SOON(IsMapShown(), true);

    const int before = PlaceOf(QuorlWindow()).left;
    PressAction(dialog, "Move toolwin right by <max>");
    EXPECT_SOON(Selected(dialog), -1) << "only one list holds a selection";
    Press(Control(dialog, TEST_ACTION));
    EXPECT_SOON(PlaceOf(QuorlWindow()).left, before + 100);

    PressEntry(dialog, 5); // a line
    PressOnly(Control(dialog, TEST_ACTION));
    AnswerBox("Sorry.", VK_RETURN);
    EXPECT_TRUE(IsWindow(dialog));
}

TEST(CustomizeMenuDialog, AFullMenuTakesNoMore) {
    std::string full = "54";
    for (int entry = 1; entry < 500; ++entry)
        full += "|-1";
    Store("quorl_menu_count", "500");
    Store("quorl_menu", full.c_str());
    const HWND dialog = OpenCustomize();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(NumEntries(dialog), 500);
    PressAction(dialog, "Exit");
    Press(Control(dialog, INTO));
    EXPECT_SOON(Selected(dialog), 499);
    EXPECT_NE(RowOf(Available(dialog), "Exit"), -1) << "it is still on offer";
    PressEntry(dialog, 0);
    Press(Control(dialog, INSERT_LINE));
    EXPECT_SOON(Selected(dialog), 1);
    EXPECT_EQ(NumEntries(dialog), 500);
}

TEST(CustomizeMenuDialog, TheKeyboardAloneDoesIt) {
    const HWND dialog = OpenCustomize();
    ASSERT_TRUE(dialog);
    EXPECT_SOON(GetForegroundWindow(), dialog);
    PressInTurn({'R', VK_TAB, VK_TAB, VK_SPACE}); // in the list, past Test, into the menu
    EXPECT_SOON(InMenu(dialog).back(), std::string("Remove Desktop from bottom"));
    PressInTurn({VK_TAB, VK_HOME, VK_DOWN, VK_TAB, VK_SPACE}); // in the menu's list, out of it
    EXPECT_SOON(InMenu(dialog)[1], std::string("Customize Menu..."));
    PressKeys({VK_ESCAPE});
    EXPECT_TRUE(WaitForEnd(dialog));
    EXPECT_EQ(SavedMenu(START_MENU), START_MENU) << "Escape cancels";
}
