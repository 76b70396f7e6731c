#include "dialogs/dialog_test.h"

namespace {

// Its controls.
constexpr int SHIFT = 1028, ALT = 1030, CTRL = 1031, WIN = 1036;
constexpr int RIGHT = 1033, LEFT = 1034, MIDDLE = 1035;
constexpr int KEYS = 1038, GROUP = 1049, TABS = 1050, LIST = 1051, CLEAR = 1052, APPLY = 1053;

constexpr ActionId RIGHT_SCREEN = 30;
constexpr int KEY_RIGHT_SCREEN = 25, MOUSE_RIGHT_SCREEN = 21; // its item in each list
constexpr int F5 = 10, Q = 44;                                // items of the list of keys

class ActionsDialog : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        Open(55);
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
    EXPECT_EQ(Kept(LIST).columns.at(1), (DeskRow{"Description", 250}));
    EXPECT_EQ(Kept(KEYS).rows.back(), (DeskRow{"F24", VK_F1 + 23}));
    EXPECT_EQ(TextInList(At(LIST), KEY_RIGHT_SCREEN, 1), "Move one desktop to the right");
    EXPECT_EQ(Binding(KEY_RIGHT_SCREEN), "C-A-Right");
    Choose(LIST, KEY_RIGHT_SCREEN);
    EXPECT_EQ(Checked(), (Ids{ALT, CTRL}));
    EXPECT_EQ(KeyShown(), "Right");

    Choose(TABS, 1);
    EXPECT_FALSE(IsWindowVisible(At(KEYS)));
    EXPECT_TRUE(IsWindowVisible(At(LEFT)));
    EXPECT_EQ(TextOf(GROUP), "Mouse");
    EXPECT_EQ(Kept(LIST).count, 79);
    EXPECT_EQ(Checked(), (Ids{ALT, CTRL})) << "flags keep their state over a change of tab";
    EXPECT_EQ(Binding(MOUSE_RIGHT_SCREEN), "S-W-RB");
    Choose(LIST, MOUSE_RIGHT_SCREEN);
    EXPECT_EQ(Checked(), (Ids{SHIFT, WIN, RIGHT}));

    Choose(TABS, 0);
    EXPECT_TRUE(IsWindowVisible(At(KEYS)));
    EXPECT_FALSE(IsWindowVisible(At(LEFT)));
    EXPECT_EQ(Kept(LIST).count, 103);
    Press(VK_ESCAPE);
    EXPECT_FALSE(IsOpen());
}

TEST_F(ActionsDialog, AnUnboundRowClearsTheControlsAndWithoutARowOrAKeyApplyBeeps) {
    Click(APPLY);
    EXPECT_EQ(Desk.beeps.size(), 1U) << "no row";
    ActionTable[5].vk = VK_F1 + 12;
    ActionTable[6].vk = ActionTable[6].key_mods = 0;
    Choose(LIST, KEY_RIGHT_SCREEN);
    Choose(LIST, 1);
    EXPECT_EQ(Desk.beeps.size(), 2U) << "F13 has no name";
    EXPECT_EQ(KeyShown(), "Right");
    EXPECT_EQ(Checked(), (Ids{SHIFT, ALT, CTRL}));
    Choose(LIST, 2);
    EXPECT_EQ(KeyShown(), "");
    EXPECT_EQ(Checked(), Ids{});
    Click(APPLY);
    EXPECT_EQ(Desk.beeps.size(), 3U) << "no key";
    Choose(TABS, 1);
    Choose(LIST, 0);
    Choose(LIST, 1);
    EXPECT_EQ(Checked(), Ids{});
    EXPECT_TRUE(RowOf(At(LEFT)).style & WS_TABSTOP) << "Tab still finds the buttons";
}

TEST_F(ActionsDialog, AnAppliedKeyReplacesTheOldOneAtOnceEvenIfItIsRefusedAndClearReleasesIt) {
    const auto viewAfter = [](UINT mods, UINT key) {
        PressCombination(mods, key);
        Settle();
        return VDesk.left;
    };
    Desk.hotkeys.push_back({nullptr, 1, MOD_CONTROL | MOD_ALT, 'Q'});
    Choose(LIST, KEY_RIGHT_SCREEN);
    Choose(KEYS, Q);
    WillAnswer({IDOK});
    Click(APPLY);
    EXPECT_EQ(Desk.boxes.size(), 1U);
    EXPECT_EQ(Binding(KEY_RIGHT_SCREEN), "<hotkey undefined>");
    EXPECT_EQ(viewAfter(MOD_CONTROL | MOD_ALT, VK_RIGHT), 0);

    Choose(KEYS, F5);
    Click(SHIFT);
    Click(CTRL);
    Click(APPLY);
    EXPECT_EQ(Binding(KEY_RIGHT_SCREEN), "S-A-F5");
    EXPECT_EQ(viewAfter(MOD_SHIFT | MOD_ALT, VK_F1 + 4), 1024);

    Click(CLEAR);
    EXPECT_EQ(Kept(LIST).redrawn, Ids(3, KEY_RIGHT_SCREEN));
    EXPECT_EQ(viewAfter(MOD_SHIFT | MOD_ALT, VK_F1 + 4), 1024);
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
    EXPECT_EQ(ActionTable[RIGHT_SCREEN - 1].mouse_btn, 0);
}

} // namespace
