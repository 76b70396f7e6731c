// The combinations that a new user finds.
#include "actions/default_bindings.h"

#include "actions/hotkeys.h"
#include "settings/actions_file.h"
#include "settings/ini.h"

namespace {

struct Binding {
    ActionId row;
    DWORD kind;
    int mods;
    int key;
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
