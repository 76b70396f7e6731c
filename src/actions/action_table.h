// The 123 actions: everything that the user can command, with its bindings and its setting.
#pragma once

#include "core/platform.h"

using ActionId = int; // a row number, 0 to 122

constexpr int NUM_ACTIONS = 123;

// Where a row is offered.
constexpr DWORD ACTION_KEY = 128;   // may be bound to a key and placed in the menu
constexpr DWORD ACTION_MOUSE = 256; // may be bound to a mouse combination on the map
constexpr DWORD ACTION_OFF = 512;   // nowhere; it still runs, as from a binding in the settings file

// Parts of a combination, the same in rows, arguments and the settings file.
constexpr int KEY_SHIFT = 1;
constexpr int KEY_ALT = 2;
constexpr int KEY_CTRL = 4;
constexpr int LBUTTON = 8;
constexpr int RBUTTON = 16;
constexpr int MBUTTON = 32;
constexpr int KEY_WIN = 64;

constexpr int UNBOUND = -1;

struct ActionRow {
    int id;
    DWORD flags;
    const char* desc; // shown in menus and lists
    int mouse_mods;   // sum of KEY_ flags, or UNBOUND
    int mouse_btn;    // a button flag, or UNBOUND
    int key_mods;     // sum of KEY_ flags, or UNBOUND
    int vk;           // virtual key of the hotkey, or UNBOUND
    int value;        // the row's setting: what a toggle flips and the menu shows as a check mark
    char text[32];    // scratch for the printable form of a binding
};

// Rows 0 to 122, and a closing row that no loop reaches.
extern ActionRow ActionTable[NUM_ACTIONS + 1];

// Rows that other code names: settings that it reads, or rows that it answers for.
enum NamedRow : ActionId {
    ROW_REGION = 3,
    ROW_CENTER_ON_ACTIVE = 21,
    ROW_DRAG_TOOLWIN = 38,
    ROW_DRAG_WINDOW = 39,
    ROW_SHRINK_WIDTH = 42,
    ROW_EXPAND_WIDTH = 43,
    ROW_SHRINK_HEIGHT = 44,
    ROW_EXPAND_HEIGHT = 45,
    ROW_TOOLTIP = 70,
    ROW_LOAD_SETTINGS = 71,
    ROW_SAVE_SETTINGS = 72,
    ROW_SNAP = 73,
    ROW_SHOW_TOOLWIN = 77,
    ROW_KEEP_ACTIVE_IN_VIEW = 79,
    ROW_RESTORE_MAXIMIZED = 82,
    ROW_LOCK_WORK_STATION = 84,
    ROW_FOLLOW_MOUSE = 85,
    ROW_QUICK_REDRAW = 89,
    ROW_SUPPRESS_WHEN_DRAGGING = 90,
    ROW_SUPPRESS_FOLLOW = 91,
    ROW_SHIFT_SUPPRESS = 114,
    ROW_XWIN_MOUSE = 115,
    ROW_TRANSPARENCY = 116,
    ROW_IGNORE_TOOLWINS = 122,
};
