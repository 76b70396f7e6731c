// Mouse input on the map. Coordinates are client coordinates of the map at its current position. Buttons are
// VK_ values; keys are held with HoldKey.
#pragma once

#include "support/quorl_test.h"

#include <initializer_list>

// A map of 256 by 96 pixels: one pixel is 16 on the desktop.
class MapTest : public RunningQuorl {
  protected:
    void SetUp() override;
};

void MoveOnMap(int x, int y);

// At the current cursor position.
void PressOnMap(int button);
void ReleaseOnMap(int button);

// Moves there, presses and releases while the keys are held.
void ClickOnMap(int x, int y, int button, std::initializer_list<int> keys = {});
