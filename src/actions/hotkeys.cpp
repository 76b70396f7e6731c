// Bindings of rows.
#include "actions/hotkeys.h"

#include "core/state.h"
#include "settings/actions_file.h"
#include "settings/ini.h"

#include <cstdio>

namespace {

struct Binding {
    ActionId row;
    DWORD kind;
    int mods;
    int key;
};

struct ModifierPair {
    int flag;
    UINT modifier;
};

} // namespace

static const int MODS_ALL = KEY_SHIFT | KEY_ALT | KEY_CTRL;

static const Binding DefaultBindings[] = {
    {2,  ACTION_MOUSE, 0,                    MBUTTON },
    {38, ACTION_MOUSE, 0,                    LBUTTON },
    {4,  ACTION_MOUSE, KEY_SHIFT,            LBUTTON },
    {39, ACTION_MOUSE, KEY_SHIFT | KEY_CTRL, LBUTTON },
    {40, ACTION_MOUSE, KEY_ALT,              1       }, // no button flag: never matches a press
    {41, ACTION_MOUSE, KEY_ALT,              2       },
    {0,  ACTION_MOUSE, 0,                    RBUTTON },
    {28, ACTION_KEY,   KEY_ALT | KEY_CTRL,   VK_LEFT },
    {30, ACTION_KEY,   KEY_ALT | KEY_CTRL,   VK_RIGHT},
    {29, ACTION_KEY,   KEY_ALT | KEY_CTRL,   VK_UP   },
    {31, ACTION_KEY,   KEY_ALT | KEY_CTRL,   VK_DOWN },
    {7,  ACTION_KEY,   MODS_ALL,             VK_LEFT },
    {5,  ACTION_KEY,   MODS_ALL,             VK_RIGHT},
    {9,  ACTION_KEY,   MODS_ALL,             VK_UP   },
    {11, ACTION_KEY,   MODS_ALL,             VK_DOWN },
    {40, ACTION_KEY,   KEY_WIN,              VK_DOWN },
    {41, ACTION_KEY,   KEY_WIN,              VK_UP   },
    {0,  ACTION_KEY,   MODS_ALL,             VK_SPACE},
};

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

// A default that the shell holds would be reported at every start, only to be replaced at once.
static int IsReplacedAtOnce(const Binding& binding) {
    return binding.kind == ACTION_KEY && HasActionLine(SETTINGS_FILE, binding.row);
}

void SetDefaultBindings(HWND window) {
    const int bLoads = WillLoadSettings(SETTINGS_FILE);
    for (const Binding& binding : DefaultBindings)
        if (!bLoads || !IsReplacedAtOnce(binding))
            SetActionKey(window, binding.row, binding.kind, binding.mods, binding.key);
}
