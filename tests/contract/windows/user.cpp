// The user of Windows: real keys and a real mouse.
#include "contract/ground.h"

#include <gtest/gtest.h>

void HoldKey(int key, int bDown) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<WORD>(key);
    input.ki.dwFlags = bDown ? 0 : KEYEVENTF_KEYUP;
    SendInput(1, &input, sizeof input);
}

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
    EXPECT_EQ(button, VK_RBUTTON) << "no case needs another";
    Send(0, 0, bDown ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_RIGHTUP);
}
