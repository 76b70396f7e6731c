// Directions, and the steps in which the view, the map and the active window move.
#pragma once

#include "core/platform.h"

enum Direction : int { DIR_NONE = 0, DIR_UP = 8, DIR_DOWN = 16, DIR_LEFT = 32, DIR_RIGHT = 64 };

// Lengths of a step: minscroll, maxscroll, or the screen.
constexpr int BY_MIN = 256;
constexpr int BY_MAX = 512;
constexpr int BY_SCREEN = 1024;

// The distance, in pixels, of a step: a sum of one Direction and one length.
POINT StepDelta(int step);
