// Binding actions to keys and mouse combinations, and how a binding reads.
#include "dialogs/dialog_test.h"

namespace {

// Its controls.
constexpr int SHIFT = 1028, ALT = 1030, CTRL = 1031, WIN = 1036;
constexpr int RIGHT = 1033, LEFT = 1034, MIDDLE = 1035;
constexpr int KEYS = 1038, TABS = 1050, LIST = 1051, CLEAR = 1052, APPLY = 1053, WARNING = 1069;

constexpr ActionId RIGHT_SCREEN = 30;
constexpr int KEY_RIGHT_SCREEN = 25, MOUSE_RIGHT_SCREEN = 21; // its item in each list
constexpr int KEY_RIGHT = 1, F5 = 10, Q = 44;                 // items of the list of keys

class ActionsDialog : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        Open(55);
    }

    std::string Binding(int item) const { return TextInList(At(LIST), item, 0); }
};

TEST_F(ActionsDialog, EachTabShowsItsRowsAndItsOwnBindingOfOneThatStandsInBoth) {
    Bind(RIGHT_SCREEN, KEY_WIN | KEY_SHIFT, LBUTTON);
    EXPECT_TRUE(IsWindowVisible(dialog));
    EXPECT_EQ(Kept(LIST).extendedStyle, LVS_EX_FULLROWSELECT);
    EXPECT_EQ(Kept(KEYS).rows.back(), (DeskRow{"F24", VK_F1 + 23}));
    EXPECT_EQ(TextInList(At(LIST), KEY_RIGHT_SCREEN, 1), "Move one desktop to the right");
    EXPECT_EQ(Binding(KEY_RIGHT_SCREEN), "C-A-Right");
    Choose(LIST, KEY_RIGHT_SCREEN);
    EXPECT_EQ(Checked(), (Numbers{ALT, CTRL}));
    EXPECT_EQ(Kept(KEYS).chosen, KEY_RIGHT);

    Choose(TABS, 1);
    EXPECT_FALSE(IsWindowVisible(At(KEYS)) || IsWindowVisible(At(WIN)) || IsWindowVisible(At(WARNING)));
    EXPECT_TRUE(IsWindowVisible(At(LEFT)));
    EXPECT_EQ(Binding(0), "RB");
    EXPECT_EQ(Kept(LIST).count, 79);
    EXPECT_EQ(Checked(), (Numbers{ALT, CTRL})) << "flags keep their state over a change of tab";
    EXPECT_EQ(Binding(MOUSE_RIGHT_SCREEN), "S-W-LB");
    Choose(LIST, MOUSE_RIGHT_SCREEN);
    EXPECT_EQ(Checked(), (Numbers{SHIFT, WIN, LEFT}));

    Choose(TABS, 0);
    EXPECT_TRUE(IsWindowVisible(At(KEYS)));
    EXPECT_FALSE(IsWindowVisible(At(LEFT)));
    EXPECT_EQ(Kept(LIST).count, 103);
    EXPECT_EQ(Kept(LIST).columns.at(1), (DeskRow{"Description", 250}));
    Press(VK_ESCAPE);
    EXPECT_FALSE(IsOpen());
    Desk.pixelsPerInch = 144;
    Open(55);
    EXPECT_EQ(Kept(LIST).columns.at(0), (DeskRow{"ActionKeys", 180})) << "on a scaled display";
}

TEST_F(ActionsDialog, AnAppliedKeyReplacesTheOldOneAtOnceEvenIfItIsRefusedAndClearReleasesIt) {
    const auto viewAfter = [](UINT mods, UINT key) {
        PressCombination(mods, key);
        Settle();
        return VDesk.left;
    };
    Click(APPLY);
    EXPECT_EQ(Desk.beeps.size(), 1U) << "no row";
    Desk.beeps.clear();
    for (const DeskRow& key : Kept(KEYS).rows)
        EXPECT_TRUE(key.text.size() > 1 || key.data == key.text[0]) << key.text;
    Desk.hotkeys.push_back({nullptr, 1, MOD_CONTROL | MOD_ALT, 'Q'});
    Choose(LIST, KEY_RIGHT_SCREEN);
    Choose(KEYS, Q);
    WillAnswer({IDOK});
    Click(APPLY);
    EXPECT_EQ(Binding(KEY_RIGHT_SCREEN), "<hotkey undefined>");
    EXPECT_EQ(viewAfter(MOD_CONTROL | MOD_ALT, VK_RIGHT), 0);

    Choose(KEYS, F5);
    Click(SHIFT, CTRL, APPLY);
    EXPECT_EQ(Binding(KEY_RIGHT_SCREEN), "S-A-F5");
    EXPECT_EQ(viewAfter(MOD_SHIFT | MOD_ALT, VK_F1 + 4), 1024);

    Click(CLEAR);
    EXPECT_EQ(Kept(LIST).redrawn.size(), 3U) << "with Apply twice";
    EXPECT_EQ(viewAfter(MOD_SHIFT | MOD_ALT, VK_F1 + 4), 1024);

    ActionTable[5].vk = VK_F1 + 12;
    Choose(LIST, 1);
    EXPECT_EQ(Desk.beeps.size(), 1U) << "F13 has no name";
    EXPECT_EQ(Kept(KEYS).chosen, F5);
    EXPECT_EQ(Checked(), (Numbers{SHIFT, ALT, CTRL}));
    Choose(LIST, KEY_RIGHT_SCREEN);
    Click(APPLY);
    EXPECT_EQ(Desk.beeps.size(), 2U) << "no key";
}

TEST_F(ActionsDialog, AMouseCombinationIsStoredAsItIsCheckedAlsoWithoutAButton) {
    Click(WIN); // hidden on the mouse tab, and counts there until a row is selected
    Choose(TABS, 1);
    Choose(LIST, MOUSE_RIGHT_SCREEN);
    Click(CTRL, LEFT, MIDDLE, APPLY);
    EXPECT_EQ(Binding(MOUSE_RIGHT_SCREEN), "C-MB");
    Click(CLEAR);
    EXPECT_EQ(Binding(MOUSE_RIGHT_SCREEN), "<mkey undefined>");
    EXPECT_EQ(ActionTable[RIGHT_SCREEN].vk, VK_RIGHT) << "its key stays";
    Choose(LIST, 0);
    EXPECT_EQ(Checked(), Numbers{RIGHT});
    Choose(LIST, MOUSE_RIGHT_SCREEN);
    Click(APPLY);
    EXPECT_EQ(ActionTable[RIGHT_SCREEN].mouse_btn, 0);
}

} // namespace
