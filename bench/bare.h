// The platform calls of Quorl's frequent operations without Quorl: the same calls in the same order, with
// every decision made beforehand. Whatever Quorl takes longer is its own cost.
#pragma once

#include "core/platform.h"

// Copies the window table and creates a replacement for the map with the same size. Call it again after
// windows were opened or closed.
void PrepareBare();

// One screen to the right and back.
void BareScroll();
// The same with only ping, move and show for each managed window.
void PingMoveShow();
// From one rebuild of the window table to the next.
void BareTicks();
void BarePaint();
// A mouse move in the middle of the screen.
void BareMouseMove();
void BareFold();
