#include "scroll/window_table.h"

#include "actions/action_table.h"
#include "core/state.h"
#include "support/quorl_test.h"

namespace {

TEST(ManagedPlace, NeedsAnAreaAndAPlaceWithinTheFarEdges) {
    const RECT quorl{0, 0, 4096, 1536};
    struct {
        RECT place;
        int bManaged;
    } const cases[] = {
        {{10, 10, 50, 50},             1},
        {{10, 10, 10, 50},             0},
        {{10, 10, 50, 10},             0},
        {{-9000, -9000, -8000, -8000}, 1}, // near edges do not matter
        {{4096, 1536, 4100, 1540},     1},
        {{4097, 10, 4200, 50},         0},
        {{10, 1537, 50, 1600},         0},
    };
    for (const auto& [place, bManaged] : cases)
        EXPECT_EQ(IsManagedPlace(place, quorl), bManaged) << testing::PrintToString(place);
}

class Table : public QuorlTest {};

TEST_F(Table, AWindowIsManagedUnlessItIsOutOfUseOrPartOfTheDesktop) {
    struct {
        const char* className;
        DWORD added, taken; // styles
        int bManaged;
    } const cases[] = {
        {"Program",                0,           0,          1},
        {"#32770",                 0,           0,          1},
        {"Program",                WS_DISABLED, 0,          0},
        {"Program",                WS_MINIMIZE, 0,          0},
        {"Program",                0,           WS_VISIBLE, 0},
        {"Progman",                0,           0,          0},
        {"Shell_TrayWnd",          0,           0,          0},
        {"w_ToolTip",              0,           0,          0},
        {"WorkerW",                0,           0,          0},
        {"Shell_SecondaryTrayWnd", 0,           0,          0},
        {"progman",                0,           0,          1},
        {"Progman2",               0,           0,          1},
        {"BaseBar",                0,           0,          0},
        {"ToolbarWindow32",        0,           0,          0},
        {"ReBarWindow32",          0,           0,          0},
    };
    ASSERT_EQ(StartQuorl(), 1);
    for (const auto& [className, added, taken, bManaged] : cases) {
        const HWND window = OpenWindow("", {10, 10, 50, 50}, className);
        RowOf(window).style = (RowOf(window).style | added) & ~taken;
        EXPECT_EQ(IsManagedWindow(window), bManaged) << className << " + " << added << " - " << taken;
    }
    Command(ROW_IGNORE_TOOLWINS);
    EXPECT_TRUE(IsManagedWindow(OpenWindow("", {10, 10, 50, 50}, "BaseBar"))) << "not ignored any more";
    EXPECT_FALSE(IsManagedWindow(OpenWindow("", {10, 10, 50, 50}, "Progman")));
}

HRESULT CloakedAsTold(HWND window, DWORD attribute, void* value, DWORD size) {
    EXPECT_EQ(attribute, 14U);
    EXPECT_EQ(size, 4U);
    if (!RowOf(window).handle)
        return -1;
    *static_cast<DWORD*>(value) = RowOf(window).bCloaked ? 2 : 0;
    return 0;
}

TEST_F(Table, AWindowThatTheCompositorHidesIsNotManaged) {
    Desk.modules["dwmapi.dll"].exports["DwmGetWindowAttribute"] =
        reinterpret_cast<FARPROC>(reinterpret_cast<void*>(CloakedAsTold));
    ASSERT_EQ(StartQuorl(), 1);
    const HWND window = OpenWindow("", {10, 10, 50, 50});
    EXPECT_TRUE(IsManagedWindow(window));
    RowOf(window).bCloaked = 1;
    EXPECT_FALSE(IsManagedWindow(window));
}

TEST_F(Table, QuorlsOwnWindowsAndThoseThatAreNoneAreNotManaged) {
    const HWND gone = OpenWindow("gone", {10, 10, 50, 50});
    ASSERT_EQ(StartQuorl(), 1);
    EXPECT_FALSE(IsManagedWindow(MainWnd));
    EXPECT_FALSE(IsManagedWindow(nullptr));
    EXPECT_FALSE(IsManagedWindow(GetDesktopWindow()));
    KillWindow(gone);
    EXPECT_FALSE(IsManagedWindow(gone));

    TipWnd = OpenWindow("tip", {10, 10, 50, 50});
    EXPECT_FALSE(IsManagedWindow(TipWnd));
    TipWnd = nullptr;

    const HWND bar = OpenWindow("", {0, 748, 1024, 768}, "Shell_TrayWnd");
    Desk.fault = {"GetClassNameA", 1, 0, ERROR_INVALID_WINDOW_HANDLE, 0};
    EXPECT_FALSE(IsManagedWindow(bar)) << "a class that cannot be read might be any";
}

TEST_F(Table, HoldsEveryTopLevelWindowTopmostFirst) {
    const HWND below = OpenWindow("below", {1, 2, 3, 4});
    const HWND hidden = OpenWindow("hidden", {5, 6, 7, 8});
    RowOf(hidden).style &= ~WS_VISIBLE;
    num_windows = 7;

    RebuildWindowTable();

    ASSERT_EQ(num_windows, 2);
    EXPECT_EQ(WindowTable[0].hwnd, hidden);
    EXPECT_EQ(WindowTable[1].hwnd, below);
    EXPECT_EQ(Rect(WindowTable[1].left, WindowTable[1].top, WindowTable[1].right, WindowTable[1].bottom),
              Rect(1, 2, 3, 4));

    Desk.fault = {"EnumWindows", 1, 0, ERROR_ACCESS_DENIED, 0};
    RebuildWindowTable();
    EXPECT_EQ(num_windows, 2) << "an enumeration that fails leaves what was known";
}

TEST_F(Table, AFullTableEndsTheEnumeration) {
    const HWND window = OpenWindow("one too many", {1, 2, 3, 4});
    num_windows = MAX_WINDOWS - 1;
    EXPECT_EQ(AddWindowRow(window, 0), TRUE);
    EXPECT_EQ(AddWindowRow(window, 0), FALSE);
    EXPECT_EQ(num_windows, MAX_WINDOWS);
}

} // namespace
