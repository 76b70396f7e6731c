// Bindings of actions: registering hotkeys, and clearing hotkeys and mouse combinations.
#pragma once

#include "actions/action_table.h"

// Registers a hotkey for the action on MainWnd and records it. `key` is a value from KeyNames or the settings
// file. Clear an older hotkey first. False, with the action unchanged, if `mods` or `key` is negative, or if
// Windows refuses, which a message box reports.
bool SetActionKey(int id, int mods, int key);

// Registers the hotkey that the table holds for the action. RegisterRecordedKey is for bindings from the
// settings file: a refused one stays recorded for the next save. RegisterDefaultKey is for defaults: if
// another program holds one with Win alone, the action gets it with Ctrl+Win; a refused one becomes unbound.
void RegisterRecordedKey(int id);
void RegisterDefaultKey(int id);

// Clears the kinds of binding in the mask `kinds` (ACTION_KEY, ACTION_MOUSE) and releases the hotkey.
void ClearActionKey(int id, DWORD kinds);

// Clears all hotkeys and mouse combinations and releases the hotkeys.
void ClearAllActionKeys();

// Discards what keyboard repeat has queued since the WM_HOTKEY with these arguments and time, so that an
// action does not run on after the key is released. Separate presses are kept.
void DropKeyRepeats(HWND window, WPARAM wParam, LPARAM lParam, DWORD time);

// The virtual key for a key value, with the shift state of VkKeyScanA in the high byte; -1 if the keyboard
// layout lacks the character.
int VirtualKey(int key);
