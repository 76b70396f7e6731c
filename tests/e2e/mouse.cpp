// The user's mouse.
#include "mouse.h"

namespace {

HANDLE Shaking;
volatile LONG bShake;
POINT Around;

void Send(LONG dx, LONG dy, DWORD data, DWORD flags) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi = {dx, dy, data, flags, 0, 0};
    SendInput(1, &input, sizeof input);
}

DWORD WINAPI Shake(void*) {
    for (LONG i = 0; bShake; i = (i + 1) % 20) {
        SendMouse(Around.x + i, Around.y - i);
        if (i == 0)
            Sleep(1);
    }
    return 0;
}

} // namespace

// A move that was only sent is forgotten after some 100 ms under Wine, for the pointer's own place; one that
// follows the pointer at once may be lost.
void MoveMouse(POINT to) {
    SetCursorPos(to.x, to.y);
    Sleep(60);
    SendMouse(to.x, to.y);
    Sleep(60);
}

POINT MousePlace() {
    POINT place = {};
    GetCursorPos(&place);
    return place;
}

// The move is sent unless placing the pointer was news enough.
void PushMouseTo(POINT to) {
    MoveMouse({SCREEN_W / 2, to.y});
    SetCursorPos(to.x, to.y);
    Sleep(60);
    const POINT now = MousePlace();
    if (now.x == to.x && now.y == to.y)
        SendMouse(to.x, to.y);
    Sleep(60);
}

Place AfterMoving(HWND window, POINT to) {
    MoveMouse({to.x - 1, to.y});
    MoveMouse(to);
    return PlaceOf(window);
}

void SendMouse(LONG x, LONG y) {
    const auto scaled = [](LONG at, int size) { return (at * 65536 + 32768) / size; };
    Send(scaled(x, SCREEN_W), scaled(y, SCREEN_H), 0, MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE);
}

void Click(DWORD press, DWORD release) {
    const DWORD data = press == MOUSEEVENTF_WHEEL ? WHEEL_DELTA : 0;
    Send(0, 0, data, press);
    Send(0, 0, data, release);
}

void PressButton(DWORD flag) {
    Send(0, 0, 0, flag);
}

void ClickHolding(WORD key, DWORD press, DWORD release) {
    SendKey(key, 0);
    Click(press, release);
    SendKey(key, KEYEVENTF_KEYUP);
}

POINT OnMap(LONG x, LONG y) {
    RECT map = {};
    GetClientRect(QuorlWindow(), &map);
    POINT at = {x * map.right / (4 * SCREEN_W), y * map.bottom / (2 * SCREEN_H)};
    ClientToScreen(QuorlWindow(), &at);
    return at;
}

POINT OnDesktop(POINT at) {
    RECT map = {};
    GetClientRect(QuorlWindow(), &map);
    ScreenToClient(QuorlWindow(), &at);
    return {at.x * 4 * SCREEN_W / map.right, at.y * 2 * SCREEN_H / map.bottom};
}

void StartShakingMouse(POINT around) {
    Around = around;
    bShake = 1;
    Shaking = CreateThread(nullptr, 0, Shake, nullptr, 0, nullptr);
}

void StopShakingMouse() {
    bShake = 0;
    WaitForSingleObject(Shaking, INFINITE);
    CloseHandle(Shaking);
}
