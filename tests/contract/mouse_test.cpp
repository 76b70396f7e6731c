// What the mouse tells a window: over it, beyond it while captured, and what is held meanwhile.
#include "contract/contract_test.h"

#include <utility>

namespace {

using Mouse = Contract;

// The last message of this kind; all 0 if none has come.
MSG LastOf(UINT message) {
    MSG last{};
    for (const MSG& arrived : Seen)
        if (arrived.message == message)
            last = arrived;
    return last;
}

using Spot = std::pair<int, int>;

// Where the last message of this kind says that the mouse is.
Spot SpotOf(UINT message) {
    const auto both = static_cast<DWORD_PTR>(LastOf(message).lParam);
    return {static_cast<SHORT>(LOWORD(both)), static_cast<SHORT>(HIWORD(both))};
}

TEST_F(Mouse, PlacesCountFromTheClientAreaAlsoBeyondItWhileItIsCaptured) {
    const HWND window = OpenOwn(WS_POPUP | WS_VISIBLE, WS_EX_TOPMOST, {300, 300, 500, 400});
    const auto move = [](int x, int y) {
        Seen.clear();
        MoveMouse(x, y);
        Handle(200);
    };
    move(350, 340);
    EXPECT_EQ(LastOf(WM_MOUSEMOVE).hwnd, window);
    EXPECT_EQ(SpotOf(WM_MOUSEMOVE), Spot(50, 40));
    EXPECT_EQ(LastOf(WM_MOUSEMOVE).wParam, 0U);
    SetCapture(window);
    PressMouse(VK_LBUTTON, 1);
    move(250, 280);
    EXPECT_EQ(SpotOf(WM_MOUSEMOVE), Spot(-50, -20));
    EXPECT_EQ(LastOf(WM_MOUSEMOVE).wParam, MK_LBUTTON);
    PressMouse(VK_LBUTTON, 0);
    Handle(200);
    EXPECT_EQ(SpotOf(WM_LBUTTONUP), Spot(-50, -20));
    ReleaseCapture();
    move(240, 270);
    EXPECT_EQ(LastOf(WM_MOUSEMOVE).hwnd, nullptr);
}

TEST_F(Mouse, TheKeyStateIsThatOfTheMessageInHand) {
    std::vector<int> down;
    Replies[WM_RBUTTONDOWN] = [&down](const MSG&) {
        down = {GetKeyState(VK_LSHIFT) < 0, GetKeyState(VK_RBUTTON) < 0};
        return 0;
    };
    Replies[WM_RBUTTONUP] = [&down](const MSG&) {
        down.push_back(GetKeyState(VK_RBUTTON) < 0);
        return 0;
    };
    OpenOwn(WS_POPUP | WS_VISIBLE, WS_EX_TOPMOST, {300, 300, 500, 400});
    MoveMouse(350, 340);
    Handle(200);
    HoldKey(VK_LSHIFT, 1);
    EXPECT_LT(GetAsyncKeyState(VK_LSHIFT), 0) << "that of the moment is there before";
    PressMouse(VK_RBUTTON, 1);
    Handle(100);
    PressMouse(VK_RBUTTON, 0);
    HoldKey(VK_LSHIFT, 0);
    Handle(100);
    EXPECT_EQ(down, (std::vector<int>{1, 1, 0}));
    EXPECT_EQ(LastOf(WM_RBUTTONDOWN).wParam, MK_RBUTTON | MK_SHIFT);
}

} // namespace
