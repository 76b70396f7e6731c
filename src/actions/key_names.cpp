// The keys that a user can choose for a hotkey.
#include "actions/key_names.h"

#include "core/platform.h"

static const char* const NO_NAME = reinterpret_cast<const char*>(static_cast<INT_PTR>(-1));

// clang-format off
const KeyName KeyNames[NUM_KEY_NAMES + 1] = {
    {"Left", VK_LEFT}, {"Right", VK_RIGHT}, {"Up", VK_UP}, {"Down", VK_DOWN},
    {"Space", VK_SPACE}, {"Tab", VK_TAB},
    {"F1", VK_F1}, {"F2", VK_F1 + 1}, {"F3", VK_F1 + 2}, {"F4", VK_F1 + 3},
    {"F5", VK_F1 + 4}, {"F6", VK_F1 + 5}, {"F7", VK_F1 + 6}, {"F8", VK_F1 + 7},
    {"F9", VK_F1 + 8}, {"F10", VK_F1 + 9}, {"F11", VK_F1 + 10}, {"F12", VK_F1 + 11},
    {"0", '0'}, {"1", '1'}, {"2", '2'}, {"3", '3'}, {"4", '4'},
    {"5", '5'}, {"6", '6'}, {"7", '7'}, {"8", '8'}, {"9", '9'},
    {"A", 'A'}, {"B", 'B'}, {"C", 'C'}, {"D", 'D'}, {"E", 'E'}, {"F", 'F'},
    {"G", 'G'}, {"H", 'H'}, {"I", 'I'}, {"J", 'J'}, {"K", 'K'}, {"L", 'L'},
    {"M", 'M'}, {"N", 'N'}, {"O", 'O'}, {"P", 'P'}, {"Q", 'Q'}, {"R", 'R'},
    {"S", 'S'}, {"T", 'T'}, {"U", 'U'}, {"V", 'V'}, {"W", 'W'}, {"X", 'X'},
    {"Y", 'Y'}, {"Z", 'Z'},
    {"F13", VK_F1 + 12}, {"F14", VK_F1 + 13}, {"F15", VK_F1 + 14}, {"F16", VK_F1 + 15},
    {"F17", VK_F1 + 16}, {"F18", VK_F1 + 17}, {"F19", VK_F1 + 18}, {"F20", VK_F1 + 19},
    {"F21", VK_F1 + 20}, {"F22", VK_F1 + 21}, {"F23", VK_F1 + 22}, {"F24", VK_F1 + 23},
    {NO_NAME, -1},
};
// clang-format on
