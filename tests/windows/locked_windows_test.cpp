#include "windows/locked_windows.h"

#include "support/quorl_test.h"

TEST(LockedWindows, ReuseAFreedSlot) {
    HWND windows[] = {OpenWindow("first", {}), OpenWindow("second", {}), OpenWindow("third", {})};
    for (const int i : {0, 1, 1})
        LockWindow(windows[i]);
    UnlockWindow(windows[0]);
    LockWindow(windows[2]);
    EXPECT_EQ(LockedWindows[0], windows[2]);
    EXPECT_EQ(LockedWindows[2], nullptr) << "locked twice";
    EXPECT_TRUE(IsLockedWindow(windows[1]));
}
