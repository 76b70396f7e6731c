#include "actions/key_names.h"
#include "dialogs/dialog_test.h"

namespace {

// Its controls.
constexpr int SHIFT = 1028, ALT = 1030, CTRL = 1031, WIN = 1036;
constexpr int RIGHT = 1033, LEFT = 1034, MIDDLE = 1035;
constexpr int KEYS = 1038, GROUP = 1049, TABS = 1050, LIST = 1051, CLEAR = 1052, APPLY = 1053, WARNING = 1069;

constexpr ActionId RIGHT_SCREEN = 30;
constexpr int KEY_RIGHT_SCREEN = 25, MOUSE_RIGHT_SCREEN = 21; // its item in each list

class ActionsDialog : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        Open(55);
        Desk.beeps.clear();
    }

    // Which of the controls are checked, or on show, a digit each.
    std::string Checked() const {
        std::string checked;
        for (const int id : {SHIFT, CTRL, ALT, WIN, LEFT, MIDDLE, RIGHT})
            checked += Kept(id).bChecked ? '1' : '0';
        return checked;
    }
    std::string Shown() const {
        std::string shown;
        for (const int id : {MIDDLE, LEFT, RIGHT, WIN, KEYS, WARNING})
            shown += RowOf(At(id)).style & WS_VISIBLE ? '1' : '0';
        return shown;
    }
    std::string Binding(int item) const { return TextInList(At(LIST), item, 0); }
    std::string KeyShown() const {
        const DeskControl& keys = Kept(KEYS);
        return keys.chosen < 0 ? "" : keys.rows[static_cast<std::size_t>(keys.chosen)].text;
    }
};

TEST_F(ActionsDialog, EachTabShowsItsRowsAndItsOwnBindingOfOneThatStandsInBoth) {
    Bind(RIGHT_SCREEN, KEY_WIN | KEY_SHIFT, RBUTTON);
    EXPECT_TRUE(IsWindowVisible(dialog));
    EXPECT_EQ(Kept(TABS).rows, (Rows{{"Keyboard Actions"}, {"Mouse Actions"}}));
    EXPECT_EQ(Kept(LIST).columns, (Rows{
                                      {"ActionKeys",  120},
                                      {"Description", 250}
    }));
    EXPECT_EQ(Kept(LIST).extendedStyle, LVS_EX_FULLROWSELECT);
    EXPECT_EQ(Kept(KEYS).rows.size(), static_cast<std::size_t>(NUM_KEY_NAMES));
    EXPECT_EQ(Kept(KEYS).rows.back(), (DeskRow{"F24", VK_F1 + 23}));
    EXPECT_EQ(KeyShown(), "");
    EXPECT_EQ(Shown(), "000111");
    EXPECT_EQ(TextInList(At(LIST), KEY_RIGHT_SCREEN, 1), "Move one desktop to the right");
    EXPECT_EQ(Binding(KEY_RIGHT_SCREEN), "C-A-Right");
    Choose(LIST, KEY_RIGHT_SCREEN);
    EXPECT_EQ(Checked(), "0110000");
    EXPECT_EQ(KeyShown(), "Right");

    Choose(TABS, 1);
    EXPECT_EQ(Shown(), "111000");
    EXPECT_EQ(TextOf(GROUP), "Mouse");
    EXPECT_EQ(Kept(LIST).count, 79);
    EXPECT_EQ(Kept(LIST).chosen, -1);
    EXPECT_EQ(Checked(), "0110000") << "flags keep their state over a change of tab";
    EXPECT_EQ(Binding(MOUSE_RIGHT_SCREEN), "S-W-RB");
    Choose(LIST, MOUSE_RIGHT_SCREEN);
    EXPECT_EQ(Checked(), "1001001");

    Choose(TABS, 0);
    EXPECT_EQ(Shown(), "000111");
    EXPECT_EQ(TextOf(GROUP), "Keyboard");
    EXPECT_EQ(Kept(LIST).count, 103);
}

TEST_F(ActionsDialog, AnUnboundRowClearsTheControlsAndAKeyWithoutANameLeavesTheList) {
    ActionTable[5].vk = VK_F1 + 12; // F13
    ActionTable[6].vk = 0;
    ActionTable[6].key_mods = 0;
    Choose(LIST, KEY_RIGHT_SCREEN);
    Choose(LIST, 1);
    EXPECT_EQ(Desk.beeps.size(), 1U);
    EXPECT_EQ(KeyShown(), "Right");
    EXPECT_EQ(Checked(), "1110000");
    Choose(LIST, 2);
    EXPECT_EQ(KeyShown(), "");
    EXPECT_EQ(Checked(), "0000000");
    Choose(TABS, 1);
    Choose(LIST, 0);
    EXPECT_EQ(Checked(), "0000001");
    Choose(LIST, 1);
    EXPECT_EQ(Checked(), "0000000");
    EXPECT_TRUE(RowOf(At(LEFT)).style & WS_TABSTOP) << "Tab still finds the buttons";
    EXPECT_EQ(Desk.beeps.size(), 1U);
}

TEST_F(ActionsDialog, AnAppliedKeyReplacesTheOldOneAtOnceEvenIfItIsRefusedAndClearReleasesIt) {
    Desk.hotkeys.push_back({nullptr, 1, MOD_CONTROL | MOD_ALT, 'Q'});
    Choose(LIST, KEY_RIGHT_SCREEN);
    Choose(KEYS, 44); // Q
    WillAnswer({IDOK});
    Click(APPLY);
    EXPECT_EQ(Desk.boxes.size(), 1U);
    EXPECT_EQ(Binding(KEY_RIGHT_SCREEN), "<hotkey undefined>");
    PressCombination(MOD_CONTROL | MOD_ALT, VK_RIGHT);
    Settle();
    EXPECT_EQ(VDesk.left, 0);

    Choose(KEYS, 10); // F5
    Click(SHIFT);
    Click(CTRL);
    Click(APPLY);
    EXPECT_EQ(Binding(KEY_RIGHT_SCREEN), "S-A-F5");
    PressCombination(MOD_SHIFT | MOD_ALT, VK_F1 + 4);
    Settle();
    EXPECT_EQ(VDesk.left, 1024);

    Click(CLEAR);
    EXPECT_EQ(Binding(KEY_RIGHT_SCREEN), "<hotkey undefined>");
    EXPECT_EQ(Kept(LIST).redrawn, std::vector<int>(3, KEY_RIGHT_SCREEN));
    PressCombination(MOD_SHIFT | MOD_ALT, VK_F1 + 4);
    Settle();
    EXPECT_EQ(VDesk.left, 1024);
}

TEST_F(ActionsDialog, AMouseCombinationIsStoredAsItIsCheckedAlsoWithoutAButton) {
    Click(WIN); // hidden on the mouse tab, and counts there until a row is selected
    Choose(TABS, 1);
    Choose(LIST, MOUSE_RIGHT_SCREEN);
    Click(CTRL);
    Click(LEFT);
    Click(MIDDLE);
    Click(APPLY);
    EXPECT_EQ(Binding(MOUSE_RIGHT_SCREEN), "C-MB");
    Click(CLEAR);
    EXPECT_EQ(Binding(MOUSE_RIGHT_SCREEN), "<mkey undefined>");
    EXPECT_EQ(ActionTable[RIGHT_SCREEN].vk, VK_RIGHT) << "its key stays";

    Choose(LIST, MOUSE_RIGHT_SCREEN - 1);
    Click(APPLY);
    EXPECT_EQ(ActionTable[RIGHT_SCREEN - 1].mouse_mods, 0);
    EXPECT_EQ(ActionTable[RIGHT_SCREEN - 1].mouse_btn, 0);
}

TEST_F(ActionsDialog, WithoutARowOrAKeyAButtonBeepsAndChangesNothing) {
    Choose(KEYS, 3);
    Click(APPLY);
    Click(CLEAR);
    EXPECT_EQ(Desk.beeps.size(), 2U) << "no row";
    Choose(LIST, 1);
    SendMessageA(At(KEYS), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    Click(APPLY);
    EXPECT_EQ(Desk.beeps.size(), 3U) << "no key";
    EXPECT_EQ(Binding(1), "S-C-A-Right");
}

TEST_F(ActionsDialog, EnterAndEscapeCloseIt) {
    for (const int key : {VK_RETURN, VK_ESCAPE}) {
        Press(key);
        EXPECT_FALSE(IsOpen()) << key;
        Open(55);
    }
}

} // namespace
