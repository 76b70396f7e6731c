// The mouse on the map.
#include "support/map_mouse.h"

#include "core/state.h"

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

void ResizeMap(int width, int height) {
    RECT client{};
    GetClientRect(MainWnd, &client);
    RECT& place = RowOf(MainWnd).place;
    place.right += width - client.right;
    place.bottom += height - client.bottom;
}
