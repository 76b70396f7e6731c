#include "windows/window_table.h"

#include "status/status_strip.h"
#include "support/quorl_test.h"

class ManagedWindow : public RunningQuorl {
  protected:
    static bool IsManaged(const char* className, DWORD toggledStyle = 0,
                          const RECT& rect = {10, 10, 50, 50}) {
        const HWND window = OpenWindow("", rect, className);
        WindowOf(window).style ^= toggledStyle;
        return IsManagedWindow(window);
    }
};

TEST_F(ManagedWindow, HasAnAreaWithinTheFarEdgesOfTheDesktop) {
    EXPECT_TRUE(IsManaged("Program", 0, {-9000, -9000, 4096, -8000})) << "near edges do not matter";
    EXPECT_TRUE(IsManaged("Program", 0, {4096, 1536, 4100, 1540}));
    for (const RECT& rect :
         {Rect(9, 9, 9, 50), Rect(9, 9, 50, 9), Rect(4097, 9, 5000, 50), Rect(9, 1537, 50, 1600)})
        EXPECT_FALSE(IsManaged("Program", 0, rect)) << testing::PrintToString(rect);
}

TEST_F(ManagedWindow, IsInUseAndNotOfTheShellOrOfQuorl) {
    EXPECT_TRUE(IsManaged("progman"));
    EXPECT_TRUE(IsManaged("Progman2"));
    EXPECT_FALSE(IsManaged("Shell_SecondaryTrayWnd"));
    for (const DWORD style : {WS_DISABLED, WS_MINIMIZE, WS_VISIBLE})
        EXPECT_FALSE(IsManaged("Program", style)) << style;
    ShowTip("text");
    for (const HWND window : {MainWnd, TipWnd, GetDesktopWindow(), HWND{}})
        EXPECT_FALSE(IsManagedWindow(window));
    EXPECT_FALSE(IsManaged("ReBarWindow32"));
    ActionTable[ACTION_IGNORE_TOOLWINS].value = 0;
    EXPECT_TRUE(IsManaged("ReBarWindow32"));
    pDwmGetWindowAttribute = [](HWND, DWORD attribute, void* value, DWORD size) {
        *static_cast<DWORD*>(value) = attribute == 14 && size == 4;
        return HRESULT{0};
    };
    EXPECT_FALSE(IsManaged("Program")) << "cloaked by the compositor";
}

TEST_F(RunningQuorl, WindowTableHoldsTopLevelWindowsTopmostFirst) {
    const HWND below = OpenWindow("below", {1, 2, 3, 4});
    ShowWindow(OpenAndList("hidden", {5, 6, 7, 8}), SW_HIDE);
    ASSERT_EQ(num_windows, 3) << "with the map";
    EXPECT_EQ(WindowTable[2].hwnd, below);
    EXPECT_EQ(WindowTable[2].rect, Rect(1, 2, 3, 4));
    for (int count = 0; count < MAX_WINDOWS; ++count)
        OpenWindow("another", {1, 2, 3, 4});
    RebuildWindowTable();
    EXPECT_EQ(num_windows, MAX_WINDOWS);
}
