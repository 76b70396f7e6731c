// The rows that open dialogs.
#pragma once

#include "actions/dispatch.h"

// Opens or raises the dialog of the row; the window that the action was given owns it.
int OpenDialogOfRow(const ActionCall& call);

// The same for the Options dialog. Always 1.
int OpenOptions(const ActionCall& call);
