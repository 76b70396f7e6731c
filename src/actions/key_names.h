// The keys that a user can choose for a hotkey, in the order in which lists offer them.
#pragma once

struct KeyName {
    const char* name;
    int vk; // virtual key
};

constexpr int NUM_KEY_NAMES = 66;

// The last row marks the end: vk is -1, and name is not a valid pointer.
extern const KeyName KeyNames[NUM_KEY_NAMES + 1];
