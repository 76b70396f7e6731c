// Tests of the whole program: start Quorl on the in-memory desktop, act as its user, let time pass, look.
#pragma once

#include "actions/action_table.h"
#include "core/rect.h"
#include "core/state.h"
#include "desk/desk.h"
#include "support/rect.h"

#include <gtest/gtest.h>

// A screen of 1024 by 768, the optional system functions, and a hook library that records its calls.
void PrepareDesk();

// Destroys all controls, which frees their memory; the end of the process does not.
void FreeControls();

class QuorlTest : public testing::Test {
  protected:
    void SetUp() override;    // PrepareDesk
    void TearDown() override; // fails after an unexpected box or a call that would have blocked
};

// Starts Quorl before the test. It finds windows that members of the fixture opened. The trace begins after
// the start.
class RunningQuorl : public QuorlTest {
  protected:
    void SetUp() override;
};

// The map then has 256 by 96 pixels: one pixel is 16 on the desktop.
class MapTest : public RunningQuorl {
  protected:
    void SetUp() override;
};

// What the hook library was called with.
struct HookRecord {
    HWND window;          // SaveSharedData
    std::vector<int> set; // SetMouseHook
};

extern HookRecord Hook;

// Starts Quorl up to its message loop; the result of StartUp.
bool StartQuorl();

// Handles the waiting messages without letting time pass.
void HandleMessages();

// Lets time pass, in milliseconds, and handles what arrives.
void Wait(DWORD milliseconds);

// Runs an action as its hotkey does.
void RunAction(int id);

// The user's answers to the next boxes, in this order.
void AnswerBoxes(std::initializer_list<int> answers);

void BindMouse(int id, int mods, int button);

// Mouse input on the map, handled at once. Client coordinates of the map at its current position; VK_ values.
void MoveOnMap(int x, int y);
void PressOnMap(int button);
void ReleaseOnMap(int button);

// Opens another program's window and adds it to the window table.
HWND OpenAndList(const char* title, const RECT& rect, const char* className = "Program");

// Adds a region of one screen with that corner, in desktop pixels.
void AddRegion(const std::string& name, int left, int top);

// The latest text of the status strip, visible or not; empty if there was none.
std::string LastStatus();

RECT RectOf(HWND window);
RECT Rect(int left, int top, int right, int bottom); // for macros, which cannot take braces

// The corner of the view, in desktop pixels.
POINT ViewCorner();

// "text/caption" of the latest message box.
std::string LastBox();

// Whether `Desk.trace` contains these calls in this order, possibly with others in between.
bool CalledInOrder(std::initializer_list<const char*> calls);

// Runs the scenario repeatedly, from the first state and after `prepare`: once with its first platform call
// failing, once with its second, until no call is left or an expectation fails. Returns the number of calls
// that failed.
int FailEachCall(void (*prepare)(), void (*scenario)());

bool operator==(const POINT& a, const POINT& b);
void PrintTo(const POINT& point, std::ostream* out);
