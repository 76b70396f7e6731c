// The user's mouse. All places are screen pixels.
#pragma once

#include "user.h"

#include <algorithm>

// Puts the pointer there, and waits until every program is told so.
void MoveMouse(POINT to);

// Moves as the device does: hooks see it at once, though the pointer of the screen below may stay.
void SendMouse(LONG x, LONG y);

// The same, and the pointer stays there: a move that was only sent is forgotten before a busy machine has
// handled it.
void PushMouseTo(POINT to);

// Where a window is after the mouse has come to this place. A single move is lost now and then under Wine.
Place AfterMoving(HWND window, POINT to);
POINT MousePlace();

// Presses and releases a button where the mouse is; MOUSEEVENTF_ values. For the wheel, two notches.
void Click(DWORD press, DWORD release);

// The same while a key is held; and one half of a click.
void ClickHolding(WORD key, DWORD press, DWORD release);
void PressButton(DWORD flag);

// The place on the screen where Quorl's map shows this point of the desktop, and the desktop point that the
// map gives for a place on the screen. The desktop is four screens by two.
POINT OnMap(LONG x, LONG y);
POINT OnDesktop(POINT at);

// A thread that moves the mouse about in a small circle without a pause, until it is stopped.
void StartShakingMouse(POINT around);
void StopShakingMouse();
