// Fixture of the contract tests: windows and dialogs of this program that record the messages they receive.
#pragma once

#include "contract/environment.h"

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <map>
#include <vector>

// On Windows all cases may run in one process: each cleans up after itself.
class Contract : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;
};

// What this program's windows and dialogs received, and what they do instead of the default.
extern std::vector<MSG> Received;
extern std::map<UINT, std::function<LRESULT(const MSG&)>> Handlers;

// The received ones among the given messages, in order.
using Numbers = std::vector<UINT>;
Numbers ReceivedOf(std::initializer_list<UINT> messages);

// The controls that sent this notification to their dialog, in order; then forgets all that was received.
Numbers Notified(UINT code);

// Handles messages until `happened`, or for 5 seconds.
void HandleUntil(const std::function<bool()>& happened);

// A window of this program, of class "Contract"; hidden unless the style says WS_VISIBLE.
HWND OpenOwn(DWORD style = WS_POPUP, DWORD exStyle = 0, const RECT& rect = RECT_OF_WINDOWS,
             HWND owner = nullptr);

// One of Quorl's dialogs by its number, hidden; or shown and in front, with what it received forgotten.
HWND OpenTemplate(int id, HWND owner = nullptr);
HWND ShowTemplate(int id);

// The given windows as EnumWindows reports them, topmost first.
std::vector<HWND> Order(std::initializer_list<HWND> windows);
