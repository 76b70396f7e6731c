// A pair of step buttons, worked by mouse messages.
#include "dialogs/spinner.h"

#include "support/quorl_test.h"

namespace {

constexpr int UP = 9;    // the last row of the upper half
constexpr int DOWN = 10; // the row on the half belongs to the lower button

class Spinner : public RunningQuorl {
  protected:
    void SetUp() override {
        RunningQuorl::SetUp();
        spinner = CreateSpinner(MainWnd, 20, 30, 15, 21, 54321, 0);
        ASSERT_TRUE(spinner);
    }

    void Press(int y) const { SendMessageA(spinner, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, y)); }
    void Release() const { SendMessageA(spinner, WM_LBUTTONUP, 0, MAKELPARAM(700, -500)); }
    int ValueAfter(DWORD milliseconds) const {
        Wait(milliseconds);
        return StateOfSpinner(spinner)->value;
    }

    HWND spinner = nullptr;
};

TEST_F(Spinner, AHeldButtonStepsAtOnceAndThenOnceAnInterval) {
    Press(UP);
    EXPECT_EQ(Desk.capture, spinner);
    EXPECT_EQ(ValueAfter(499), 1);
    EXPECT_EQ(ValueAfter(501), 3);
    SetSpinnerInterval(spinner, 250);
    EXPECT_EQ(ValueAfter(500), 4) << "a new interval counts from the next press";
    Release();
    EXPECT_EQ(Desk.capture, nullptr);
    EXPECT_EQ(ValueAfter(2000), 4);
    Press(DOWN);
    EXPECT_EQ(ValueAfter(500), 1);
    SetCapture(MainWnd);
    EXPECT_EQ(ValueAfter(2000), 1) << "a box that takes the mouse ends the hold";
    EXPECT_EQ(Desk.capture, MainWnd);
}

TEST_F(Spinner, StepsStopAtTheLimits) {
    const auto step = [this](int value, int y) {
        SetSpinnerValue(spinner, value);
        Press(y);
        Release();
        return ValueAfter(0);
    };
    EXPECT_EQ(step(1, DOWN), 0);
    EXPECT_EQ(step(0, DOWN), 0);
    EXPECT_EQ(step(99, UP), 100);
    EXPECT_EQ(step(100, UP), 100);
    EXPECT_EQ(step(150, UP), 100);
    EXPECT_EQ(step(-5, UP), -4);
}

TEST_F(Spinner, IsDrawnAsTwoButtonsWithAnArrowEachOfWhichTheHeldOneIsSunken) {
    Settle();
    Desk.strokes.clear();
    Press(DOWN);
    ASSERT_EQ(Desk.strokes.size(), 4U);
    EXPECT_EQ(Desk.strokes[0].rect, Rect(0, 0, 15, 10));
    EXPECT_EQ(Desk.strokes[0].format & 255, UINT{EDGE_RAISED});
    EXPECT_EQ(Desk.strokes[1].points, (std::vector<POINT>{
                                          {7,  3},
                                          {5,  6},
                                          {10, 6},
                                          {8,  3}
    }));
    EXPECT_EQ(Desk.strokes[2].points, (std::vector<POINT>{
                                          {7,  17},
                                          {5,  14},
                                          {10, 14},
                                          {8,  17}
    }));
    EXPECT_EQ(Desk.strokes[3].rect, Rect(0, 11, 15, 21));
    EXPECT_EQ(Desk.strokes[3].format & 255, UINT{EDGE_SUNKEN});
    Release();
    EXPECT_EQ(Desk.strokes.back().format & 255, UINT{EDGE_RAISED});
}

} // namespace
