#include "scroll/gather.h"

#include "support/quorl_test.h"
#include "windows/locked_windows.h"

class Fold : public RunningQuorl {
  protected:
    HWND far = OpenWindow("far", {2044, 900, 2144, 1000});
    HWND left = OpenWindow("left", {-100, -100, 300, 200});
};

TEST_F(Fold, BringsBackEveryManagedWindow) {
    const HWND minimized = OpenWindow("minimized", {-32000, -32000, -31840, -31972});
    WindowOf(minimized).style |= WS_MINIMIZE;
    LockWindow(far);
    WindowOf(left).overridesMove = 1;
    WindowOf(left).moveOverride = {7, 8, 400, 300};
    const HWND late = OpenWindow("opened since the last refresh", {2043, -768, 2100, 50});
    SetWindowPos(late, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE); // the first to be folded
    GatherWindows(FOLD_AT_EXIT);
    EXPECT_EQ(RectOf(far), Rect(4, 132, 104, 232)) << "off the last pixels, though locked";
    EXPECT_EQ(WindowOf(left).received.at(0).record, Rect(924, 668, 400, 300)) << "corner and size";
    EXPECT_EQ(RectOf(left), Rect(7, 8, 407, 308)) << "the window changed the position";
    EXPECT_EQ(RectOf(late), Rect(1019, 0, 1076, 818));
    EXPECT_EQ(RectOf(minimized).left, -32000);
}

TEST_F(Fold, WaitsASecondForEachWindowWithoutAReport) {
    WindowOf(far).response = WindowOf(left).response = DeskResponse::TimesOut;
    WindowOf(left).error = 0; // as on the oldest systems
    for (const FoldReason reason : {FOLD_AT_EXIT, FOLD_TO_SMALLER_DESKTOP}) {
        const DWORD before = Desk.now;
        GatherWindows(reason);
        EXPECT_EQ(Desk.now - before, 2000U);
        EXPECT_EQ(RectOf(far).left, 2044);
    }
}

TEST_F(Fold, ReportsARefusalAndGoesOn) {
    WindowOf(left).response = DeskResponse::Fails;
    WindowOf(left).error = 87;
    AnswerBoxes({IDOK});
    Desk.duringBox = [] { OpenAndList("box", {10, 10, 20, 20}); }; // moves all rows of the table
    GatherWindows(FOLD_AT_EXIT);
    EXPECT_EQ(LastBox(), "Not a timeout! A window won't restore!/ok");
    EXPECT_EQ(RectOf(far).left, 4);
}
