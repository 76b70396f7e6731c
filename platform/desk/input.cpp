// The user's hands: keys, hotkeys, cursor, capture.
#include "ground.h"

#include <algorithm>
#include <cstring>
#include <utility>

static const DeskHotkey* HolderOf(UINT modifiers, UINT key) {
    for (const DeskHotkey& hotkey : Desk.hotkeys)
        if (hotkey.modifiers == modifiers && hotkey.key == key)
            return &hotkey;
    return nullptr;
}

BOOL RegisterHotKey(HWND window, int id, UINT modifiers, UINT key) {
    if (Fails("RegisterHotKey") || !Named(window))
        return FALSE;
    if (HolderOf(modifiers, key)) {
        Desk.lastError = ERROR_HOTKEY_ALREADY_REGISTERED;
        return FALSE;
    }
    Desk.hotkeys.push_back({window, id, modifiers, key});
    return TRUE;
}

BOOL UnregisterHotKey(HWND window, int id) {
    if (Fails("UnregisterHotKey"))
        return FALSE;
    const auto isIt = [=](const DeskHotkey& key) { return key.window == window && key.id == id; };
    if (std::erase_if(Desk.hotkeys, isIt))
        return TRUE;
    Desk.lastError = ERROR_HOTKEY_NOT_REGISTERED;
    return FALSE;
}

void DropHotkeysOf(HWND window) {
    std::erase_if(Desk.hotkeys, [window](const DeskHotkey& key) { return key.window == window; });
}

void PressCombination(UINT modifiers, UINT key) {
    const DeskHotkey* hotkey = HolderOf(modifiers, key);
    if (hotkey && hotkey->window)
        Desk.queue.push_back({hotkey->window, WM_HOTKEY, static_cast<WPARAM>(hotkey->id),
                              MAKELPARAM(static_cast<int>(modifiers), static_cast<int>(key)), Desk.now,
                              Desk.cursor});
}

// A United States keyboard, as far as letters, digits, space and tab go.
SHORT VkKeyScanA(char character) {
    constexpr int shift = 0x100;
    if (Fails("VkKeyScanA") || !character)
        return -1;
    if (character >= 'a' && character <= 'z')
        return static_cast<SHORT>(character - 'a' + 'A');
    if (character >= 'A' && character <= 'Z')
        return static_cast<SHORT>(shift + character);
    if ((character >= '0' && character <= '9') || character == ' ' || character == '\t')
        return character;
    static const char shiftedDigits[] = ")!@#$%^&*(";
    const char* found = std::strchr(shiftedDigits, character);
    return static_cast<SHORT>(found ? shift + '0' + (found - shiftedDigits) : -1);
}

void HoldKey(int key, int bDown) {
    Desk.keysNow[key] = static_cast<BYTE>(bDown != 0);
}

static SHORT KeyBits(BYTE bDown) {
    return static_cast<SHORT>(bDown ? -0x8000 : 0);
}

SHORT GetKeyState(int key) {
    return Fails("GetKeyState") ? SHORT{0} : KeyBits(Desk.keysRead[key & 255]);
}

SHORT GetAsyncKeyState(int key) {
    return Fails("GetAsyncKeyState") ? SHORT{0} : KeyBits(Desk.keysNow[key & 255]);
}

BOOL GetCursorPos(POINT* point) {
    if (Fails("GetCursorPos"))
        return FALSE;
    *point = Desk.cursor;
    return TRUE;
}

// The cursor stays on the monitors; one rectangle round all of them is near enough here.
BOOL SetCursorPos(int x, int y) {
    if (Fails("SetCursorPos"))
        return FALSE;
    RECT all = Desk.monitors.front();
    for (const RECT& monitor : Desk.monitors)
        all = {std::min(all.left, monitor.left), std::min(all.top, monitor.top),
               std::max(all.right, monitor.right), std::max(all.bottom, monitor.bottom)};
    Desk.cursor = {std::clamp(x, all.left, all.right - 1), std::clamp(y, all.top, all.bottom - 1)};
    return TRUE;
}

HWND SetCapture(HWND window) {
    if (Fails("SetCapture") || !Named(window))
        return nullptr;
    const HWND before = Desk.capture;
    Desk.capture = window;
    if (before && before != window)
        CallProcedure(before, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(window));
    return before;
}

BOOL ReleaseCapture() {
    if (Fails("ReleaseCapture"))
        return FALSE;
    if (const HWND before = std::exchange(Desk.capture, nullptr))
        CallProcedure(before, WM_CAPTURECHANGED, 0, 0);
    return TRUE;
}
