// What the contract cases share: windows and dialogs of this program that keep what arrives, and a few words
// to look.
#pragma once

#include "contract/ground.h"
#include "support/rect.h"

#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <map>

// On Windows all cases run in one process: each leaves nothing behind.
class Contract : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;
};

// What has arrived at windows and dialogs of this program, and what they do instead of what Windows does.
extern std::vector<MSG> Seen;
extern std::map<UINT, std::function<LRESULT(const MSG&)>> Replies;

// Those of the given messages that have arrived, in order.
using Numbers = std::vector<UINT>;
Numbers SeenOf(std::initializer_list<UINT> messages);

// The controls that have told their dialog this code, in order; forgets all that has arrived.
Numbers Told(UINT code);

// A window of this program, of class "Contract"; hidden unless the style says WS_VISIBLE.
HWND OpenOwn(DWORD style = WS_POPUP, DWORD exStyle = 0, const RECT& place = PLACE, HWND owner = nullptr);

// A dialog of the program by its number, not shown.
HWND OpenTemplate(int id, HWND owner = nullptr);

// The same in sight and in front, when all that comes of it is over and forgotten.
HWND ShowTemplate(int id);

// Those of the given windows that are on the desktop, the topmost first.
std::vector<HWND> Order(std::initializer_list<HWND> windows);

RECT PlaceOf(HWND window);
