#include "dialogs/binding_text.h"

#include <cstdio>

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
    {KEY_CTRL, "C-"},
    {KEY_ALT, "A-"},
    {KEY_WIN, "W-"},
};

static const FlagText ButtonTexts[] = {
    {LBUTTON, "LB"},
    {MBUTTON, "MB"},
    {RBUTTON, "RB"},
};

static const NamedKey NamedKeys[] = {
    {VK_SPACE, "Space"}, {VK_LEFT, "Left"}, {VK_UP, "Up"}, {VK_RIGHT, "Right"}, {VK_DOWN, "Down"},
};

static bool IsOffered(int row, DWORD flag) {
    return ActionTable[row].flags != ACTION_OFF && (ActionTable[row].flags & flag);
}

int ActionAtItem(int item, DWORD flag) {
    int count = 0;
    for (int row = 0; row < NUM_ACTIONS; ++row)
        if (IsOffered(row, flag) && count++ == item)
            return row;
    return NO_ACTION;
}

int NumListItems(DWORD flag) {
    int count = 0;
    for (int row = 0; row < NUM_ACTIONS; ++row)
        count += IsOffered(row, flag);
    return count;
}

void KeyText(char (&text)[KEY_TEXT_SIZE], int vk) {
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

// Appends to a text of `length` characters and returns the new length. All prefixes and buttons together are
// 14 characters, so they always fit.
template <int COUNT>
static int AppendFlags(char (&text)[sizeof ActionRow::text], int length, const FlagText (&rows)[COUNT],
                       int flags) {
    for (const FlagText& row : rows)
        if (flags & row.flag)
            length +=
                std::snprintf(text + length, sizeof text - static_cast<std::size_t>(length), "%s", row.text);
    return length;
}

const char* HotkeyText(ActionRow& row) {
    if (row.key_mods < 0) {
        std::snprintf(row.text, sizeof row.text, "<hotkey undefined>");
        return row.text;
    }
    char key[KEY_TEXT_SIZE] = "";
    if (row.vk >= 0)
        KeyText(key, row.vk);
    const int length = AppendFlags(row.text, 0, ModifierTexts, row.key_mods);
    std::snprintf(row.text + length, sizeof row.text - static_cast<std::size_t>(length), "%s", key);
    return row.text;
}

const char* MouseText(ActionRow& row) {
    if (row.mouse_mods < 0) {
        std::snprintf(row.text, sizeof row.text, "<mkey undefined>");
        return row.text;
    }
    row.text[0] = 0;
    const int length = AppendFlags(row.text, 0, ModifierTexts, row.mouse_mods);
    if (row.mouse_btn >= 0)
        AppendFlags(row.text, length, ButtonTexts, row.mouse_btn);
    return row.text;
}
