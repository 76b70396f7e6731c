// Mouse input on the map, handled at once.
#include "support/map_mouse.h"

void MapTest::SetUp() {
    RunningQuorl::SetUp();
    WindowOf(MainWnd).rect = {100, 100, 364, 204}; // including the frame
}

void MoveOnMap(int x, int y) {
    const POINT at = ToScreen(MainWnd, x, y);
    MoveMouse(at.x, at.y);
    HandleMessages();
}

void PressOnMap(int button) {
    PressMouse(button, 1);
    HandleMessages();
}

void ReleaseOnMap(int button) {
    PressMouse(button, 0);
    HandleMessages();
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
