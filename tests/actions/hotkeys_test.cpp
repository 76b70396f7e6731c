#include "actions/hotkeys.h"

#include "support/quorl_test.h"

class Hotkeys : public QuorlTest {};

TEST_F(Hotkeys, KeysStandForThemselvesAndCharactersForTheKeyThatTypesThem) {
    using Looked = std::pair<int, int>; // the virtual key, and what the value that was looked up has become
    const auto look = [](int key) {
        const int vk = VirtualKey(&key);
        return Looked(vk, key);
    };
    for (const int key : {VK_SPACE, VK_LEFT, VK_DOWN, VK_F1, VK_F12})
        EXPECT_EQ(look(key), Looked(key, key));
    EXPECT_EQ(look('A'), Looked('A', 'a'));
    EXPECT_EQ(look('!'), Looked(0x100 + '1', '!')) << "the shift state stays in the value ...";
    EXPECT_EQ(look(305), Looked('1', '1')) << "... and is lost when that comes back from a file";
    EXPECT_EQ(look(VK_F13), Looked(-1, VK_F13)) << "on this keyboard, '|' and its kin type nothing";
}

TEST_F(Hotkeys, ANewUserFindsElevenKeys) {
    ASSERT_EQ(StartQuorl(), 1);
    std::string registered; // in this order, so that boxes come in it
    for (const DeskHotkey& hotkey : Desk.hotkeys)
        registered += std::to_string(hotkey.id) + ": " + std::to_string(hotkey.modifiers) + "+" +
                      std::to_string(hotkey.key) + ", ";
    EXPECT_EQ(registered, "28: 3+37, 30: 3+39, 29: 3+38, 31: 3+40, 7: 7+37, 5: 7+39, 9: 7+38, 11: 7+40, "
                          "40: 8+40, 41: 8+38, 0: 7+32, ");
}

TEST_F(Hotkeys, ARefusedCombinationIsToldAndTheOthersWork) {
    Desk.hotkeys.push_back({nullptr, 1, MOD_WIN, VK_DOWN}); // another program's
    WillAnswer({IDOK});
    ASSERT_EQ(StartQuorl(), 1);
    EXPECT_EQ(ActionTable[40].key_mods, UNBOUND);
    EXPECT_EQ(ActionTable[41].vk, VK_UP);
    EXPECT_EQ(LastBox(), "Hotkey registeration failed (1409): \n\t\"Lock window in view\" (40)\n"
                         "Another program has already registered the hotkey combination./Error");
}

TEST_F(Hotkeys, EachKindOfBindingIsStoredAsItWasRegisteredAndClearedOnItsOwn) {
    ASSERT_EQ(StartQuorl(), 1);
    const std::size_t before = Desk.hotkeys.size();
    const ActionRow& row = ActionTable[87]; // one that is off, too
    EXPECT_EQ(SetActionKey(MainWnd, 87, ACTION_MOUSE, KEY_SHIFT, RBUTTON | MBUTTON), 1);
    EXPECT_EQ(SetActionKey(MainWnd, 87, ACTION_KEY, KEY_CTRL | 0x1000, 'Q'), 1);
    EXPECT_EQ(SetActionKey(MainWnd, 87, ACTION_KEY, -1, 'R'), 0) << "a negative one is none";
    EXPECT_TRUE(row.vk == 'Q' && row.key_mods == (KEY_CTRL | 0x1000));
    EXPECT_EQ(Desk.hotkeys.size(), before + 1);
    EXPECT_EQ(Desk.hotkeys.back().modifiers, MOD_CONTROL);

    ClearActionKey(MainWnd, 87, ACTION_KEY);
    EXPECT_EQ(Desk.hotkeys.size(), before);
    EXPECT_TRUE(row.vk == UNBOUND && row.key_mods == UNBOUND);
    EXPECT_TRUE(row.mouse_mods == KEY_SHIFT && row.mouse_btn == (RBUTTON | MBUTTON));
    ClearAllActionKeys(MainWnd);
    EXPECT_TRUE(Desk.hotkeys.empty());
    EXPECT_TRUE(row.mouse_mods == UNBOUND && row.mouse_btn == UNBOUND);
}
