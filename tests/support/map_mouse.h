// What a user does with the mouse on the map. The places are map coordinates of the moment: the map may move
// away under the cursor. Buttons are VK_ values; keys are held with HoldKey.
#pragma once

#include "support/quorl_test.h"

#include <initializer_list>

// A map of 256 by 96: a pixel on it is 16 on the desktop.
class OnMap : public RunningQuorl {
  protected:
    void SetUp() override;
};

void MoveOnMap(int x, int y);

// At the place where the cursor is.
void PressOnMap(int button);
void ReleaseOnMap(int button);

// Goes there, presses and releases, while the keys are held.
void ClickOnMap(int x, int y, int button, std::initializer_list<int> keys = {});
