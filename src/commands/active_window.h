// Commands on the active window of any program: moving, centring, making topmost, locking in view.
#pragma once

#include "actions/action_table.h"
#include "windows/other_window.h"

// Handler: moves the active window by a step (the argument), clamped to the desktop. A window that does not
// answer in time stays. 0 if there is no active window, else 1.
int MoveActiveWindow(const ActionCall& call);

// Handler: moves it to an edge of the screen; the argument is a Direction.
int MoveActiveToEdge(const ActionCall& call);

// Handler: moves it to the middle of the screen.
int CenterActiveWindow(const ActionCall& call);

// Handler: raises the active window above all others, or puts it back among them. Always 1.
int ToggleActiveTopmost(const ActionCall& call);

// Handler: locks the active window in view (argument 1) or unlocks it (0), with a sequence of beeps. 0 if the
// window is not managed, else 1.
int LockActiveWindow(const ActionCall& call);

// Handler: flashes call.window once.
int FlashGivenWindow(const ActionCall& call);
