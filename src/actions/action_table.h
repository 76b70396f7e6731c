// The actions: what is constant about each, and what the user can change.
#pragma once

#include "actions/action_ids.h"
#include "core/platform.h"

#include <climits>

// Where an action is offered.
constexpr DWORD ACTION_KEY = 128;   // may be bound to a key and placed in the menu
constexpr DWORD ACTION_MOUSE = 256; // may be bound to a mouse combination on the map
constexpr DWORD ACTION_OFF = 512;   // nowhere; it still runs, for example from a binding in the settings file

// Parts of a combination, the same in tables, arguments and the settings file.
constexpr int KEY_SHIFT = 1;
constexpr int KEY_ALT = 2;
constexpr int KEY_CTRL = 4;
constexpr int LBUTTON = 8;
constexpr int RBUTTON = 16;
constexpr int MBUTTON = 32;
constexpr int KEY_WIN = 64;

constexpr int UNBOUND = -1;
constexpr int NO_ACTION = -1; // where a number of an action is expected

struct ActionPoint {
    int x, y; // map or desktop pixels
};

constexpr int NO_REGION = INT_MIN; // outside the range of id - FIRST_REGION_ID

// What a handler is called with.
struct ActionCall {
    HWND window; // what the action repaints, or uses as owner
    int id;
    int argument;      // from the action's definition
    HWND target;       // the window that commands on the active window act on; null if there is none
    ActionPoint point; // map pixels: where the mouse was pressed; (0, 0) for a key or the menu
    int region;        // index of the region to jump to, or NO_REGION
};

struct KeyBinding {
    int mods; // sum of KEY_ flags, or UNBOUND
    int vk;   // virtual key
};

struct MouseBinding {
    int mods;   // sum of KEY_ flags, or UNBOUND
    int button; // a button flag; other numbers never match a press
};

constexpr KeyBinding NO_KEY = {UNBOUND, UNBOUND};
constexpr MouseBinding NO_MOUSE = {UNBOUND, UNBOUND};

// Everything constant about an action.
struct ActionDef {
    ActionId id;
    DWORD flags;                             // where it is offered if the system has what it needs
    int start;                               // its value before any settings are loaded
    void (*handler)(const ActionCall& call); // null: running it shows a message box
    int argument;                            // what distinguishes actions that share a handler
    const char* text;
    KeyBinding key = NO_KEY; // default bindings
    MouseBinding mouse = NO_MOUSE;
};

extern const ActionDef ActionDefs[NUM_ACTIONS];

// What changes at run time.
struct ActionRow {
    int id;
    DWORD flags;
    const char* desc; // shown in menus and lists
    int mouse_mods;   // sum of KEY_ flags, or UNBOUND
    int mouse_btn;    // a button flag, or UNBOUND
    int key_mods;     // sum of KEY_ flags, or UNBOUND
    int vk;           // virtual key of the hotkey, or UNBOUND
    int value;        // the action's setting: what a toggle flips and the menu shows as a check mark
    char text[32];    // buffer for the text of a binding
};

// One row for each action, and a last row that no loop reads.
extern ActionRow ActionTable[NUM_ACTIONS + 1];

// Fills the table with the start values and default bindings. Registers nothing.
void FillActionTable();

// Whether the action's setting is on.
inline bool IsOn(ActionId id) {
    return ActionTable[id].value != 0;
}
