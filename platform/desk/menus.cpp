// Popup menus and notification icons.
#include "internal.h"

#include <shellapi.h>

#include <algorithm>

DeskMenu& MenuOf(HMENU menu) {
    return *reinterpret_cast<DeskMenu*>(menu);
}

// The existing menu behind a handle, or null with the last error set.
static DeskMenu* LiveMenu(HMENU menu) {
    if (menu && MenuOf(menu).live)
        return &MenuOf(menu);
    Desk.lastError = ERROR_INVALID_MENU_HANDLE;
    return nullptr;
}

HMENU CreatePopupMenu() {
    return CallFails("CreatePopupMenu") ? nullptr : reinterpret_cast<HMENU>(&Desk.menus.emplace_back());
}

// Includes the submenus.
static void Destroy(DeskMenu& menu) {
    menu.live = 0;
    for (const DeskMenuItem& item : menu.items)
        if (item.submenu && MenuOf(item.submenu).live)
            Destroy(MenuOf(item.submenu));
}

BOOL DestroyMenu(HMENU menu) {
    DeskMenu* record = CallFails("DestroyMenu") ? nullptr : LiveMenu(menu);
    if (record)
        Destroy(*record);
    return record != nullptr;
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

// A position past the end appends. Inserting by item id is not supported.
BOOL InsertMenuItemA(HMENU menu, UINT item, BOOL byPosition, const MENUITEMINFOA* info) {
    DeskMenu* record = CallFails("InsertMenuItemA") ? nullptr : LiveMenu(menu);
    if (!record)
        return FALSE;
    if (!byPosition || info->cbSize != sizeof *info) {
        Desk.lastError = ERROR_INVALID_PARAMETER;
        return FALSE;
    }
    const std::size_t position = std::min<std::size_t>(item, record->items.size());
    record->items.insert(record->items.begin() + static_cast<std::ptrdiff_t>(position), ItemFrom(*info));
    return TRUE;
}

// Searches submenus too.
static bool ContainsItem(const DeskMenu& menu, UINT id) {
    return std::any_of(menu.items.begin(), menu.items.end(), [id](const DeskMenuItem& item) {
        if (item.submenu)
            return ContainsItem(MenuOf(item.submenu), id);
        return item.id == id && !(item.type & MFT_SEPARATOR);
    });
}

// The test's prepared choice, if the menu contains it. An empty menu closes at once.
static UINT NextChoice(const DeskMenu& menu) {
    if (menu.items.empty())
        return 0;
    if (Desk.menuChoices.empty()) {
        ++Desk.unexpected;
        return 0;
    }
    const UINT id = Desk.menuChoices.front();
    Desk.menuChoices.pop_front();
    if (!id || ContainsItem(menu, id))
        return id;
    ++Desk.unexpected;
    return 0;
}

BOOL TrackPopupMenuEx(HMENU menu, UINT flags, int x, int y, HWND window, TPMPARAMS*) {
    const DeskMenu* record =
        CallFails("TrackPopupMenuEx") || !ResolveHandle(window) ? nullptr : LiveMenu(menu);
    if (!record)
        return FALSE;
    const UINT choice = NextChoice(*record);
    Desk.shownMenus.push_back({menu, {x, y}, flags, window, choice});
    return flags & TPM_RETURNCMD ? static_cast<BOOL>(choice) : TRUE;
}

static auto FindIcon(const NOTIFYICONDATAA& data) {
    return std::find_if(Desk.tray.begin(), Desk.tray.end(), [&data](const DeskTrayIcon& icon) {
        return icon.window == data.hWnd && icon.id == data.uID;
    });
}

static BOOL RemoveIcon(const NOTIFYICONDATAA& data) {
    const auto found = FindIcon(data);
    if (found == Desk.tray.end())
        return FALSE;
    Desk.tray.erase(found);
    return TRUE;
}

static void Update(DeskTrayIcon& icon, const NOTIFYICONDATAA& data) {
    if (data.uFlags & NIF_MESSAGE)
        icon.callback = data.uCallbackMessage;
    if (data.uFlags & NIF_ICON)
        icon.icon = data.hIcon;
    if (data.uFlags & NIF_TIP)
        icon.tip = data.szTip;
}

static BOOL AddIcon(const NOTIFYICONDATAA& data) {
    const bool fails = Desk.trayAddsToFail > 0;
    Desk.trayAddsToFail -= fails;
    if ((fails && !Desk.trayAddsLate) || !ResolveHandle(data.hWnd) || FindIcon(data) != Desk.tray.end())
        return FALSE;
    DeskTrayIcon icon{data.hWnd, data.uID, 0, nullptr, ""};
    Update(icon, data);
    Desk.tray.push_back(icon);
    return !fails;
}

static BOOL ModifyIcon(const NOTIFYICONDATAA& data) {
    const auto found = FindIcon(data);
    if (found == Desk.tray.end())
        return FALSE;
    Update(*found, data);
    return TRUE;
}

BOOL Shell_NotifyIconA(DWORD operation, NOTIFYICONDATAA* data) {
    if (CallFails("Shell_NotifyIconA"))
        return FALSE;
    switch (operation) {
    case NIM_ADD: return AddIcon(*data);
    case NIM_MODIFY: return ModifyIcon(*data);
    case NIM_DELETE: return RemoveIcon(*data);
    default: return FALSE;
    }
}
