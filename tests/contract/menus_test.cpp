// Popup menus and the icons of the notification area.
#include "contract/contract_test.h"

namespace {

using Menus = Contract;

TEST_F(Menus, AMenuTakesAllThatHangsBelowItWithIt) {
    const HMENU menu = CreatePopupMenu();
    const HMENU below = CreatePopupMenu();
    char text[] = "below";
    MENUITEMINFOA item{};
    item.fMask = MIIM_SUBMENU | MIIM_TYPE;
    item.dwTypeData = text;
    item.hSubMenu = below;
    EXPECT_FALSE(InsertMenuItemA(menu, 0, TRUE, &item)) << "the record's size is not told";
    item.cbSize = sizeof item;
    EXPECT_TRUE(InsertMenuItemA(menu, 0, TRUE, &item));
    EXPECT_TRUE(DestroyMenu(menu));
    EXPECT_FALSE(DestroyMenu(below));
    EXPECT_FALSE(InsertMenuItemA(menu, 0, TRUE, &item));
}

TEST_F(Menus, AnIconStandsInTheNotificationAreaOnce) {
    NOTIFYICONDATAA icon{};
    icon.cbSize = NOTIFYICONDATAA_V1_SIZE;
    EXPECT_EQ(icon.cbSize, sizeof(void*) == 4 ? 88u : 104u);
    icon.hWnd = OpenOwn();
    icon.uID = 1125;
    icon.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    icon.uCallbackMessage = WM_USER;
    icon.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
    EXPECT_FALSE(Shell_NotifyIconA(NIM_DELETE, &icon));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_ADD, &icon));
    EXPECT_FALSE(Shell_NotifyIconA(NIM_ADD, &icon));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_DELETE, &icon));
}

} // namespace
