// Bindings of rows: recording and clearing them, and registering the global hotkeys.
#pragma once

#include "actions/action_table.h"

// Binds a row. `kind` with ACTION_MOUSE stores a mouse combination (`key` is a sum of button flags); any
// other kind registers a hotkey on MainWnd and stores what was registered. The caller clears an older binding
// first. 1 if stored; 0 if `mods` or `key` is negative, silently, or if the platform refuses, which the user
// is told.
int SetActionKey(HWND window, ActionId row, DWORD kind, int mods, int key);

// Clears the kinds of binding in the mask `kinds` (ACTION_KEY, ACTION_MOUSE). Always 1.
int ClearActionKey(HWND window, ActionId row, DWORD kinds);

void ClearAllActionKeys(HWND window);

// Pure but for the keyboard's layout: the virtual key for a key value as rows and lists hold it, with the
// shift state of VkKeyScanA in the high byte, or -1. `key` is overwritten with the value that was looked up.
int VirtualKey(int* key);

// Pure: KEY_ flags as RegisterHotKey wants them; others are dropped.
UINT HotkeyModifiers(int mods);
