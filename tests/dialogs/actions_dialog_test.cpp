#include "dialogs/actions_dialog.h"

#include "actions/hotkeys.h"
#include "actions/key_names.h"
#include "core/state.h"
#include "dialogs/registry.h"
#include "support/quorl_test.h"

#include <initializer_list>

namespace {

enum ControlId {
    SHIFT = 1028,
    ALT = 1030,
    CTRL = 1031,
    RIGHT = 1033,
    LEFT = 1034,
    MIDDLE = 1035,
    WIN = 1036,
    KEYS = 1038,
    GROUP = 1049,
    TABS = 1050,
    LIST = 1051,
    CLEAR = 1052,
    APPLY = 1053,
    WARNING = 1069,
};

constexpr int KEY_RIGHT_SCREEN = 25, MOUSE_RIGHT_SCREEN = 21; // items: row 30
constexpr ActionId RIGHT_SCREEN = 30;

class ActionsDialog : public QuorlTest {
  protected:
    HWND dialog = nullptr;

    void SetUp() override {
        QuorlTest::SetUp();
        ASSERT_EQ(StartQuorl(), 1);
        Command(55);
        dialog = DialogHandles[KEYS_ACTIONS];
        ASSERT_NE(dialog, nullptr);
    }

    HWND At(int id) const { return ControlOf(dialog, id); }
    DeskControl& Kept(int id) const { return RowOf(At(id)).control; }
    void Click(int id) const { ClickControl(At(id)); }
    void Choose(int id, int row) const { ChooseRow(At(id), row); }

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

int IsHeldByQuorl(ActionId row) {
    for (const DeskHotkey& hotkey : Desk.hotkeys)
        if (hotkey.window == MainWnd && hotkey.id == row)
            return 1;
    return 0;
}

TEST_F(ActionsDialog, OpensOnTheKeyboardTabWithNothingSelected) {
    EXPECT_TRUE(IsWindowVisible(dialog));
    ASSERT_EQ(Kept(TABS).rows.size(), 2U);
    EXPECT_EQ(Kept(TABS).rows[0].text, "Keyboard Actions");
    EXPECT_EQ(Kept(TABS).rows[1].text, "Mouse Actions");
    EXPECT_EQ(Kept(TABS).chosen, 0);
    ASSERT_EQ(Kept(LIST).columns.size(), 2U);
    EXPECT_EQ(Kept(LIST).columns[0].text, "ActionKeys");
    EXPECT_EQ(Kept(LIST).columns[0].data, 120);
    EXPECT_EQ(Kept(LIST).columns[1].text, "Description");
    EXPECT_EQ(Kept(LIST).columns[1].data, 250);
    EXPECT_EQ(Kept(LIST).extendedStyle, LVS_EX_FULLROWSELECT);
    EXPECT_EQ(Kept(LIST).count, 103);
    EXPECT_EQ(Kept(LIST).chosen, -1);
    ASSERT_EQ(Kept(KEYS).rows.size(), static_cast<std::size_t>(NUM_KEY_NAMES));
    EXPECT_EQ(Kept(KEYS).rows[65].text, "F24");
    EXPECT_EQ(Kept(KEYS).rows[65].data, VK_F1 + 23);
    EXPECT_EQ(KeyShown(), "");
    EXPECT_EQ(Shown(), "000111");
    EXPECT_EQ(RowOf(At(GROUP)).title, "Keyboard");
}

TEST_F(ActionsDialog, EachTabShowsItsOwnBindingOfARowThatStandsInBoth) {
    ActionTable[RIGHT_SCREEN].mouse_mods = KEY_WIN | KEY_SHIFT;
    ActionTable[RIGHT_SCREEN].mouse_btn = RBUTTON;
    EXPECT_EQ(Binding(KEY_RIGHT_SCREEN), "C-A-Right");
    EXPECT_EQ(TextInList(At(LIST), KEY_RIGHT_SCREEN, 1), "Move one desktop to the right");
    Choose(LIST, KEY_RIGHT_SCREEN);
    EXPECT_EQ(Checked(), "0110000");
    EXPECT_EQ(KeyShown(), "Right");

    Choose(TABS, 1);
    EXPECT_EQ(Shown(), "111000");
    EXPECT_EQ(RowOf(At(GROUP)).title, "Mouse");
    EXPECT_EQ(Kept(LIST).count, 79);
    EXPECT_EQ(Kept(LIST).chosen, -1);
    EXPECT_EQ(Checked(), "0110000") << "flags keep their state over a change of tab";
    EXPECT_EQ(Binding(MOUSE_RIGHT_SCREEN), "S-W-RB");
    Choose(LIST, MOUSE_RIGHT_SCREEN);
    EXPECT_EQ(Checked(), "1001001");

    Choose(TABS, 0);
    EXPECT_EQ(Shown(), "000111");
    EXPECT_EQ(Kept(LIST).count, 103);
}

TEST_F(ActionsDialog, AnUnboundRowClearsTheControlsAndAKeyWithoutANameLeavesTheList) {
    ActionTable[5].vk = VK_F1 + 12; // F13
    ActionTable[6].vk = 0;
    ActionTable[6].key_mods = 0;
    Choose(LIST, KEY_RIGHT_SCREEN);
    Desk.beeps.clear();
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

TEST_F(ActionsDialog, AnAppliedKeyReplacesTheOldOneAtOnceAndClearReleasesIt) {
    Choose(LIST, KEY_RIGHT_SCREEN);
    Choose(KEYS, 10); // F5
    Click(SHIFT);
    Click(CTRL);
    Click(APPLY);
    EXPECT_EQ(Binding(KEY_RIGHT_SCREEN), "S-A-F5");
    EXPECT_EQ(Kept(LIST).redrawn, std::vector<int>{KEY_RIGHT_SCREEN});
    PressCombination(MOD_CONTROL | MOD_ALT, VK_RIGHT);
    Settle();
    EXPECT_EQ(VDesk.left, 0);
    PressCombination(MOD_SHIFT | MOD_ALT, VK_F1 + 4);
    Settle();
    EXPECT_EQ(VDesk.left, 1024);

    Click(CLEAR);
    EXPECT_EQ(Binding(KEY_RIGHT_SCREEN), "<hotkey undefined>");
    EXPECT_FALSE(IsHeldByQuorl(RIGHT_SCREEN));
    EXPECT_EQ(Kept(LIST).redrawn.size(), 2U);
}

TEST_F(ActionsDialog, ARefusedKeyLeavesTheRowUnbound) {
    Desk.hotkeys.push_back({nullptr, 1, MOD_CONTROL | MOD_ALT, 'Q'});
    Choose(LIST, KEY_RIGHT_SCREEN);
    Choose(KEYS, 44); // Q
    WillAnswer({IDOK});
    Click(APPLY);
    ASSERT_EQ(Desk.boxes.size(), 1U);
    EXPECT_EQ(Desk.boxes[0].caption, "Error");
    EXPECT_EQ(Binding(KEY_RIGHT_SCREEN), "<hotkey undefined>");
    EXPECT_FALSE(IsHeldByQuorl(RIGHT_SCREEN));
}

TEST_F(ActionsDialog, AMouseCombinationIsStoredAsItIsCheckedAlsoWithoutAButton) {
    Click(WIN); // hidden on the mouse tab, and counts there
    Choose(TABS, 1);
    Choose(LIST, MOUSE_RIGHT_SCREEN);
    Click(CTRL);
    Click(LEFT);
    Click(MIDDLE);
    Click(APPLY);
    EXPECT_EQ(ActionTable[RIGHT_SCREEN].mouse_mods, KEY_CTRL);
    EXPECT_EQ(ActionTable[RIGHT_SCREEN].mouse_btn, MBUTTON);
    EXPECT_EQ(Binding(MOUSE_RIGHT_SCREEN), "C-MB");
    EXPECT_TRUE(IsHeldByQuorl(RIGHT_SCREEN)) << "its key stays";
    Click(CLEAR);
    EXPECT_EQ(Binding(MOUSE_RIGHT_SCREEN), "<mkey undefined>");
    EXPECT_TRUE(IsHeldByQuorl(RIGHT_SCREEN));

    Choose(LIST, 0);
    Choose(LIST, MOUSE_RIGHT_SCREEN);
    Choose(TABS, 0);
    Click(WIN);
    Choose(TABS, 1);
    Choose(LIST, MOUSE_RIGHT_SCREEN - 1);
    Click(APPLY);
    EXPECT_EQ(ActionTable[29].mouse_mods, 0) << "selecting a row has taken the hidden flag off";
    EXPECT_EQ(ActionTable[29].mouse_btn, 0);
    EXPECT_EQ(Binding(MOUSE_RIGHT_SCREEN - 1), "");
}

TEST_F(ActionsDialog, WithoutARowOrAKeyAButtonBeepsAndChangesNothing) {
    const std::size_t held = Desk.hotkeys.size();
    Desk.beeps.clear();
    Choose(KEYS, 3);
    Click(APPLY);
    Click(CLEAR);
    EXPECT_EQ(Desk.beeps.size(), 2U) << "no row";
    Choose(LIST, 1);
    SendMessageA(At(KEYS), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    Click(APPLY);
    EXPECT_EQ(Desk.beeps.size(), 3U) << "no key";
    EXPECT_EQ(Binding(1), "S-C-A-Right");
    EXPECT_EQ(Desk.hotkeys.size(), held);
}

TEST_F(ActionsDialog, OkAndEscapeCloseItAndItOpensAnew) {
    for (const int id : {IDOK, IDCANCEL}) {
        SendMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(id), 0);
        EXPECT_EQ(RowOf(dialog).handle, nullptr);
        EXPECT_EQ(OpenDialog(MainWnd, DIALOG_ACTIONS, ActionsDlgProc), 1);
        dialog = DialogHandles[KEYS_ACTIONS];
        EXPECT_EQ(Kept(LIST).chosen, -1);
    }
}

} // namespace
