// What the mouse tells a window: over it, beyond it while captured, and what is held meanwhile.
#include "contract/contract_test.h"

#include <utility>

namespace {

class Mouse : public Contract {
  protected:
    HWND Window = nullptr;

    void SetUp() override {
        Contract::SetUp();
        Window = OpenOwn({300, 300, 500, 400}, WS_POPUP | WS_VISIBLE, WS_EX_TOPMOST);
        MoveMouse(350, 340);
        Handle(200);
    }
};

// The last message of this kind; all 0 if none has come.
MSG LastOf(UINT message) {
    MSG last{};
    for (const MSG& arrived : Seen)
        if (arrived.message == message)
            last = arrived;
    return last;
}

using Spot = std::pair<int, int>;

// Where a message says that the mouse is.
Spot SpotOf(const MSG& message) {
    const auto both = static_cast<DWORD_PTR>(message.lParam);
    return {static_cast<SHORT>(LOWORD(both)), static_cast<SHORT>(HIWORD(both))};
}

// Moves that came for a place beyond the client area of 200 by 100.
int MovesBeyond() {
    int moves = 0;
    for (const MSG& arrived : Seen) {
        const auto [x, y] = SpotOf(arrived);
        moves += arrived.message == WM_MOUSEMOVE && (x < 0 || x >= 200 || y < 0 || y >= 100);
    }
    return moves;
}

TEST_F(Mouse, AMoveComesWithItsPlaceInTheClientArea) {
    EXPECT_EQ(LastOf(WM_MOUSEMOVE).hwnd, Window);
    EXPECT_EQ(SpotOf(LastOf(WM_MOUSEMOVE)), Spot(50, 40));
    EXPECT_EQ(LastOf(WM_MOUSEMOVE).wParam, 0U);
    Seen.clear();
    MoveMouse(250, 340);
    Handle(200);
    EXPECT_EQ(MovesBeyond(), 0);
}

TEST_F(Mouse, ACapturedMouseReportsPlacesBeyondTheWindowUntilItIsReleased) {
    SetCapture(Window);
    PressMouse(VK_LBUTTON, 1);
    MoveMouse(250, 280);
    Handle(200);
    EXPECT_EQ(SpotOf(LastOf(WM_LBUTTONDOWN)), Spot(50, 40));
    EXPECT_EQ(SpotOf(LastOf(WM_MOUSEMOVE)), Spot(-50, -20));
    EXPECT_EQ(LastOf(WM_MOUSEMOVE).wParam, MK_LBUTTON);
    PressMouse(VK_LBUTTON, 0);
    Handle(200);
    EXPECT_EQ(SpotOf(LastOf(WM_LBUTTONUP)), Spot(-50, -20));
    EXPECT_EQ(LastOf(WM_LBUTTONUP).wParam, 0U);
    ReleaseCapture();
    Seen.clear();
    MoveMouse(240, 270);
    Handle(200);
    EXPECT_EQ(MovesBeyond(), 0);
}

TEST_F(Mouse, TheKeyStateIsThatOfTheMessageInHand) {
    const struct {
        int button;
        UINT pressed, released;
        WPARAM held;
    } buttons[] = {
        {VK_LBUTTON, WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON},
        {VK_RBUTTON, WM_RBUTTONDOWN, WM_RBUTTONUP, MK_RBUTTON},
        {VK_MBUTTON, WM_MBUTTONDOWN, WM_MBUTTONUP, MK_MBUTTON},
    };
    for (const auto& row : buttons) {
        std::vector<int> down;
        const auto note = [&](const MSG&) -> LRESULT {
            down.push_back(GetKeyState(row.button) < 0);
            down.push_back(GetKeyState(VK_LSHIFT) < 0);
            return 0;
        };
        Replies[row.pressed] = Replies[row.released] = note;
        HoldKey(VK_LSHIFT, 1);
        PressMouse(row.button, 1);
        Handle(100);
        PressMouse(row.button, 0);
        HoldKey(VK_LSHIFT, 0);
        Handle(100);
        EXPECT_EQ(down.size(), 4U) << row.button;
        down.resize(3); // Shift may be up again when the release is read
        EXPECT_EQ(down, (std::vector<int>{1, 1, 0})) << row.button;
        EXPECT_EQ(LastOf(row.pressed).wParam, row.held | MK_SHIFT);
    }
}

} // namespace
