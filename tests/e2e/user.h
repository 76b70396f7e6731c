// What a user of Quorl does and sees, in words for the tests: starts programs, presses keys, looks where
// windows stand. All places are screen pixels. Nothing here reaches into Quorl.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

constexpr int SCREEN_W = 1024;
constexpr int SCREEN_H = 768;
constexpr DWORD PATIENCE = 10000; // ms; for what must happen, however slow the machine
constexpr int SAVE = 47;          // the row that writes the settings

struct Place {
    int left, top, right, bottom;
    bool operator==(const Place&) const = default;
};
constexpr Place EDITOR = {200, 150, 600, 450};
std::ostream& operator<<(std::ostream& out, const Place& place);
Place Moved(const Place& place, int dx, int dy);

// Ends this program where something without which nothing makes sense has not come.
void Insist(bool came, const std::string& wanted);

// Ends all programs that were started, and removes Quorl's settings: each test begins and ends so.
void CleanDesktop();

// Starts quorl.exe from the folder of this program. Gives its process at once.
HANDLE LaunchQuorl();
// Starts it and insists on its window.
HWND StartQuorl();
HWND QuorlWindow();
bool IsMapShown();
bool Answers(HWND window);

// Opens a window of another program which plays `part` (main.cpp), inactive, on top of the others. A running
// Quorl moves it only after its next look at the desktop, up to two seconds later.
HWND OpenWindow(const char* title, const Place& place, const char* part = "plain");
// Starts one of the programs that the system brings along and waits for its window of the class.
HWND OpenProgram(const char* command, const char* windowClass);

// One half of a press: KEYEVENTF_KEYUP or 0.
void SendKey(WORD key, DWORD flags);
// Presses the keys in this order and lets them go in the opposite one. 0 if they could not be held.
bool PressKeys(std::initializer_list<WORD> keys);
// Presses and releases one key after the other.
void PressInTurn(const std::vector<WORD>& keys);
// Has Quorl run a row of its table as if by a hotkey, after all that it was told before.
void DoRow(int row);
// Makes a window the one that the user types into, and waits until it has settled there.
void Activate(HWND window);
void Settle(HWND window);

// Puts the pointer there, and waits until every program is told so.
void MoveMouse(POINT to);
// Moves as the device does: hooks see it at once, though the pointer of the screen below may stay.
void SendMouse(LONG x, LONG y);
// Where a window is after the mouse has come to this place. A single move is lost now and then under Wine.
Place AfterMoving(HWND window, POINT to);
POINT MousePlace();

// Presses and releases a button where the mouse is; MOUSEEVENTF_ values. For the wheel, two notches.
void Click(DWORD press, DWORD release);
// One half of a click.
void PressButton(DWORD flag);

Place PlaceOf(HWND window);
std::string TextOf(HWND window);
DWORD ProcessOf(HWND window);
// The strip over the map, while it is on show; else null.
HWND TipStrip();
// The popup menu that is open; else null.
HWND OpenedMenu();

// A key of Quorl's settings file, where Windows puts it, and one put down before Quorl starts. Has the
// settings saved and looks for a line of the file.
std::string Stored(const std::string& key);
void Store(const std::string& key, const std::string& value);
void ExpectSaved(const std::string& key, const std::string& wanted);

// Insists on a dialog or a box with this caption.
HWND WaitForBox(const char* caption);
// Answers a message box by a key, until it has gone. Gives its text.
std::string AnswerBox(const char* caption, WORD key);
// Answers the question that stands before Quorl's end with Yes, and insists on an end with exit code 0.
void AnswerYesToQuit();
// The same when the question is yet to be asked for.
void Quit();
// 1 once the window is gone.
bool WaitForEnd(HWND window);
// The exit code; STILL_ACTIVE when patience is over.
DWORD WaitForExit(HANDLE process);

// What `read` gives, as soon as it is `wanted`; what it gave last when patience is over.
template <typename Read, typename Wanted>
auto Soon(Read read, const Wanted& wanted, DWORD patience = PATIENCE) {
    const ULONGLONG deadline = GetTickCount64() + patience;
    auto value = read();
    while (value != wanted && GetTickCount64() < deadline) {
        Sleep(10);
        value = read();
    }
    return value;
}
#define EXPECT_SOON(expression, wanted) EXPECT_EQ(Soon([&] { return (expression); }, wanted), wanted)

// Does it again while it has not come: under Wine on a busy machine a click is lost now and then.
template <typename Came, typename Act>
void Until(Came came, Act act) {
    constexpr DWORD EACH_TIME = 2000; // ms
    for (int tries = 0; tries < 5; ++tries) {
        act();
        if (Soon(came, true, EACH_TIME))
            return;
    }
}
