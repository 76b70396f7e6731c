#include "scroll/locked_windows.h"

#include "support/quorl_test.h"

TEST_F(QuorlTest, FindsALockedWindowBehindHolesAndUsesAFreedSlotAgain) {
    const HWND first = OpenWindow("first", {});
    const HWND second = OpenWindow("second", {});
    const HWND third = OpenWindow("third", {});
    for (const HWND window : {first, second, second})
        LockWindow(window);
    EXPECT_EQ(LockedWindows[2], nullptr) << "locking twice leaves one entry";
    UnlockWindow(first);
    EXPECT_FALSE(IsLockedWindow(first));
    EXPECT_TRUE(IsLockedWindow(second));
    LockWindow(third);
    EXPECT_EQ(LockedWindows[0], third);
    ClearLockedWindows();
    EXPECT_FALSE(IsLockedWindow(second));
}
