// A pair of step buttons, driven by mouse messages.
#include "dialogs/spinner.h"

#include "support/quorl_test.h"

constexpr int UP = 9;    // the last row of the upper button
constexpr int DOWN = 10; // the first row of the lower one

class Spinner : public RunningQuorl {
  protected:
    HWND spinner = nullptr;

    void SetUp() override {
        RunningQuorl::SetUp();
        spinner = CreateSpinner(MainWnd, {20, 30, 35, 51}, 54321);
        ASSERT_TRUE(spinner);
    }
    void Press(int y) const { SendMessageA(spinner, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, y)); }
    void Release() const { SendMessageA(spinner, WM_LBUTTONUP, 0, MAKELPARAM(700, -500)); }
    int ValueAfter(DWORD milliseconds) const {
        Wait(milliseconds);
        return StateOfSpinner(spinner)->value;
    }
};

TEST_F(Spinner, AHeldButtonRepeatsUntilItIsReleased) {
    Press(UP);
    EXPECT_EQ(ValueAfter(499), 1);
    EXPECT_EQ(ValueAfter(501), 3);
    StateOfSpinner(spinner)->interval = 250;
    EXPECT_EQ(ValueAfter(500), 4) << "the interval applies from the next press";
    Release();
    EXPECT_EQ(Desk.capture, nullptr);
    EXPECT_EQ(ValueAfter(2000), 4);
    Press(DOWN);
    EXPECT_EQ(Desk.drawCalls.back().format & 255, UINT{EDGE_SUNKEN}) << "the lower button";
    EXPECT_EQ(ValueAfter(250), 2);
    SetCapture(MainWnd);
    EXPECT_EQ(ValueAfter(2000), 2) << "losing the capture releases the button";
    StateOfSpinner(spinner)->max = 3;
    Press(UP);
    for (int tick = 0; tick < 3; ++tick)
        EXPECT_EQ(ValueAfter(250), 3);
    Release();
    StateOfSpinner(spinner)->value = 0;
    Press(DOWN);
    EXPECT_EQ(ValueAfter(0), 0);
}
