// Folding all windows back onto the one real screen, so that nothing stays out of reach.
#pragma once

#include "core/platform.h"

// Takes every managed window, locked ones too. One that does not answer within a second stays where it is;
// any other refusal shows a box.
void GatherWindows();

// The same, with `refused` called for a window that neither took its new place nor ran out of time; null:
// nobody is told.
void FoldWindows(void (*refused)());

// Pure: one coordinate of a window's corner, folded onto a screen of that size. Screen pixels.
int FoldedCorner(int corner, int screen);
