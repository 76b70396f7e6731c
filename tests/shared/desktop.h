// A real Windows desktop for tests: other programs and their windows, keyboard and mouse. Positions are
// screen pixels.
#pragma once

#include "support/rect.h"

#include <gtest/gtest.h>

#include <string>

constexpr DWORD TIMEOUT = 10000; // ms; for what must happen, however slow the machine

// Starts a program, which ends at EndPrograms or with this process. Returns at once; null if it fails.
HANDLE Launch(std::string command);
void EndPrograms();

bool IsWine();

// GetSystemMetrics in the pixels of the displays. Windows counts in those only for programs that ask for it,
// which the first call does.
int ScreenMetric(int metric);

// Opens a window of another process, inactive and on top of the others. Behaviours: "plain"; "slow" (handles
// WM_MOVING in half a second); "hung" (never responds once it is visible); "dies" (exits in WM_MOVING);
// "cloaked" (by the compositor); "overrides" (moves the rect of WM_MOVING by 7 and 9 pixels more).
HWND OpenWindow(const char* title, const RECT& rect, const char* behaviour = "plain");
// Main function of that process, which is this program again: `--play BEHAVIOUR TITLE LEFT TOP WIDTH HEIGHT`.
// Returns false if the arguments are others.
bool PlayWindow(int count, char** arguments);

// Visible top-level windows. 0: of any process; null: with any title. WaitForVisible returns null at timeout.
HWND FindVisible(DWORD process, const char* windowClass, const char* title);
HWND WaitForVisible(DWORD process, const char* windowClass, const char* title);
DWORD ProcessOf(HWND window);

// What the user sees of a window: without the invisible frame that a compositor gives it.
RECT VisibleRect(HWND window);

void HoldKey(int key, bool down);
// Moves the pointer and waits until all programs know.
void MoveMouse(int x, int y);
// Moves as the device does: hooks see it at once, though the pointer of the X server may stay where it is.
void SendMouse(int x, int y);
// Buttons are VK_ values.
void PressMouse(int button, bool down);
void TurnWheel();

// Handles the messages that are waiting for this thread.
void HandleMessages();

// What `read` returns as soon as it is `wanted`, or at the timeout.
template <typename Read, typename Wanted>
auto Eventually(Read read, const Wanted& wanted, DWORD timeout = TIMEOUT) {
    const ULONGLONG deadline = GetTickCount64() + timeout;
    auto value = read();
    while (value != wanted && GetTickCount64() < deadline) {
        Sleep(10);
        value = read();
    }
    return value;
}
#define EXPECT_EVENTUALLY(expression, wanted)                                                                \
    EXPECT_EQ(Eventually([&] { return (expression); }, wanted), wanted)
