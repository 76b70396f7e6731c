// The mouse on the map.
#include "support/map_mouse.h"

#include "core/state.h"

void OnMap::SetUp() {
    RunningQuorl::SetUp();
    RowOf(MainWnd).place = {100, 100, 364, 204}; // with its frame
}

void MoveOnMap(int x, int y) {
    const POINT at = OnScreen(MainWnd, x, y);
    MoveMouse(at.x, at.y);
    Settle();
}

void PressOnMap(int button) {
    PressMouse(button, 1);
    Settle();
}

void ReleaseOnMap(int button) {
    PressMouse(button, 0);
    Settle();
}

void ClickOnMap(int x, int y, int button, std::initializer_list<int> keys) {
    for (const int key : keys)
        HoldKey(key, 1);
    MoveOnMap(x, y);
    PressOnMap(button);
    ReleaseOnMap(button);
    for (const int key : keys)
        HoldKey(key, 0);
}
