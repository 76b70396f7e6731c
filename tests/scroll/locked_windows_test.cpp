#include "scroll/locked_windows.h"

#include "support/quorl_test.h"

namespace {

HWND Handle(int number) {
    return reinterpret_cast<HWND>(static_cast<UINT_PTR>(number) * 4);
}

TEST(LockedWindowList, AHandleIsFoundBehindHolesAndAFreedSlotIsUsedAgain) {
    for (const int number : {1, 2, 3, 2})
        LockWindow(Handle(number));
    EXPECT_EQ(LockedWindows[3], nullptr) << "locking twice leaves one entry";
    EXPECT_TRUE(IsLockedWindow(nullptr)) << "as a scan of slots that were never used would say";
    UnlockWindow(Handle(1));
    EXPECT_FALSE(IsLockedWindow(Handle(1)));
    EXPECT_TRUE(IsLockedWindow(Handle(3)));
    LockWindow(Handle(4));
    EXPECT_EQ(LockedWindows[0], Handle(4));
    ClearLockedWindows();
    EXPECT_FALSE(IsLockedWindow(Handle(2)));
}

} // namespace
