// What a user of Quorl does and sees, in words for the tests: starts programs, presses keys, looks where
// windows stand. All places are screen pixels. Nothing here reaches into Quorl.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>
#include <string>

constexpr int SCREEN_W = 1024;
constexpr int SCREEN_H = 768;
constexpr DWORD PATIENCE = 10000; // ms; for what must happen, however slow the machine

struct Place {
    int left, top, right, bottom;
    bool operator==(const Place&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Place& place);
Place Moved(const Place& place, int dx, int dy);

// Ends all programs that were started, and removes Quorl's settings: each test begins and ends so.
void CleanDesktop();

// Starts quorl.exe from the folder of this program, or from `folder`. Gives its process at once.
HANDLE LaunchQuorl(const std::string& folder = "");
// Starts it and waits for its window; null if none came.
HWND StartQuorl(const std::string& folder = "");
HWND QuorlWindow();
std::string ProgramFolder();

// Opens a window of another program which plays `part` (player.h), inactive, on top of the others. A running
// Quorl moves it only after its next look at the desktop, up to two seconds later.
HWND OpenWindow(const char* title, const Place& place, const char* part = "plain");
// Starts one of the programs that the system brings along and waits for its window of the class.
HWND OpenProgram(const char* command, const char* windowClass);

// Presses the keys in this order and lets them go in the opposite one. 0 if they could not be held.
bool PressKeys(std::initializer_list<WORD> keys);
// Has Quorl run a row of its table as if by a hotkey, after all that it was told before.
void DoRow(int row);
// Makes a window the one that the user types into.
void Activate(HWND window);

Place PlaceOf(HWND window);
std::string TextOf(HWND window);
bool IsOnTop(HWND window, HWND other);
// The strip over the map, while it is on show; else null.
HWND TipStrip();
// The popup menu that is open; else null.
HWND OpenedMenu();

// The message box with this caption; null if none comes. Its text; how it is answered, by a key.
HWND WaitForBox(const char* caption);
std::string BoxText(HWND box);
// 1 once the window is gone.
bool WaitForEnd(HWND window);
// The exit code; STILL_ACTIVE when patience is over.
DWORD WaitForExit(HANDLE process);

// What `read` gives, as soon as it is `wanted`; what it gave last when patience is over.
template <typename Read, typename Value>
Value Soon(Read read, const Value& wanted) {
    const ULONGLONG deadline = GetTickCount64() + PATIENCE;
    Value value = read();
    while (value != wanted && GetTickCount64() < deadline) {
        Sleep(10);
        value = read();
    }
    return value;
}
#define EXPECT_SOON(expression, wanted) EXPECT_EQ(Soon([&] { return (expression); }, wanted), wanted)
