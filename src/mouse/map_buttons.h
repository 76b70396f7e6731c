// Mouse presses on the map: which row a combination of keys and buttons is bound to, and running it.
#pragma once

#include "actions/action_table.h"
#include "core/coordinates.h"

constexpr DWORD KEYS_AND_BUTTONS = ACTION_KEY | ACTION_MOUSE;

// The KEY_ and button flags that are down as of the input message in hand: modifier keys if `mask` holds
// ACTION_KEY, buttons if it holds ACTION_MOUSE. Never KEY_WIN.
int GetHeldFlags(DWORD mask);

// Finds the first row bound to the modifier keys in `flags` and a button, and runs it if `bDispatch` is set.
// `button` is a button flag, 0 for none, or a number: 1 left, 2 right, 4 middle; a button in `flags` goes
// before it. `point` (map coordinates, may be null) is handed to the row, which may overwrite it. A `kind`
// without ACTION_MOUSE finds nothing. The row, or 0: no row is bound, or row 0 is.
int MatchMouseAction(HWND window, DWORD kind, int flags, int button, ActionPoint* point, int bDispatch);

// Pure: the button that a combination is about. Of several in `flags` the middle one beats the right one, and
// that one the left one; other values of `button` stay as they are.
int MatchedButton(int flags, int button);

// The handlers of the map's button messages. Between press and release the map has the capture.
LRESULT OnMapLeftPress(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT OnMapRightPress(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT OnMapMiddlePress(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT OnMapMiddleRelease(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT OnMapRelease(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
