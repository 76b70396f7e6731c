#include "dialogs/binding_text.h"

#include <gtest/gtest.h>

namespace {

TEST(ActionLists, AnItemStandsForTheSoManiethRowThatIsOfferedThere) {
    EXPECT_EQ(RowOfListItem(102, ACTION_KEY), 122);
    EXPECT_EQ(RowOfListItem(103, ACTION_KEY), -1);
    EXPECT_EQ(RowOfListItem(-1, ACTION_KEY), -1);
    EXPECT_EQ(RowOfListItem(78, ACTION_MOUSE), 120);

    ActionTable[5].flags = ACTION_OFF;
    ActionTable[6].flags = ACTION_OFF | ACTION_KEY; // off only if it is nothing else
    EXPECT_EQ(RowOfListItem(1, ACTION_KEY), 6);
    EXPECT_EQ(NumListItems(ACTION_KEY), 102);
}

TEST(BindingText, AKeyReadsByItsNameOrAsItsCharacter) {
    const auto read = [](int vk) {
        char text[KEY_TEXT_ROOM];
        KeyText(text, vk);
        return std::string(text);
    };
    EXPECT_EQ(read(VK_SPACE), "Space");
    EXPECT_EQ(read(VK_LEFT), "Left");
    EXPECT_EQ(read(VK_UP), "Up");
    EXPECT_EQ(read(VK_RIGHT), "Right");
    EXPECT_EQ(read(VK_DOWN), "Down");
    EXPECT_EQ(read(VK_F1), "F1");
    EXPECT_EQ(read(VK_F12), "F12");
    EXPECT_EQ(read(VK_F13), "|");
    EXPECT_EQ(read(305), "1") << "Shift in its high byte";
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
        {KEY_WIN, 0,         "W-",                 "W-"              },
    };
    for (const auto& [mods, key, hotkey, mouse] : cases) {
        ActionRow row{};
        row.mouse_mods = row.key_mods = mods;
        row.mouse_btn = row.vk = key;
        EXPECT_STREQ(HotkeyText(row), hotkey) << mods << " " << key;
        EXPECT_STREQ(MouseText(row), mouse) << mods << " " << key;
        EXPECT_EQ(MouseText(row), row.text) << "it is built in the row";
    }
}

} // namespace
