// The words of the user: start Quorl on the in-memory desktop, act, let time pass, look.
#pragma once

#include "actions/action_table.h"
#include "core/state.h"
#include "desk/desk.h"
#include "support/rect.h"

#include <gtest/gtest.h>

// Each case runs in a process of its own, so nothing is ever set back.
// A screen of 1024 by 768, the optional functions, a hook library that records.
void PrepareDesk();

class QuorlTest : public testing::Test {
  protected:
    void SetUp() override;    // PrepareDesk
    void TearDown() override; // no unexpected box, nothing that would have blocked
};

// The same with Quorl started before the case begins; it finds the windows that the fixture's members are,
// and the trace begins after the start.
class RunningQuorl : public QuorlTest {
  protected:
    void SetUp() override;
};

// What the hook library of the in-memory desktop was told.
struct HookRecord {
    HWND window;          // SaveSharedData
    std::vector<int> set; // SetMouseHook
};

extern HookRecord Hook;

// Starts Quorl as WinMain does, up to the message loop. The result of StartUp.
int StartQuorl();

// Handles what is waiting, without letting time pass.
void Settle();

// Lets time pass, in milliseconds, and handles what comes.
void Wait(DWORD milliseconds);

// The user gives a command by its row, as a hotkey does.
void Command(int row);

// The user answers the next boxes, in this order.
void WillAnswer(std::initializer_list<int> answers);

// Binds a row to a mouse combination.
void Bind(int row, int mods, int button);

// Opens a window of another program as OpenWindow does, and Quorl takes notice of it at once.
HWND OpenKnown(const char* title, const RECT& place, const char* className = "Program");

// Marks one more region, one screen in size, with its corner there.
void Mark(const std::string& name, int left, int top);

// What the strip over the map said last, on show or not; empty if it never did.
std::string LastTip();

RECT PlaceOf(HWND window);

RECT Rect(int left, int top, int right, int bottom);
RECT Moved(const RECT& place, int dx, int dy);

// The corner of the view, in desktop pixels.
POINT ViewCorner();

// "text/caption" of the box that the user has seen last.
std::string LastBox();

// 1 if `Desk.trace` holds these calls in this order, others between them or not.
int CameInOrder(std::initializer_list<const char*> calls);

bool operator==(const POINT& a, const POINT& b);
void PrintTo(const POINT& point, std::ostream* out);
