// What the contract cases share: windows of this program that keep what arrives, and a few words to look.
#pragma once

#include "contract/ground.h"

#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <map>
#include <vector>

// On Windows all cases run in one process: each leaves nothing behind.
class Contract : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;
};

// What has arrived at windows of this program, in order, and what they do about it instead of
// DefWindowProcA.
extern std::vector<MSG> Seen;
extern std::map<UINT, std::function<LRESULT(const MSG&)>> Replies;

// Those of the given messages that have arrived, in order.
using Kinds = std::vector<UINT>;
Kinds SeenOf(std::initializer_list<UINT> messages);

// A window of this program, of class "Contract"; hidden unless the style says WS_VISIBLE.
HWND OpenOwn(DWORD style = WS_POPUP, DWORD exStyle = 0, const RECT& place = PLACE, HWND owner = nullptr);

// Those of the given windows that are on the desktop, the topmost first.
std::vector<HWND> Order(std::initializer_list<HWND> windows);

RECT PlaceOf(HWND window);
RECT Rect(int left, int top, int right, int bottom);

bool operator==(const RECT& a, const RECT& b);
void PrintTo(const RECT& rect, std::ostream* out);
