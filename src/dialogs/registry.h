// The open dialogs: each template at most once, all of them modeless.
#pragma once

#include "actions/action_table.h"

enum DialogId : int {
    DIALOG_ABOUT,
    DIALOG_HELP,
    DIALOG_OPTIONS,
    DIALOG_ACTIONS,
    DIALOG_RESIZE_WINDOWS,
    DIALOG_NAME_REGION,
    DIALOG_CUSTOMIZE_MENU,
    DIALOG_FIND_WINDOW,
    DIALOG_FIND_REGION,
    DIALOG_TRANSPARENCY,
    NUM_DIALOGS
};

// Everything constant about a dialog.
struct DialogDef {
    DialogId id;
    int resource_id; // of its template
    bool bKeyboard;  // whether Tab, Enter and Escape work in it
    DLGPROC procedure;
};

extern const DialogDef DialogDefs[NUM_DIALOGS];

extern HWND DialogHandles[NUM_DIALOGS]; // null: closed

// Opens the dialog, owned by `parent`. If one with the same template is open, moves it near the middle of the
// screen and raises it instead, unchanged. False if it cannot be created.
bool OpenDialog(HWND parent, DialogId id);

// Handler: opens the dialog whose DialogId is the argument.
void OpenDialogAction(const ActionCall& call);

// Closes a dialog and destroys its window; dialogs that it owns stay open. Call it last in a handler. Does
// nothing if the window is not an open dialog.
void CloseDialog(HWND dialog);

// Offers the message to the open dialogs with keyboard handling. True if one processed it.
bool IsOpenDialogMessage(MSG* message);
