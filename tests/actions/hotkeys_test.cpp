#include "actions/hotkeys.h"

#include "actions/key_names.h"
#include "app/main.h"
#include "support/quorl_test.h"

#include <cstdio>
#include <span>

class Hotkeys : public QuorlTest {};

TEST_F(Hotkeys, TranslateKeyValuesToVirtualKeys) {
    Desk.keyScans = {
        {'a', -1}, {'5', 0x135}, {'\t', -1}}; // a layout without Latin letters, digits with Shift
    for (const int key :
         {VK_SPACE, VK_LEFT, VK_DOWN, VK_F1, VK_F12, VK_TAB, int{'A'}, int{'5'}, VK_F13, VK_F24})
        EXPECT_EQ(VirtualKey(key), key);
    EXPECT_EQ(VirtualKey('!'), 0x100 + '1') << "the high byte is the shift state";
    EXPECT_EQ(VirtualKey(0x100 + '1'), '1') << "which is dropped when a stored key is read";
    int number = 0;
    for (const auto& [name, vk] : std::span(KeyNames, NUM_KEY_NAMES)) // letters, digits, and F1 to F24
        EXPECT_TRUE((name[1] || vk == name[0]) &&
                    (std::sscanf(name, "F%d", &number) != 1 || vk == VK_F1 + number - 1))
            << name;
}

static std::string KeyOf(ActionId id) {
    return std::to_string(ActionTable[id].key_mods) + '|' + std::to_string(ActionTable[id].vk);
}

// tests/settings checks what happens to a refused binding.
TEST_F(Hotkeys, OfTheShellAreTakenWithCtrlAndOnlyARefusalOfBothIsReported) {
    for (const UINT modifiers : {MOD_WIN, MOD_WIN | MOD_CONTROL})
        Desk.hotkeys.push_back({nullptr, 1, modifiers, VK_DOWN}); // other programs'
    Desk.hotkeys.push_back({nullptr, 1, MOD_WIN, VK_UP});
    AnswerBoxes({IDOK});
    ASSERT_TRUE(StartQuorl());
    EXPECT_EQ(LastBox(), "Hotkey registeration failed (1409): \n\t\"Lock window in view\" (40)\n"
                         "Another program has already registered the hotkey combination./Error");
    EXPECT_EQ(Desk.hotkeys.size(), 3U + 10U) << "the others are registered";
    EXPECT_EQ(KeyOf(ACTION_LOCK_WINDOW) + ' ' + KeyOf(ACTION_UNLOCK_WINDOW), "-1|-1 68|38");
}

TEST_F(Hotkeys, QueuedByKeyboardRepeatAreDropped) {
    ASSERT_TRUE(StartQuorl());
    HoldHotkey(MOD_CONTROL | MOD_ALT, VK_RIGHT, 5);
    HandleMessages();
    EXPECT_EQ(VDesk.left, 1024);
    HoldHotkey(MOD_CONTROL | MOD_ALT, VK_RIGHT, 2, 60);
    PressHotkey(MOD_CONTROL | MOD_ALT, VK_LEFT);
    HandleMessages();
    EXPECT_EQ(VDesk.left, 2048) << "two presses, then another key";
    for (const int id : {ACTION_SCREEN_LEFT, ACTION_SCREEN_LEFT})
        PostMessageA(MainWnd, WM_HOTKEY, static_cast<WPARAM>(id), 0);
    HandleMessages();
    EXPECT_EQ(VDesk.left, 0) << "posted by another program";
    HoldHotkey(MOD_CONTROL | MOD_ALT, VK_RIGHT, 2);
    PostQuitMessage(7);
    EXPECT_EQ(RunMessageLoop(), 7) << "the quit message is not taken for a hotkey";
}
