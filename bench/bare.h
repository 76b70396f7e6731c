// What Quorl asks the platform for in its frequent deeds, without Quorl: the same calls in the same order,
// with everything decided beforehand. What Quorl takes longer is its own share.
#pragma once

#include "core/platform.h"

// Remembers all rows of the window table, how Quorl sees them, and makes the window that stands in for the
// map, as large as that. Again after windows have come or gone.
void PrepareBare();

// To the screen on the right and back.
void BareScroll();
// The same, and of each managed window only the ping, the move and the show.
void PingMoveShow();
// From one rebuilding of the window table to the next.
void BareTicks();
void BarePaint();
// The mouse moves in the middle of the screen.
void BareMouseMove();
void BareFold();
