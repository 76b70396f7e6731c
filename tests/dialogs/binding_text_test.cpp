#include "dialogs/binding_text.h"

#include <gtest/gtest.h>

namespace {

TEST(ActionLists, AnItemStandsForTheSoManiethRowThatIsOfferedThere) {
    struct {
        int item;
        DWORD flag;
        ActionId row;
    } const cases[] = {
        {0,   ACTION_KEY,   0  },
        {1,   ACTION_KEY,   5  },
        {25,  ACTION_KEY,   30 },
        {102, ACTION_KEY,   122},
        {103, ACTION_KEY,   -1 },
        {-1,  ACTION_KEY,   -1 },
        {0,   ACTION_MOUSE, 0  },
        {1,   ACTION_MOUSE, 1  },
        {21,  ACTION_MOUSE, 30 },
        {78,  ACTION_MOUSE, 120},
        {79,  ACTION_MOUSE, -1 },
        {-1,  ACTION_MOUSE, -1 },
        {0,   0,            -1 },
    };
    for (const auto& [item, flag, row] : cases)
        EXPECT_EQ(RowOfListItem(item, flag), row) << item << " of " << flag;
    EXPECT_EQ(NumListItems(ACTION_KEY), 103);
    EXPECT_EQ(NumListItems(ACTION_MOUSE), 79);

    ActionTable[5].flags = ACTION_OFF;
    ActionTable[6].flags = ACTION_OFF | ACTION_KEY; // off only if it is nothing else
    EXPECT_EQ(RowOfListItem(1, ACTION_KEY), 6);
    EXPECT_EQ(NumListItems(ACTION_KEY), 102);
}

TEST(BindingText, AKeyReadsByItsNameOrAsItsCharacter) {
    struct {
        int vk;
        const char* text;
    } const cases[] = {
        {VK_SPACE, "Space"},
        {VK_LEFT,  "Left" },
        {VK_UP,    "Up"   },
        {VK_RIGHT, "Right"},
        {VK_DOWN,  "Down" },
        {VK_F1,    "F1"   },
        {VK_F12,   "F12"  },
        {VK_F13,   "|"    },
        {VK_TAB,   "\t"   },
        {'A',      "A"    },
        {'0',      "0"    },
        {305,      "1"    }, // Shift in its high byte
        {0,        ""     },
    };
    for (const auto& [vk, wanted] : cases) {
        char text[KEY_TEXT_ROOM];
        KeyText(text, vk);
        EXPECT_STREQ(text, wanted) << vk;
    }
}

TEST(BindingText, ABindingReadsAsItsFlagsAndItsKeyOrButtons) {
    struct {
        int mods, key;
        const char *hotkey, *mouse;
    } const cases[] = {
        {UNBOUND,            UNBOUND,   "<hotkey undefined>", "<mkey undefined>"},
        {UNBOUND,            0,         "<hotkey undefined>", "<mkey undefined>"},
        {0,                  UNBOUND,   "",                   ""                },
        {0,                  VK_F1 + 4, "F5",                 "MBRB"            }, // 116: 64, 32, 16, 4
        {0,                  LBUTTON,   "\b",                 "LB"              },
        {KEY_SHIFT,          MBUTTON,   "S-Space",            "S-MB"            },
        {KEY_CTRL | KEY_ALT, RBUTTON,   "C-A-\x10",           "C-A-RB"          },
        {127,                56,        "S-C-A-W-8",          "S-C-A-W-LBMBRB"  },
        {KEY_WIN,            1,         "W-\x01",             "W-"              },
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
