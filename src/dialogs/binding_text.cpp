// Which rows the lists of the Actions dialog hold, and how their bindings read there.
#include "dialogs/binding_text.h"

#include <cstdio>
#include <cstring>

namespace {

struct FlagText {
    int flag;
    const char* text;
};

struct NamedKey {
    int vk;
    const char* name;
};

} // namespace

static const FlagText ModifierTexts[] = {
    {KEY_SHIFT, "S-"},
    {KEY_CTRL,  "C-"},
    {KEY_ALT,   "A-"},
    {KEY_WIN,   "W-"},
};

static const FlagText ButtonTexts[] = {
    {LBUTTON, "LB"},
    {MBUTTON, "MB"},
    {RBUTTON, "RB"},
};

static const NamedKey NamedKeys[] = {
    {VK_SPACE, "Space"},
    {VK_LEFT,  "Left" },
    {VK_UP,    "Up"   },
    {VK_RIGHT, "Right"},
    {VK_DOWN,  "Down" },
};

static int IsOffered(ActionId row, DWORD flag) {
    return ActionTable[row].flags != ACTION_OFF && (ActionTable[row].flags & flag);
}

ActionId RowOfListItem(int item, DWORD flag) {
    int count = 0;
    for (ActionId row = 0; row < NUM_ACTIONS; ++row)
        if (IsOffered(row, flag) && count++ == item)
            return row;
    return -1;
}

int NumListItems(DWORD flag) {
    int count = 0;
    for (ActionId row = 0; row < NUM_ACTIONS; ++row)
        count += IsOffered(row, flag);
    return count;
}

void KeyText(char (&text)[KEY_TEXT_ROOM], int vk) {
    if (vk >= VK_F1 && vk <= VK_F12) {
        std::snprintf(text, sizeof text, "F%d", vk - VK_F1 + 1);
        return;
    }
    for (const NamedKey& key : NamedKeys) {
        if (key.vk != vk)
            continue;
        std::snprintf(text, sizeof text, "%s", key.name);
        return;
    }
    std::snprintf(text, sizeof text, "%c", vk);
}

// All prefixes and buttons together are 14 characters: they fit.
template <int COUNT>
static void AppendFlags(char (&text)[sizeof ActionRow::text], const FlagText (&rows)[COUNT], int flags) {
    for (const FlagText& row : rows)
        if (flags & row.flag)
            std::strcat(text, row.text);
}

const char* HotkeyText(ActionRow& row) {
    if (row.key_mods < 0)
        return std::strcpy(row.text, "<hotkey undefined>");
    row.text[0] = 0;
    AppendFlags(row.text, ModifierTexts, row.key_mods);
    char key[KEY_TEXT_ROOM] = "";
    if (row.vk >= 0)
        KeyText(key, row.vk);
    return std::strcat(row.text, key);
}

const char* MouseText(ActionRow& row) {
    if (row.mouse_mods < 0)
        return std::strcpy(row.text, "<mkey undefined>");
    row.text[0] = 0;
    AppendFlags(row.text, ModifierTexts, row.mouse_mods);
    if (row.mouse_btn >= 0)
        AppendFlags(row.text, ButtonTexts, row.mouse_btn);
    return row.text;
}
