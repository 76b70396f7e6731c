#include "actions/hotkeys.h"

#include "support/quorl_test.h"

TEST_F(RunningQuorl, HotkeyValuesBecomeVirtualKeys) {
    for (const int key : {VK_SPACE, VK_LEFT, VK_DOWN, VK_F1, VK_F12})
        EXPECT_EQ(VirtualKey(key), key);
    EXPECT_EQ(VirtualKey('A'), 'A');
    EXPECT_EQ(VirtualKey('!'), 0x100 + '1') << "the high byte is the shift state";
    EXPECT_EQ(VirtualKey(0x100 + '1'), '1') << "which is dropped when a stored key is read";
    EXPECT_EQ(VirtualKey(VK_F13), -1) << "the code of '|', which this layout lacks";
    Desk.trace.clear();
    EXPECT_FALSE(SetActionKey(ACTION_ABOUT, -1, 'A') || SetActionKey(ACTION_ABOUT, 0, -1));
    EXPECT_EQ(CountCalls("RegisterHotKey"), 0) << "half a binding";
}
