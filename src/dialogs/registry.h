// The dialogs that are open: each template once, all of them modeless.
#pragma once

#include "core/platform.h"

// Templates, by their number in the program's resources.
enum DialogId {
    DIALOG_OPTIONS = 101,
    DIALOG_HELP = 106,
    DIALOG_ABOUT = 107,
    DIALOG_NAME_REGION = 108,
    DIALOG_RESIZE_WINDOWS = 111,
    DIALOG_ACTIONS = 113,
    DIALOG_CUSTOMIZE_MENU = 116,
    DIALOG_FIND = 117, // of windows or of regions: only one of the two is open at a time
    DIALOG_TRANSPARENCY = 120,
};

struct DialogSlot {
    HWND handle; // null: closed
    int resource_id;
};

constexpr int NUM_DIALOGS = 10;

// Closed by a row with number -1 that no search reaches.
extern DialogSlot DialogSlots[NUM_DIALOGS + 1];

// Who is offered the keys that move and press inside a dialog. A dialog that takes them writes its own entry
// when it opens; CloseDialog clears it.
enum KeyboardEntry {
    KEYS_ABOUT,
    KEYS_HELP,
    KEYS_OPTIONS,
    KEYS_ACTIONS,
    KEYS_NAME_REGION = 5,
    KEYS_CUSTOMIZE_MENU,
    KEYS_FIND_WINDOW,
    KEYS_FIND_REGION,
};

extern HWND DialogHandles[NUM_DIALOGS];

// Opens the dialog, or raises it near the middle of the screen as it stands, with what was typed. `parent`
// owns it. 1 if it is open then; 0 for a number without a slot or a template that cannot be created.
int OpenDialog(HWND parent, int resource_id, DLGPROC procedure);

// Ends the dialog and destroys its window; dialogs that it owns stay open. To be called by the dialog itself,
// which has nothing left to do then. 0 if that window is not the one open: it beeps for a number without a
// slot.
int CloseDialog(HWND dialog, int resource_id, INT_PTR result);

// 1 if a dialog took the message, which then goes nowhere else.
int IsOpenDialogMessage(MSG* message);
