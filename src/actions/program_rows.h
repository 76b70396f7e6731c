// The rows that change a setting or leave the view alone.
#pragma once

#include "actions/dispatch.h"

// Flips the row's value between 0 and 1. Always 0; the value takes effect where it is read next.
int ToggleValue(const ActionCall& call);

// Gives `with`.
int DoNothing(const ActionCall& call);

// Adds `with` to the border, held within 1 to 10. Always 1.
int ChangeBorder(const ActionCall& call);

// 0 where the system lacks the function.
int LockStation(const ActionCall& call);

int StartScreenSaver(const ActionCall& call);

int Quit(const ActionCall& call);
