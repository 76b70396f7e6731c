// The position and size of the map on the screen.
#pragma once

#include "actions/action_table.h"

constexpr SIZE MIN_TOOLWIN{40, 13}; // pixels
constexpr SIZE MAX_TOOLWIN{32000, 32000};

// Scales the size that the map was created with, which is meant for 96 DPI, to its display. Call once.
void ScaleToolwin();

// Moves the map by a distance in screen pixels, snaps it to the screen's edges if the user has switched that
// on, and shows the result in the status strip. Measures the screen first.
void MoveToolwin(int dx, int dy);

// Handler: moves the map by a step.
void StepToolwin(const ActionCall& call);

// Handler: moves the map's bottom right corner by a step, within its size limits.
void ResizeToolwin(const ActionCall& call);

// Handler: shows or hides the map and records it in the action's value.
void ToggleToolwin(const ActionCall& call);

// Pure: a rectangle moved flush to those edges of the screen that it is closer to than `border` or beyond.
// The size stays; of two opposite edges the far one wins. Screen pixels.
RECT SnapRect(const RECT& rect, int border, int screenW, int screenH);
