#include "actions/hotkeys.h"

#include "support/quorl_test.h"

class Hotkeys : public QuorlTest {};

TEST_F(Hotkeys, TranslateKeyValuesToVirtualKeys) {
    Desk.keyScans = {
        {'a', -1}, {'5', 0x135}, {'\t', -1}}; // a layout without Latin letters, digits with Shift
    for (const int key :
         {VK_SPACE, VK_LEFT, VK_DOWN, VK_F1, VK_F12, VK_TAB, int{'A'}, int{'5'}, VK_F13, VK_F24})
        EXPECT_EQ(VirtualKey(key), key);
    EXPECT_EQ(VirtualKey('!'), 0x100 + '1') << "the high byte is the shift state";
    EXPECT_EQ(VirtualKey(0x100 + '1'), '1') << "which is dropped when a stored key is read";
}

TEST_F(Hotkeys, WithoutAKeyInTheLayoutAreRefusedAndStayStored) {
    Desk.keyScans = {{'!', -1}};
    Desk.files["quorl.ini"] = "[Quorl]\r\nAction28=-1|-1|6|33|0\r\n";
    AnswerBoxes({IDOK});
    ASSERT_TRUE(StartQuorl());
    EXPECT_EQ(LastBox(), "Hotkey registeration failed (87): \n\t\"Move one desktop to the left\" (28)/Error");
    EXPECT_EQ(CountCalls("RegisterHotKey"), 10);
    EXPECT_EQ(ActionTable[ACTION_SCREEN_LEFT].vk, '!');
}

TEST_F(Hotkeys, AreRegisteredOnceAfterAllSettingsAreRead) {
    Desk.files["quorl.ini"] = "[Quorl]\r\nAction28=-1|-1|6|39|0\r\nAction30=-1|-1|6|37|0\r\n"; // swapped
    ASSERT_TRUE(StartQuorl());
    EXPECT_EQ(CountCalls("RegisterHotKey"), 11) << "no default that the file replaces";
    PressHotkey(MOD_CONTROL | MOD_ALT, VK_LEFT);
    HandleMessages();
    EXPECT_EQ(VDesk.left, 1024);
}

// tests/settings checks what happens to a refused binding.
TEST_F(Hotkeys, OfOthersAreRegisteredAfterOneIsRefused) {
    Desk.hotkeys = {{nullptr, 1, MOD_WIN, VK_DOWN}}; // another program's
    AnswerBoxes({IDOK});
    ASSERT_TRUE(StartQuorl());
    EXPECT_EQ(LastBox(), "Hotkey registeration failed (1409): \n\t\"Lock window in view\" (40)\n"
                         "Another program has already registered the hotkey combination./Error");
    EXPECT_EQ(Desk.hotkeys.size(), 1U + 10U);
}
