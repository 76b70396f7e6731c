// Keyboard, hotkeys, cursor, mouse capture.
#include "internal.h"

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
    if (CallFails("RegisterHotKey") || !ResolveHandle(window))
        return FALSE;
    if (key > 0xFF) { // as VkKeyScanA reports a character without a key
        Desk.lastError = ERROR_INVALID_PARAMETER;
        return FALSE;
    }
    if (HolderOf(modifiers, key)) {
        Desk.lastError = ERROR_HOTKEY_ALREADY_REGISTERED;
        return FALSE;
    }
    Desk.hotkeys.push_back({window, id, modifiers, key});
    return TRUE;
}

BOOL UnregisterHotKey(HWND window, int id) {
    if (CallFails("UnregisterHotKey"))
        return FALSE;
    const auto isIt = [=](const DeskHotkey& key) { return key.window == window && key.id == id; };
    if (std::erase_if(Desk.hotkeys, isIt))
        return TRUE;
    Desk.lastError = ERROR_HOTKEY_NOT_REGISTERED;
    return FALSE;
}

void RemoveHotkeys(HWND window) {
    std::erase_if(Desk.hotkeys, [window](const DeskHotkey& key) { return key.window == window; });
}

void PressHotkey(UINT modifiers, UINT key) {
    const DeskHotkey* hotkey = HolderOf(modifiers, key);
    Desk.ownsLastInput = hotkey && hotkey->window;
    if (hotkey && hotkey->window)
        Desk.queue.push_back({hotkey->window, WM_HOTKEY, static_cast<WPARAM>(hotkey->id),
                              MAKELPARAM(static_cast<int>(modifiers), static_cast<int>(key)), Desk.now,
                              Desk.cursor});
}

void HoldHotkey(UINT modifiers, UINT key, int repeats, DWORD interval) {
    for (int repeat = 0; repeat < repeats; ++repeat) {
        Desk.now += repeat ? interval : 0;
        PressHotkey(modifiers, key);
    }
}

// Letters, digits, space and tab of a United States keyboard.
SHORT VkKeyScanA(char character) {
    constexpr int shift = 0x100;
    if (CallFails("VkKeyScanA") || !character)
        return -1;
    const auto replaced = Desk.keyScans.find(character);
    if (replaced != Desk.keyScans.end())
        return replaced->second;
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

void HoldKey(int key, bool down) {
    Desk.keysNow[key] = static_cast<BYTE>(down != 0);
}

static SHORT KeyBits(BYTE down) {
    return static_cast<SHORT>(down ? -0x8000 : 0);
}

SHORT GetKeyState(int key) {
    return CallFails("GetKeyState") ? SHORT{0} : KeyBits(Desk.keysRead[key & 255]);
}

SHORT GetAsyncKeyState(int key) {
    return CallFails("GetAsyncKeyState") ? SHORT{0} : KeyBits(Desk.keysNow[key & 255]);
}

BOOL GetCursorPos(POINT* point) {
    if (CallFails("GetCursorPos"))
        return FALSE;
    *point = Desk.cursor;
    return TRUE;
}

// Clamps to the bounding rectangle of all displays.
BOOL SetCursorPos(int x, int y) {
    if (CallFails("SetCursorPos"))
        return FALSE;
    const RECT all = DesktopBounds();
    Desk.cursor = {std::clamp(x, all.left, all.right - 1), std::clamp(y, all.top, all.bottom - 1)};
    return TRUE;
}

HWND SetCapture(HWND window) {
    if (CallFails("SetCapture") || !ResolveHandle(window))
        return nullptr;
    const HWND before = Desk.capture;
    Desk.capture = window;
    if (before && before != window)
        CallWndProc(before, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(window));
    return before;
}

BOOL ReleaseCapture() {
    if (CallFails("ReleaseCapture"))
        return FALSE;
    if (const HWND before = std::exchange(Desk.capture, nullptr))
        CallWndProc(before, WM_CAPTURECHANGED, 0, 0);
    return TRUE;
}
