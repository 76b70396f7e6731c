#include "scroll/window_table.h"

#include "support/quorl_test.h"

class Table : public RunningQuorl {};

TEST_F(Table, AManagedPlaceHasAnAreaWithinTheFarEdges) {
    const RECT quorl{0, 0, 4096, 1536};
    EXPECT_TRUE(IsManagedPlace({-9000, -9000, 4096, -8000}, quorl)) << "near edges do not matter";
    EXPECT_TRUE(IsManagedPlace({4096, 1536, 4100, 1540}, quorl));
    for (const RECT& place :
         {Rect(9, 9, 9, 50), Rect(9, 9, 50, 9), Rect(4097, 9, 5000, 50), Rect(9, 1537, 50, 1600)})
        EXPECT_FALSE(IsManagedPlace(place, quorl)) << testing::PrintToString(place);
}

TEST_F(Table, AWindowIsManagedUnlessItIsOutOfUseOrPartOfTheDesktop) {
    const auto isManaged = [](const char* className, DWORD changedStyle) {
        const HWND window = OpenWindow("", {10, 10, 50, 50}, className);
        RowOf(window).style ^= changedStyle;
        return IsManagedWindow(window);
    };
    for (const char* name : {"Program", "progman", "Progman2"})
        EXPECT_TRUE(isManaged(name, 0)) << name;
    for (const char* name : {"Progman", "Shell_TrayWnd", "w_ToolTip", "WorkerW", "Shell_SecondaryTrayWnd"})
        EXPECT_FALSE(isManaged(name, 0)) << name;
    for (const DWORD style : {WS_DISABLED, WS_MINIMIZE, WS_VISIBLE})
        EXPECT_FALSE(isManaged("Program", style)) << style;
    for (const int bIgnored : {1, 0}) {
        ActionTable[ROW_IGNORE_TOOLWINS].value = bIgnored;
        EXPECT_EQ(isManaged("ReBarWindow32", 0), !bIgnored);
    }
    pDwmGetWindowAttribute = [](HWND, DWORD attribute, void* value, DWORD size) {
        *static_cast<DWORD*>(value) = attribute == 14 && size == 4;
        return HRESULT{0};
    };
    EXPECT_FALSE(isManaged("Program", 0)) << "the compositor hides it";
}

TEST_F(Table, QuorlsOwnWindowsAndThoseThatAreNoneAreNotManaged) {
    TipWnd = OpenWindow("tip", {10, 10, 50, 50});
    for (const HWND window : {MainWnd, TipWnd, GetDesktopWindow(), HWND{}})
        EXPECT_FALSE(IsManagedWindow(window));
}

TEST_F(Table, HoldsEveryTopLevelWindowTopmostFirst) {
    const HWND below = OpenWindow("below", {1, 2, 3, 4});
    ShowWindow(OpenWindow("hidden", {5, 6, 7, 8}), SW_HIDE);
    RebuildWindowTable();
    ASSERT_EQ(num_windows, 3) << "and the Toolwin";
    const WindowRow& row = WindowTable[2];
    EXPECT_EQ(row.hwnd, below);
    EXPECT_EQ(Rect(row.left, row.top, row.right, row.bottom), Rect(1, 2, 3, 4));
    num_windows = MAX_WINDOWS;
    EXPECT_EQ(AddWindowRow(below, 0), FALSE) << "a full table ends the enumeration";
}
