// The keys that a user can choose for a hotkey, in the order in which lists offer them.
#pragma once

struct KeyName {
    const char* name;
    int vk; // virtual key
};

constexpr int NUM_KEY_NAMES = 66;

// Closed by a row whose two fields are both -1; its name is no text.
extern const KeyName KeyNames[NUM_KEY_NAMES + 1];
