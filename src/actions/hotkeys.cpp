// Bindings of rows.
#include "actions/hotkeys.h"

#include "core/state.h"

#include <cstdio>

namespace {

struct ModifierPair {
    int flag;
    UINT modifier;
};

} // namespace

static const ModifierPair Modifiers[] = {
    {KEY_CTRL,  MOD_CONTROL},
    {KEY_SHIFT, MOD_SHIFT  },
    {KEY_WIN,   MOD_WIN    },
    {KEY_ALT,   MOD_ALT    },
};

UINT HotkeyModifiers(int mods) {
    UINT modifiers = 0;
    for (const ModifierPair& pair : Modifiers)
        if (mods & pair.flag)
            modifiers |= pair.modifier;
    return modifiers;
}

// Keys that are virtual keys already; all others are characters.
static int IsVirtualKey(int key) {
    return key == VK_SPACE || (key >= VK_LEFT && key <= VK_DOWN) || (key >= VK_F1 && key <= VK_F12);
}

int VirtualKey(int* key) {
    if (IsVirtualKey(*key))
        return *key;
    if (*key > 256)
        *key -= 256;
    if (*key >= 'A' && *key <= 'Z')
        *key += 'a' - 'A';
    return VkKeyScanA(static_cast<char>(*key));
}

static void ReportRefusal(ActionId row) {
    const DWORD error = GetLastError();
    char text[256];
    const int length = std::snprintf(text, sizeof text, "Hotkey registeration failed (%d): \n\t\"%s\" (%d)",
                                     static_cast<int>(error), ActionTable[row].desc, row);
    if (error == ERROR_HOTKEY_ALREADY_REGISTERED)
        std::snprintf(text + length, sizeof text - static_cast<std::size_t>(length),
                      "\nAnother program has already registered the hotkey combination.");
    MessageBoxA(nullptr, text, "Error", MB_OK);
}

static int BindHotkey(ActionId row, int mods, int vk) {
    if (!RegisterHotKey(MainWnd, row, HotkeyModifiers(mods), static_cast<UINT>(vk))) {
        ReportRefusal(row);
        return 0;
    }
    ActionTable[row].key_mods = mods;
    ActionTable[row].vk = vk;
    return 1;
}

int SetActionKey(HWND, ActionId row, DWORD kind, int mods, int key) {
    if (mods < 0 || key < 0)
        return 0;
    const int vk = VirtualKey(&key);
    if (!(kind & ACTION_MOUSE))
        return BindHotkey(row, mods, vk);
    ActionTable[row].mouse_mods = mods;
    ActionTable[row].mouse_btn = key;
    return 1;
}

// A failed release is not reported: five rows start with a key value of 0 and never had a hotkey.
int ClearActionKey(HWND, ActionId row, DWORD kinds) {
    ActionRow& action = ActionTable[row];
    if (kinds & ACTION_KEY) {
        // A character that the keyboard does not have is registered as the key -1.
        if (action.vk >= 0 || action.key_mods >= 0)
            UnregisterHotKey(MainWnd, row);
        action.vk = action.key_mods = UNBOUND;
    }
    if (kinds & ACTION_MOUSE)
        action.mouse_btn = action.mouse_mods = UNBOUND;
    return 1;
}

void ClearAllActionKeys(HWND window) {
    for (ActionId row = 0; row < NUM_ACTIONS; ++row)
        ClearActionKey(window, row, ACTION_KEY | ACTION_MOUSE);
}
