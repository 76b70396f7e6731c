// The user's mouse on Windows.
#include "contract/ground.h"

static void Send(LONG x, LONG y, DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = x;
    input.mi.dy = y;
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

// Under Wine sent moves leave the screen's own pointer behind, which then counts again a moment later.
void MoveMouse(int x, int y) {
    const auto scaled = [](int at, int metric) { return (at * 65536 + 32768) / GetSystemMetrics(metric); };
    SetCursorPos(x, y);
    Sleep(60);
    Send(scaled(x, SM_CXSCREEN), scaled(y, SM_CYSCREEN), MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE);
}

void PressMouse(int button, int bDown) {
    const struct {
        int key;
        DWORD pressed, released;
    } buttons[] = {
        {VK_LBUTTON, MOUSEEVENTF_LEFTDOWN,   MOUSEEVENTF_LEFTUP  },
        {VK_RBUTTON, MOUSEEVENTF_RIGHTDOWN,  MOUSEEVENTF_RIGHTUP },
        {VK_MBUTTON, MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP},
    };
    for (const auto& row : buttons)
        if (row.key == button)
            Send(0, 0, bDown ? row.pressed : row.released);
}
