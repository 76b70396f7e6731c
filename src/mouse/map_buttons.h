// Mouse presses on the map: which action a combination of keys and buttons is bound to, and running it.
#pragma once

#include "actions/action_table.h"

// The KEY_ and button flags that were down at the input message being handled. Never KEY_WIN.
int GetHeldFlags();

// The first action bound to the modifier keys in `flags` and a button, or NO_ACTION. `button` is a button
// flag, 0 for none, or a number: 1 left, 2 right, 4 middle; a button in `flags` takes precedence.
int MatchMouseAction(int flags, int button);

// Remembers a mouse message of the map: its client point and MK_ flags, and where the map is on the screen.
// Returns false if all three are as in the last one. Windows sends such a move whenever a window appears or
// disappears under the cursor, and after every press.
bool RecordMouseMessage(HWND map, POINT point, WPARAM keys);

// The handlers of the map's button messages. Between press and release the map has the capture.
LRESULT OnMapLeftPress(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT OnMapRightPress(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT OnMapMiddlePress(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT OnMapMiddleRelease(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT OnMapRelease(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
