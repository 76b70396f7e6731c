// What a user of Quorl does and sees: keys, actions, windows, message boxes, the settings file. Positions are
// screen pixels. Nothing here reaches into Quorl's process.
#pragma once

#include "actions/action_ids.h"
#include "resources/control_ids.h"
#include "shared/desktop.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

// All displays together. Under Wine there is one of 1024 by 768 pixels, except for the cases that need more.
inline const int SCREEN_W = ScreenMetric(SM_CXVIRTUALSCREEN), SCREEN_H = ScreenMetric(SM_CYVIRTUALSCREEN);
constexpr RECT EDITOR{200, 150, 600, 450};

// Ends the case if the machine lacks what it needs. Under Wine ./test provides it, so there this is a
// failure.
#define NEEDS(condition, what)                                                                               \
    do {                                                                                                     \
        if (!(condition)) {                                                                                  \
            ASSERT_FALSE(IsWine()) << "needs " << (what);                                                    \
            GTEST_SKIP() << "needs " << (what);                                                              \
        }                                                                                                    \
    } while (false)

// Ends this program if something did not happen without which the rest makes no sense.
void Require(bool happened, const std::string& wanted);

// Ends all programs that were started and deletes Quorl's settings; runs before and after each case.
void CleanDesktop();

// Starts quorl.exe from this program's folder and returns its process at once; or waits for its window.
HANDLE LaunchQuorl();
HWND StartQuorl();
HWND QuorlWindow();
bool IsMapShown();
bool Responds(HWND window);

// Presses the keys in this order and releases them in reverse; false if they could not be held.
bool PressKeys(std::initializer_list<WORD> keys);
// Presses and releases one key after the other.
void PressInTurn(const std::vector<WORD>& keys);
void Click(int button);
// Makes Quorl run actions, as hotkeys do.
void RunAction(int action);
void RunActions(std::initializer_list<int> actions);

// Activates a window and waits until its program and Quorl have handled it.
void Activate(HWND window);
void Settle(HWND window);

std::string TextOf(HWND window);

// Quorl's settings file: a key; all lines, each with a terminator.
std::string Stored(const std::string& key);
void StoreSettings(const char* lines);

// Requires a dialog or message box with this caption.
HWND WaitForBox(const char* caption);
// Asks Quorl to close and answers the question with Yes; RequireExit requires that it has ended with code 0.
void Quit();
void RequireExit();
// True once the window is destroyed.
bool WaitForEnd(HWND window);
// STILL_ACTIVE after the timeout.
DWORD WaitForExit(HANDLE process);

// Repeats `act` until `happened`: under Wine on a busy machine a click is lost now and then.
template <typename Happened, typename Act>
void Retry(Happened happened, Act act) {
    for (int tries = 0; tries < 5; ++tries) {
        act();
        if (Eventually(happened, true, 2000))
            return;
    }
}
