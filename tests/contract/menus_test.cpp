// Popup menus and the icons of the notification area.
#include "contract/contract_test.h"

namespace {

using Menus = Contract;
using Lines = std::vector<std::string>;

MENUITEMINFOA Item(const char* text, UINT id, UINT state = 0, UINT type = MFT_STRING) {
    MENUITEMINFOA item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STATE | MIIM_ID | MIIM_TYPE;
    item.fType = type;
    item.fState = state;
    item.wID = id;
    item.dwTypeData = const_cast<LPSTR>(text);
    return item;
}

BOOL Insert(HMENU menu, UINT position, const MENUITEMINFOA& item) {
    return InsertMenuItemA(menu, position, TRUE, &item);
}

MENUITEMINFOA Separator() {
    return Item(nullptr, static_cast<UINT>(-1), 0, MFT_SEPARATOR);
}

// What hangs another menu below an entry.
MENUITEMINFOA Below(HMENU menu, const char* text) {
    MENUITEMINFOA item = Item(text, 0);
    item.fMask = MIIM_SUBMENU | MIIM_TYPE;
    item.hSubMenu = menu;
    return item;
}

int Track(HMENU menu, HWND window) {
    return TrackPopupMenuEx(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, 100, 100, window, nullptr);
}

TEST_F(Menus, AnEntryGoesInBeforeTheOneAtItsPlaceAndPastTheEndToTheEnd) {
    const HMENU menu = CreatePopupMenu();
    const HMENU below = CreatePopupMenu();
    EXPECT_TRUE(Insert(menu, 500, Item("first", 7)));
    EXPECT_TRUE(Insert(menu, 1, Item("second", 8, MFS_CHECKED)));
    EXPECT_TRUE(Insert(menu, 0, Separator()));
    EXPECT_TRUE(Insert(menu, 9, Below(below, "below")));
    EXPECT_TRUE(Insert(menu, 1, Item("&1 a && b", 8))) << "an id may occur twice";
    EXPECT_EQ(MenuLines(menu), (Lines{"--", "&1 a && b", "first", "* second", "below >"}));

    MENUITEMINFOA wrongSize = Item("x", 1);
    wrongSize.cbSize = 3;
    EXPECT_FALSE(Insert(menu, 0, wrongSize));
    EXPECT_FALSE(Insert(nullptr, 0, Item("x", 1)));
    EXPECT_EQ(MenuLines(menu).size(), 5u);
    EXPECT_TRUE(DestroyMenu(menu));
}

TEST_F(Menus, AMenuTakesAllThatHangsBelowItWithIt) {
    const HMENU menu = CreatePopupMenu();
    const HMENU below = CreatePopupMenu();
    const HMENU apart = CreatePopupMenu();
    Insert(menu, 0, Below(below, "below"));
    EXPECT_TRUE(DestroyMenu(menu));
    EXPECT_FALSE(DestroyMenu(below));
    EXPECT_FALSE(DestroyMenu(menu));
    EXPECT_FALSE(Insert(menu, 0, Item("x", 1)));
    EXPECT_TRUE(DestroyMenu(apart)) << "what was never hung in stays";

    const HMENU later = CreatePopupMenu();
    const HMENU first = CreatePopupMenu();
    Insert(later, 0, Below(first, "below"));
    EXPECT_TRUE(DestroyMenu(first));
    EXPECT_TRUE(DestroyMenu(later)) << "in the other order, too";
}

TEST_F(Menus, TheIdOfTheChoiceComesBackAndZeroWhenThereIsNone) {
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP | WS_VISIBLE);
    SetForegroundWindow(window);
    const HMENU menu = CreatePopupMenu();
    EXPECT_EQ(Track(menu, window), 0) << "an empty menu closes by itself";
    Insert(menu, 0, Item("first", 7));
    Insert(menu, 1, Separator());
    Insert(menu, 2, Item("second", 33199));

    WillChoose(window, menu, 2);
    EXPECT_EQ(Track(menu, window), 33199);
    WillChoose(window, menu, 1);
    EXPECT_EQ(Track(menu, window), 7);
    WillChoose(window, menu, 0);
    EXPECT_EQ(Track(menu, window), 0);

    EXPECT_EQ(Track(menu, nullptr), 0);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_WINDOW_HANDLE);
    DestroyMenu(menu);
    EXPECT_EQ(Track(menu, window), 0);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_MENU_HANDLE);
    DestroyWindow(window);
}

TEST_F(Menus, AnIconStandsInTheNotificationAreaOnce) {
    const HWND window = OpenOwn({10, 10, 300, 200}, WS_POPUP);
    NOTIFYICONDATAA icon{};
    EXPECT_EQ(NOTIFYICONDATAA_V1_SIZE, sizeof(void*) == 4 ? 88u : 104u);
    icon.cbSize = NOTIFYICONDATAA_V1_SIZE;
    icon.hWnd = window;
    icon.uID = 1125;
    icon.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    icon.uCallbackMessage = WM_USER;
    icon.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
    EXPECT_FALSE(Shell_NotifyIconA(NIM_DELETE, &icon));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_ADD, &icon));
    EXPECT_FALSE(Shell_NotifyIconA(NIM_ADD, &icon));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_DELETE, &icon));
    EXPECT_FALSE(Shell_NotifyIconA(NIM_DELETE, &icon));
    DestroyWindow(window);
}

} // namespace
