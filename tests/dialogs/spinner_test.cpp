// A pair of step buttons, worked by mouse messages; its parent writes down what it is told.
#include "dialogs/spinner.h"

#include "support/quorl_test.h"

namespace {

const int ID = 54321;
const int UP = 9;    // the last row of the upper half
const int DOWN = 10; // the row on the half belongs to the lower button

std::vector<int> Told; // values

LRESULT CALLBACK ParentProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_NOTIFY)
        return DefWindowProcA(window, message, wParam, lParam);
    EXPECT_EQ(wParam, WPARAM{ID});
    Told.push_back(reinterpret_cast<const SpinnerState*>(lParam)->value);
    return 0;
}

class Spinner : public RunningQuorl {
  protected:
    void SetUp() override {
        RunningQuorl::SetUp();
        WNDCLASSA description{};
        description.lpfnWndProc = ParentProc;
        description.lpszClassName = "Parent";
        RegisterClassA(&description);
        parent = CreateWindowExA(0, "Parent", "", WS_POPUP | WS_VISIBLE, 100, 100, 200, 200, nullptr, nullptr,
                                 nullptr, nullptr);
        spinner = CreateSpinner(parent, 20, 30, 15, 21, ID, 0);
        ASSERT_TRUE(spinner);
    }

    void Press(int y) const { SendMessageA(spinner, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, y)); }
    void Release() const { SendMessageA(spinner, WM_LBUTTONUP, 0, MAKELPARAM(700, -500)); }

    HWND parent = nullptr;
    HWND spinner = nullptr;
};

using Values = std::vector<int>;

TEST(SpinnerShapes, AreTwoButtonsWithAnArrowEach) {
    const SpinnerShapes shapes = ShapesOfSpinner(15, 21);
    EXPECT_EQ(shapes.up, Rect(0, 0, 15, 10));
    EXPECT_EQ(shapes.down, Rect(0, 11, 15, 21));
    const POINT arrows[2][4] = {
        {{7, 3},  {5, 6},  {10, 6},  {8, 3} },
        {{7, 17}, {5, 14}, {10, 14}, {8, 17}}
    };
    for (std::size_t corner = 0; corner < 4; ++corner) {
        EXPECT_EQ(shapes.up_arrow[corner], arrows[0][corner]) << corner;
        EXPECT_EQ(shapes.down_arrow[corner], arrows[1][corner]) << corner;
    }
}

TEST_F(Spinner, AHeldButtonStepsAtOnceAndThenOnceAnInterval) {
    Press(UP);
    EXPECT_EQ(Desk.capture, spinner);
    Wait(499);
    EXPECT_EQ(Told, Values{1});
    Wait(501);
    EXPECT_EQ(Told, (Values{1, 2, 3}));
    SetSpinnerInterval(spinner, 250);
    Wait(500);
    EXPECT_EQ(Told, (Values{1, 2, 3, 4})) << "a new interval counts from the next press";
    Release();
    EXPECT_EQ(Desk.capture, nullptr);
    Wait(2000);
    Press(DOWN);
    Wait(500);
    Release();
    EXPECT_EQ(Told, (Values{1, 2, 3, 4, 3, 2, 1}));
}

TEST_F(Spinner, StepsStopAtTheLimitsAndAreToldAllTheSame) {
    const auto told = [this](int value, int y) {
        Told.clear();
        EXPECT_EQ(SetSpinnerValue(spinner, value), 1);
        Press(y);
        Release();
        return Told;
    };
    EXPECT_EQ(told(1, DOWN), Values{0});
    EXPECT_EQ(told(99, UP), Values{100});
    EXPECT_EQ(told(100, UP), Values{100});
    EXPECT_EQ(told(150, UP), Values{100});
    EXPECT_EQ(told(-5, DOWN), Values{0});
    EXPECT_EQ(told(-5, UP), Values{-4});
}

TEST_F(Spinner, WithBothButtonsHeldTheLowerOneStepsFirst) {
    SetSpinnerValue(spinner, 7);
    SetSpinnerFlags(spinner, SPINNER_DOWN_HELD);
    Press(UP);
    EXPECT_EQ(Told, (Values{6, 7}));
    StateOfSpinner(spinner)->paused = 1;
    Wait(5000);
    EXPECT_EQ(Told, (Values{6, 7})) << "paused";
    Release();
    EXPECT_EQ(StateOfSpinner(spinner)->flags, 0);
}

TEST_F(Spinner, ABoxThatTakesTheMouseEndsTheHold) {
    Press(UP);
    SetCapture(parent);
    Wait(2000);
    EXPECT_EQ(Told, Values{1});
    EXPECT_EQ(Desk.capture, parent);
}

TEST_F(Spinner, AWindowWithoutAStateIsLeftAlone) {
    Press(UP);
    DestroyWindow(spinner);
    Wait(2000);
    EXPECT_EQ(Told, Values{1});
    for (const HWND window : {HWND{}, spinner, parent})
        EXPECT_EQ(SetSpinnerValue(window, 1) + SetSpinnerInterval(window, 1) + SetSpinnerFlags(window, 1), 0);
    Desk.fault = {"CreateWindowExA", 1};
    EXPECT_FALSE(CreateSpinner(parent, 0, 0, 15, 21, ID, 0));
    EXPECT_EQ(Desk.beeps, std::vector<UINT>{0});
}

TEST_F(Spinner, TheHeldButtonIsDrawnSunken) {
    const auto edges = [this] {
        std::vector<UINT> kinds;
        for (const DeskStroke& stroke : Desk.strokes)
            if (stroke.window == spinner && stroke.what == "DrawEdge")
                kinds.push_back(stroke.format & 255);
        Desk.strokes.clear();
        return kinds;
    };
    Desk.strokes.clear();
    Press(DOWN);
    EXPECT_EQ(edges(), (std::vector<UINT>{EDGE_RAISED, EDGE_SUNKEN}));
    Release();
    EXPECT_EQ(edges(), (std::vector<UINT>{EDGE_RAISED, EDGE_RAISED}));
}

} // namespace
