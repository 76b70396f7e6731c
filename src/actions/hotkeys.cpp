#include "actions/hotkeys.h"

#include "core/state.h"

#include <cstdio>

namespace {

struct ModifierPair {
    int flag;
    UINT modifier;
};

} // namespace

// Keyboards repeat every 30 to 50 ms; two presses of a user are farther apart.
static const DWORD REPEAT_TIME = 60; // milliseconds

static const ModifierPair Modifiers[] = {
    {KEY_CTRL, MOD_CONTROL},
    {KEY_SHIFT, MOD_SHIFT},
    {KEY_WIN, MOD_WIN},
    {KEY_ALT, MOD_ALT},
};

// Flags that Windows does not know are dropped.
static UINT HotkeyModifiers(int mods) {
    UINT modifiers = 0;
    for (const ModifierPair& pair : Modifiers)
        if (mods & pair.flag)
            modifiers |= pair.modifier;
    return modifiers;
}

static bool IsVirtualKey(int key) {
    return key == VK_SPACE || (key >= VK_LEFT && key <= VK_DOWN) || (key >= VK_F1 && key <= VK_F12);
}

// Under every keyboard layout these are the virtual keys. VkKeyScanA only finds characters that the current
// layout has: no Latin letters under a Cyrillic one, and for the code of F13 the key of '|'.
static bool IsLayoutIndependent(int key) {
    return key == VK_TAB || (key >= '0' && key <= '9') || (key >= 'A' && key <= 'Z') ||
           (key >= VK_F13 && key <= VK_F24);
}

int VirtualKey(int key) {
    if (IsVirtualKey(key))
        return key;
    if (key > 256)
        key -= 256;
    return IsLayoutIndependent(key) ? key : VkKeyScanA(static_cast<char>(key));
}

// A vk of -1 would be registered by some systems, though no key can produce it.
static bool Register(int id, int mods, int vk) {
    if (vk >= 0)
        return RegisterHotKey(MainWnd, id, HotkeyModifiers(mods), static_cast<UINT>(vk)) != 0;
    SetLastError(ERROR_INVALID_PARAMETER);
    return false;
}

static void ReportRefusal(int id) {
    const DWORD error = GetLastError();
    char text[256];
    const int length = std::snprintf(text, sizeof text, "Hotkey registeration failed (%d): \n\t\"%s\" (%d)",
                                     static_cast<int>(error), ActionTable[id].desc, id);
    if (error == ERROR_HOTKEY_ALREADY_REGISTERED)
        std::snprintf(text + length, sizeof text - static_cast<std::size_t>(length),
                      "\nAnother program has already registered the hotkey combination.");
    MessageBoxA(nullptr, text, "Error", MB_OK);
}

// Registers and records the hotkey. False, with the action unchanged and the last error set, if refused.
static bool Bind(int id, int mods, int vk) {
    if (!Register(id, mods, vk))
        return false;
    ActionTable[id].key_mods = mods;
    ActionTable[id].vk = vk;
    return true;
}

bool SetActionKey(int id, int mods, int key) {
    if (mods < 0 || key < 0)
        return false;
    const bool bBound = Bind(id, mods, VirtualKey(key));
    if (!bBound)
        ReportRefusal(id);
    return bBound;
}

// A message box about an earlier refusal runs a message loop, in which the user may have bound this action,
// so release its hotkey first.
void RegisterRecordedKey(int id) {
    UnregisterHotKey(MainWnd, id);
    SetActionKey(id, ActionTable[id].key_mods, ActionTable[id].vk);
}

// Since Windows 7 the shell holds Win+Up and Win+Down, but not the same keys with Ctrl.
static bool BindWithCtrl(int id, int mods, int vk) {
    return mods == KEY_WIN && GetLastError() == ERROR_HOTKEY_ALREADY_REGISTERED &&
           Bind(id, KEY_WIN | KEY_CTRL, vk);
}

// The default is forgotten before it is tried: the user may bind the action to another key while the box is
// open.
void RegisterDefaultKey(int id) {
    ActionRow& action = ActionTable[id];
    if (action.key_mods < 0)
        return;
    const int mods = action.key_mods;
    const int vk = action.vk;
    ClearActionKey(id, ACTION_KEY);
    if (!Bind(id, mods, vk) && !BindWithCtrl(id, mods, vk))
        ReportRefusal(id);
}

void ClearActionKey(int id, DWORD kinds) {
    ActionRow& action = ActionTable[id];
    if (kinds & ACTION_KEY) {
        if (action.vk >= 0)
            UnregisterHotKey(MainWnd, id);
        action.vk = action.key_mods = UNBOUND;
    }
    if (kinds & ACTION_MOUSE)
        action.mouse_btn = action.mouse_mods = UNBOUND;
}

void ClearAllActionKeys() {
    for (int id = 0; id < NUM_ACTIONS; ++id)
        ClearActionKey(id, ACTION_KEY | ACTION_MOUSE);
}

static bool PeekHotkey(HWND window, MSG* message, UINT flags) {
    return PeekMessageA(message, window, WM_HOTKEY, WM_HOTKEY, flags) != 0;
}

// A WM_HOTKEY that another program posts has no combination in lParam, and no keyboard repeats it.
static bool IsRepeat(const MSG& next, WPARAM wParam, LPARAM lParam, DWORD time) {
    return next.message == WM_HOTKEY && next.wParam == wParam && next.lParam == lParam && lParam &&
           next.time - time < REPEAT_TIME;
}

void DropKeyRepeats(HWND window, WPARAM wParam, LPARAM lParam, DWORD time) {
    MSG next;
    while (PeekHotkey(window, &next, PM_NOREMOVE) && IsRepeat(next, wParam, lParam, time)) {
        time = next.time;
        if (PeekHotkey(window, &next, PM_REMOVE) && next.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(next.wParam)); // returned whatever the filter
            return;
        }
    }
}
