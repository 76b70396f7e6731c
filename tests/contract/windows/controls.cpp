// The user at the controls of a dialog on Windows: real clicks and keys.
#include "contract/ground.h"

constexpr DWORD ENOUGH = 80; // milliseconds until a click has had its effect

static void ClickAt(POINT point) {
    MoveMouse(point.x, point.y);
    PressMouse(VK_LBUTTON, 1);
    PressMouse(VK_LBUTTON, 0);
    Handle(ENOUGH);
}

void ClickControl(HWND button) {
    RECT place{};
    GetWindowRect(button, &place);
    ClickAt({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

static const struct {
    const char* className;
    UINT message; // that gives the place of a row
} RowPlaces[] = {
    {"ListBox",         LB_GETITEMRECT },
    {"SysTabControl32", TCM_GETITEMRECT},
    {"SysListView32",   LVM_GETITEMRECT},
};

void ChooseRow(HWND control, int row) {
    char name[32] = "";
    GetClassNameA(control, name, sizeof name);
    RECT place{}; // LVIR_BOUNDS is 0
    for (const auto& kind : RowPlaces)
        if (!lstrcmpiA(kind.className, name))
            SendMessageA(control, kind.message, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    POINT point{place.left + 10, (place.top + place.bottom) / 2};
    ClientToScreen(control, &point);
    ClickAt(point);
}

void TypeInto(HWND edit, const char* text) {
    SetFocus(edit);
    SendMessageA(edit, EM_SETSEL, 0, -1);
    for (const char* letter = text; *letter; ++letter)
        PostMessageA(edit, WM_CHAR, static_cast<WPARAM>(*letter), 0);
    Handle(ENOUGH);
}
