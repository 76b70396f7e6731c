// Actions that change a setting or the program itself.
#pragma once

#include "actions/action_table.h"

// Handler: toggles the action's value between 0 and 1. Always 0.
int ToggleValue(const ActionCall& call);

// Handler for actions that do nothing here. Returns the argument.
int DoNothing(const ActionCall& call);

// Handler: adds the argument to the border, within its limits. Always 1.
int ChangeBorder(const ActionCall& call);

// Handler. 0 if the system lacks the function.
int LockStation(const ActionCall& call);

// Handler. 1 if every program answered.
int StartScreenSaver(const ActionCall& call);
