// The user's mouse. All places are screen pixels.
#pragma once

#include "user.h"

#include <algorithm>

// Puts the pointer there, and waits until every program is told so.
void MoveMouse(POINT to);

// Moves as the device does: hooks see it at once, though the pointer of the screen below may stay.
void SendMouse(LONG x, LONG y);

// Presses and releases a button where the mouse is; MOUSEEVENTF_ values. For the wheel, two notches.
void Click(DWORD press, DWORD release);

// A thread that moves the mouse about in a small circle without a pause, until it is stopped.
void StartShakingMouse(POINT around);
void StopShakingMouse();
