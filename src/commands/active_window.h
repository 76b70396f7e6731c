// Commands on the active window of any program: moving, centring, making topmost, locking in view.
#pragma once

#include "actions/action_table.h"
#include "windows/other_window.h"

// Handler: moves the active window by a step (the argument), clamped to the desktop. A window that does not
// answer in time stays.
void MoveActiveWindow(const ActionCall& call);

// Handler: moves it to an edge of the screen; the argument is a Direction.
void MoveActiveToEdge(const ActionCall& call);

// Handler: moves it to the middle of the screen.
void CenterActiveWindow(const ActionCall& call);

// Handler: raises the active window above all others, or puts it back among them.
void ToggleActiveTopmost(const ActionCall& call);

// Handler: locks the active window in view (argument 1) or unlocks it (0), with a sequence of beeps. Does
// nothing if the window is not managed.
void LockActiveWindow(const ActionCall& call);

// Handler: flashes call.window once.
void FlashGivenWindow(const ActionCall& call);
