#include "scroll/window_table.h"

#include "support/quorl_test.h"

namespace {

class Table : public RunningQuorl {};

TEST_F(Table, AManagedPlaceHasAnAreaWithinTheFarEdges) {
    const RECT quorl{0, 0, 4096, 1536};
    EXPECT_FALSE(IsManagedPlace({10, 10, 10, 50}, quorl));
    EXPECT_FALSE(IsManagedPlace({10, 10, 50, 10}, quorl));
    EXPECT_TRUE(IsManagedPlace({-9000, -9000, -8000, -8000}, quorl)) << "near edges do not matter";
    EXPECT_TRUE(IsManagedPlace({4096, 1536, 4100, 1540}, quorl));
    EXPECT_FALSE(IsManagedPlace({4097, 10, 4200, 50}, quorl));
    EXPECT_FALSE(IsManagedPlace({10, 1537, 50, 1600}, quorl));
}

TEST_F(Table, AWindowIsManagedUnlessItIsOutOfUseOrPartOfTheDesktop) {
    const auto isManaged = [](const char* className) {
        return IsManagedWindow(OpenWindow("", {10, 10, 50, 50}, className));
    };
    for (const char* name : {"Program", "#32770", "progman", "Progman2"})
        EXPECT_TRUE(isManaged(name)) << name;
    for (const char* name : {"Progman", "Shell_TrayWnd", "w_ToolTip", "WorkerW", "Shell_SecondaryTrayWnd"})
        EXPECT_FALSE(isManaged(name)) << name;
    for (const int bIgnored : {1, 0}) {
        ActionTable[ROW_IGNORE_TOOLWINS].value = bIgnored;
        for (const char* name : {"BaseBar", "ToolbarWindow32", "ReBarWindow32"})
            EXPECT_EQ(isManaged(name), !bIgnored) << name;
    }
    for (const DWORD style : {WS_DISABLED, WS_MINIMIZE, WS_VISIBLE}) {
        const HWND window = OpenWindow("", {10, 10, 50, 50});
        RowOf(window).style ^= style;
        EXPECT_FALSE(IsManagedWindow(window)) << style;
    }
}

HRESULT CloakedAsTold(HWND window, DWORD attribute, void* value, DWORD size) {
    EXPECT_EQ(attribute, 14U);
    EXPECT_EQ(size, 4U);
    *static_cast<DWORD*>(value) = RowOf(window).bCloaked ? 2 : 0;
    return 0;
}

TEST_F(QuorlTest, DoesNotManageAWindowThatTheCompositorHides) {
    Desk.modules["dwmapi.dll"].exports["DwmGetWindowAttribute"] =
        reinterpret_cast<FARPROC>(reinterpret_cast<void*>(CloakedAsTold));
    ASSERT_EQ(StartQuorl(), 1);
    const HWND window = OpenWindow("", {10, 10, 50, 50});
    EXPECT_TRUE(IsManagedWindow(window));
    RowOf(window).bCloaked = 1;
    EXPECT_FALSE(IsManagedWindow(window));
}

TEST_F(Table, QuorlsOwnWindowsAndThoseThatAreNoneAreNotManaged) {
    TipWnd = OpenWindow("tip", {10, 10, 50, 50});
    for (const HWND window : {MainWnd, TipWnd, GetDesktopWindow(), HWND{}})
        EXPECT_FALSE(IsManagedWindow(window));

    const HWND bar = OpenWindow("", {0, 748, 1024, 768}, "Shell_TrayWnd");
    Desk.fault = {"GetClassNameA", 1, 0, ERROR_INVALID_WINDOW_HANDLE, 0};
    EXPECT_FALSE(IsManagedWindow(bar)) << "a class that cannot be read might be any";
}

TEST_F(Table, HoldsEveryTopLevelWindowTopmostFirst) {
    KillWindow(MainWnd);
    OpenWindow("below", {1, 2, 3, 4});
    const HWND hidden = OpenWindow("hidden", {5, 6, 7, 8});
    ShowWindow(hidden, SW_HIDE);
    num_windows = 7;

    RebuildWindowTable();

    ASSERT_EQ(num_windows, 2);
    EXPECT_EQ(WindowTable[0].hwnd, hidden);
    const WindowRow& row = WindowTable[1];
    EXPECT_EQ(Rect(row.left, row.top, row.right, row.bottom), Rect(1, 2, 3, 4));

    Desk.fault = {"EnumWindows", 1, 0, ERROR_ACCESS_DENIED, 0};
    RebuildWindowTable();
    EXPECT_EQ(num_windows, 2) << "an enumeration that fails leaves what was known";

    num_windows = MAX_WINDOWS - 1;
    EXPECT_EQ(AddWindowRow(hidden, 0), TRUE);
    EXPECT_EQ(AddWindowRow(hidden, 0), FALSE) << "a full table ends the enumeration";
    EXPECT_EQ(num_windows, MAX_WINDOWS);
}

} // namespace
