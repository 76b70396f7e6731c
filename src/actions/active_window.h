// Commands on the foreground window of any program: moving, centring, topmost, locking in view.
#pragma once

#include "actions/dispatch.h"
#include "scroll/shift.h"

// How MoveActiveWindow moves: by a distance, or to an edge of the screen. The amounts are for the rows alone.
enum MoveKind {
    MOVE_BY = 2,
    TO_TOP = 8,
    TO_BOTTOM = 16,
    TO_LEFT = 32,
    TO_RIGHT = 64,
    AMOUNT_MIN = 256,
    AMOUNT_MAX = 512,
    AMOUNT_SCREEN = 1024,
};

// Moves the foreground window, held inside the desktop; one that does not answer in time stays. Pixels. 0 if
// there is none, else 1.
int MoveActiveWindow(HWND window, int dx, int dy, int how);

// Brings the foreground window to the middle of the screen. 0 if there is none, else 1.
int CenterActiveWindow(HWND window);

// Puts the foreground window above all others, or back among them. Always 1.
int ToggleActiveTopmost(HWND window);

// Locks the foreground window in view (1) or releases it (0), with a ladder of beeps. 0 if it is not managed
// or not in the table yet, else 1.
int LockActiveWindow(HWND window, int lock);

// Pure: the window's place moved in one of the ways of MoveKind; any other way changes nothing.
WindowPlace MovedPlace(WindowPlace place, int dx, int dy, int how, int screenW, int screenH);

// Pure: held inside the whole desktop, the near edges first, so that the far ones win.
WindowPlace KeptOnDesktop(WindowPlace place, const RECT& vdesk, const RECT& quorl);

// The handlers. MoveActive: `with` is an edge, and for a distance that way one of the amounts as well.
int MoveActive(const ActionCall& call);
int CenterActive(const ActionCall& call);
int FlashGivenWindow(const ActionCall& call);
int ToggleTopmost(const ActionCall& call);
int LockActive(const ActionCall& call); // `with` is the lock
