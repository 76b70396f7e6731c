// Popup menus, and the icons of the notification area.
#include "ground.h"

#include <shellapi.h>

#include <algorithm>

DeskMenu& MenuOf(HMENU menu) {
    return *reinterpret_cast<DeskMenu*>(menu);
}

// The living menu behind a handle, or null with the last error set.
static DeskMenu* LivingMenu(HMENU menu) {
    if (menu && MenuOf(menu).bLive)
        return &MenuOf(menu);
    Desk.lastError = ERROR_INVALID_MENU_HANDLE;
    return nullptr;
}

HMENU CreatePopupMenu() {
    return Fails("CreatePopupMenu") ? nullptr : reinterpret_cast<HMENU>(&Desk.menus.emplace_back());
}

// The menus that hang below it go with it.
static void Bury(DeskMenu& menu) {
    menu.bLive = 0;
    for (const DeskMenuItem& item : menu.items)
        if (item.submenu && MenuOf(item.submenu).bLive)
            Bury(MenuOf(item.submenu));
}

BOOL DestroyMenu(HMENU menu) {
    DeskMenu* row = Fails("DestroyMenu") ? nullptr : LivingMenu(menu);
    if (row)
        Bury(*row);
    return row != nullptr;
}

static DeskMenuItem ItemFrom(const MENUITEMINFOA& info) {
    DeskMenuItem item{};
    if (info.fMask & MIIM_TYPE)
        item.type = info.fType;
    if ((info.fMask & MIIM_TYPE) && !(info.fType & MFT_SEPARATOR) && info.dwTypeData)
        item.text = info.dwTypeData;
    if (info.fMask & MIIM_STATE)
        item.state = info.fState;
    if (info.fMask & MIIM_ID)
        item.id = info.wID;
    if (info.fMask & MIIM_SUBMENU)
        item.submenu = info.hSubMenu;
    return item;
}

// A position past the end appends. Nothing that Quorl does names an item by its id.
BOOL InsertMenuItemA(HMENU menu, UINT item, BOOL byPosition, const MENUITEMINFOA* info) {
    DeskMenu* row = Fails("InsertMenuItemA") ? nullptr : LivingMenu(menu);
    if (!row)
        return FALSE;
    if (!byPosition || info->cbSize != sizeof *info) {
        Desk.lastError = ERROR_INVALID_PARAMETER;
        return FALSE;
    }
    const std::size_t place = std::min<std::size_t>(item, row->items.size());
    row->items.insert(row->items.begin() + static_cast<std::ptrdiff_t>(place), ItemFrom(*info));
    return TRUE;
}

// Whether the user finds an entry with this id, in the menu or below it.
static int Offers(const DeskMenu& menu, UINT id) {
    return std::any_of(menu.items.begin(), menu.items.end(), [id](const DeskMenuItem& item) {
        if (item.submenu)
            return Offers(MenuOf(item.submenu), id) != 0;
        return item.id == id && !(item.type & MFT_SEPARATOR);
    });
}

// What the user chooses from the menu: as prepared, as long as it stands there. An empty menu closes at once.
static UINT Choice(const DeskMenu& menu) {
    if (menu.items.empty())
        return 0;
    if (Desk.choices.empty()) {
        ++Desk.surprises;
        return 0;
    }
    const UINT id = Desk.choices.front();
    Desk.choices.pop_front();
    if (!id || Offers(menu, id))
        return id;
    ++Desk.surprises;
    return 0;
}

BOOL TrackPopupMenuEx(HMENU menu, UINT flags, int x, int y, HWND window, TPMPARAMS*) {
    const DeskMenu* row = Fails("TrackPopupMenuEx") || !Named(window) ? nullptr : LivingMenu(menu);
    if (!row)
        return FALSE;
    const UINT choice = Choice(*row);
    Desk.shownMenus.push_back({
        menu, {x, y},
         flags, window, choice
    });
    return flags & TPM_RETURNCMD ? static_cast<BOOL>(choice) : TRUE;
}

static auto TrayPlace(const NOTIFYICONDATAA& data) {
    return std::find_if(Desk.tray.begin(), Desk.tray.end(), [&data](const DeskTrayIcon& icon) {
        return icon.window == data.hWnd && icon.id == data.uID;
    });
}

static BOOL AddIcon(const NOTIFYICONDATAA& data) {
    if (!Named(data.hWnd) || TrayPlace(data) != Desk.tray.end())
        return FALSE;
    DeskTrayIcon icon{data.hWnd, data.uID, 0, nullptr, ""};
    if (data.uFlags & NIF_MESSAGE)
        icon.callback = data.uCallbackMessage;
    if (data.uFlags & NIF_ICON)
        icon.icon = data.hIcon;
    if (data.uFlags & NIF_TIP)
        icon.tip = data.szTip;
    Desk.tray.push_back(icon);
    return TRUE;
}

static BOOL RemoveIcon(const NOTIFYICONDATAA& data) {
    const auto place = TrayPlace(data);
    if (place == Desk.tray.end())
        return FALSE;
    Desk.tray.erase(place);
    return TRUE;
}

BOOL Shell_NotifyIconA(DWORD operation, NOTIFYICONDATAA* data) {
    if (Fails("Shell_NotifyIconA"))
        return FALSE;
    switch (operation) {
    case NIM_ADD: return AddIcon(*data);
    case NIM_DELETE: return RemoveIcon(*data);
    default: return FALSE;
    }
}
