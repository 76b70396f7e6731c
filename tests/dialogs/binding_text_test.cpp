#include "dialogs/binding_text.h"

#include "actions/key_names.h"

#include <gtest/gtest.h>

namespace {

TEST(BindingText, AKeyReadsAsItIsOfferedButForTabAndF13ToF24) {
    int others = 0;
    for (int key = 0; key < NUM_KEY_NAMES; ++key) {
        char text[KEY_TEXT_ROOM];
        KeyText(text, KeyNames[key].vk);
        others += std::string(text) != KeyNames[key].name;
    }
    EXPECT_EQ(others, 1 + 12);
}

TEST(BindingText, ABindingReadsAsItsFlagsAndItsKeyOrButtons) {
    struct {
        int mods, key;
        const char *hotkey, *mouse;
    } const cases[] = {
        {UNBOUND, 0,         "<hotkey undefined>", "<mkey undefined>"},
        {0,       UNBOUND,   "",                   ""                },
        {0,       VK_F1 + 4, "F5",                 "MBRB"            }, // 116: 64, 32, 16, 4
        {127,     56,        "S-C-A-W-8",          "S-C-A-W-LBMBRB"  },
    };
    for (const auto& [mods, key, hotkey, mouse] : cases) {
        ActionRow row{};
        row.mouse_mods = row.key_mods = mods;
        row.mouse_btn = row.vk = key;
        EXPECT_STREQ(HotkeyText(row), hotkey) << mods << " " << key;
        EXPECT_STREQ(MouseText(row), mouse) << mods << " " << key;
    }
}

} // namespace
