// Actions that change a setting or the program itself.
#pragma once

#include "actions/action_table.h"

// Handler: toggles the action's value between 0 and 1.
void ToggleValue(const ActionCall& call);

// Handler for actions that do nothing here.
void DoNothing(const ActionCall& call);

// Handler: adds the argument to the border, within its limits.
void ChangeBorder(const ActionCall& call);

// Handler. Does nothing if the system lacks the function.
void LockStation(const ActionCall& call);

// Handler: asks every program for it.
void StartScreenSaver(const ActionCall& call);
