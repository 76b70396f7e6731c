#include "dialogs/binding_text.h"
#include "dialogs/dialog_test.h"

constexpr int KEY_ITEM = 25, MOUSE_ITEM = 21; // of ACTION_SCREEN_RIGHT on the two tabs
constexpr int RIGHT = 1, F12 = 17, Q = 44;    // items of the list of keys

class ActionsDialog : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        Open(ACTION_DEFINE_ACTIONS);
    }
    std::string Binding(int item) const { return ListViewText(Item(IDC_ACTIONS_LIST), item, 0); }
    void ChooseAction(int item) const { Choose(IDC_ACTIONS_LIST, item); }
};

static LONG ViewAfterKey(UINT mods, UINT key) {
    PressHotkey(mods, key);
    HandleMessages();
    return VDesk.left;
}

TEST_F(ActionsDialog, EachTabShowsItsActionsAndBindings) {
    BindMouse(ACTION_SCREEN_RIGHT, KEY_WIN | KEY_SHIFT, LBUTTON);
    BindMouse(ACTION_VIEW_TO_POINT, KEY_SHIFT, UNBOUND);
    ChooseAction(KEY_ITEM);
    EXPECT_EQ(Binding(KEY_ITEM), "C-A-Right");
    EXPECT_EQ(ListViewText(Item(IDC_ACTIONS_LIST), KEY_ITEM, 1), "Move one desktop to the right");
    EXPECT_EQ(Checked(), (Numbers{IDC_ACTIONS_ALT, IDC_ACTIONS_CTRL}));
    EXPECT_EQ(Control(IDC_ACTIONS_KEYS).selected, RIGHT);
    for (const bool bMouse : {true, false}) {
        Choose(IDC_ACTIONS_TABS, bMouse);
        EXPECT_EQ(Control(IDC_ACTIONS_LIST).itemCount, bMouse ? 79 : 103);
        EXPECT_EQ(WindowOf(Item(IDC_ACTIONS_GROUP)).title, bMouse ? "Mouse" : "Keyboard");
        EXPECT_EQ(IsWindowVisible(Item(IDC_ACTIONS_LEFT)), bMouse);
        for (const int id : {IDC_ACTIONS_KEYS, IDC_ACTIONS_WIN, IDC_ACTIONS_WARNING})
            EXPECT_NE(IsWindowVisible(Item(id)), bMouse);
    }
    Choose(IDC_ACTIONS_TABS, 1);
    ChooseAction(MOUSE_ITEM);
    EXPECT_EQ(Binding(0) + " " + Binding(MOUSE_ITEM) + " " + Binding(1), "RB S-W-LB S-");
    EXPECT_EQ(Checked(), (Numbers{IDC_ACTIONS_SHIFT, IDC_ACTIONS_WIN, IDC_ACTIONS_LEFT}));
    BindMouse(ACTION_VIEW_TO_POINT, 0, UNBOUND);
    EXPECT_STREQ(MouseText(ActionTable[ACTION_VIEW_TO_POINT]), "");
}

TEST_F(ActionsDialog, ApplyReplacesTheHotkeyAtOnceAndClearReleasesIt) {
    ChooseAction(KEY_ITEM);
    Choose(IDC_ACTIONS_KEYS, F12);
    Click(IDC_ACTIONS_ALT, IDC_ACTIONS_CTRL, IDC_ACTIONS_APPLY);
    EXPECT_EQ(Binding(KEY_ITEM), "F12");
    EXPECT_EQ(ViewAfterKey(MOD_CONTROL | MOD_ALT, VK_RIGHT), 0);
    EXPECT_EQ(ViewAfterKey(0, VK_F12), 1024);
    Click(IDC_ACTIONS_CLEAR);
    EXPECT_EQ(ViewAfterKey(0, VK_F12), 1024);
    EXPECT_EQ(Control(IDC_ACTIONS_LIST).redrawn, (Numbers{KEY_ITEM, KEY_ITEM}));
    Desk.hotkeys.push_back({nullptr, 1, 0, 'Q'});
    Choose(IDC_ACTIONS_KEYS, Q);
    AnswerBoxes({IDOK});
    Click(IDC_ACTIONS_APPLY);
    EXPECT_EQ(Binding(KEY_ITEM), "<hotkey undefined>") << "refused";
}

TEST_F(ActionsDialog, BeepsWithoutAnActionOrAKey) {
    EXPECT_TRUE(Desk.beeps.empty());
    Click(IDC_ACTIONS_APPLY);
    EXPECT_EQ(Desk.beeps.size(), 1U);
    ActionTable[ACTION_VIEW_RIGHT_MIN].vk = VK_F1 + 12;
    ChooseAction(1);
    EXPECT_EQ(Desk.beeps.size(), 2U) << "the list does not offer F13";
    ChooseAction(KEY_ITEM);
    ChooseAction(2); // unbound
    Click(IDC_ACTIONS_APPLY);
    EXPECT_EQ(Desk.beeps.size(), 3U) << "no key";
    ChooseAction(KEY_ITEM);
    ChooseAction(-1);
    Click(IDC_ACTIONS_APPLY, IDC_ACTIONS_CLEAR);
    EXPECT_EQ(Desk.beeps.size(), 5U) << "the selection was taken away";
    EXPECT_EQ(Binding(KEY_ITEM), "C-A-Right");
}

TEST_F(ActionsDialog, StoresAMouseCombinationAsChecked) {
    Choose(IDC_ACTIONS_TABS, 1);
    ChooseAction(MOUSE_ITEM);
    Click(IDC_ACTIONS_SHIFT, IDC_ACTIONS_APPLY);
    EXPECT_EQ(ActionTable[ACTION_SCREEN_RIGHT].mouse_btn, 0);
    Click(IDC_ACTIONS_SHIFT, IDC_ACTIONS_CTRL, IDC_ACTIONS_LEFT, IDC_ACTIONS_MIDDLE, IDC_ACTIONS_APPLY);
    EXPECT_EQ(Binding(MOUSE_ITEM), "C-MB");
    Click(IDC_ACTIONS_CLEAR);
    EXPECT_EQ(Binding(MOUSE_ITEM), "<mkey undefined>");
    EXPECT_EQ(ActionTable[ACTION_SCREEN_RIGHT].vk, VK_RIGHT) << "the hotkey stays";
    ChooseAction(0);
    EXPECT_EQ(Checked(), Numbers{IDC_ACTIONS_RIGHT});
}
