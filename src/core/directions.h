// The four directions of the screen, as codes that commands and edges share.
#pragma once

enum Direction {
    DIR_NONE = 0,
    DIR_UP = 8,
    DIR_DOWN = 16,
    DIR_LEFT = 32,
    DIR_RIGHT = 64,
};
