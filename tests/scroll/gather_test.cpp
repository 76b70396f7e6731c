#include "scroll/gather.h"

#include "scroll/locked_windows.h"
#include "scroll/window_table.h"
#include "support/quorl_test.h"

class Gather : public RunningQuorl {
  protected:
    HWND far = OpenWindow("far", {1500, 900, 1700, 1000});
    HWND left = OpenWindow("left", {-100, -100, 300, 200});
};

TEST_F(Gather, ACornerFoldsOntoTheScreenAndOffItsLastPixels) {
    EXPECT_EQ(FoldedCorner(1500, 1024), 476);
    EXPECT_EQ(FoldedCorner(-2048, 1024), 0);
    EXPECT_EQ(FoldedCorner(1019, 1024), 1019);
    EXPECT_EQ(FoldedCorner(1020, 1024), 4);
}

TEST_F(Gather, EveryManagedWindowComesBackLockedOnesToo) {
    const HWND minimized = OpenWindow("minimized", {-32000, -32000, -31840, -31972});
    RowOf(minimized).style |= WS_MINIMIZE;
    LockWindow(far);
    RowOf(left).bRewrites = 1;
    RowOf(left).rewritten = {7, 8, 400, 300};
    const HWND late = OpenWindow("opened since the last refresh", {2000, 10, 2100, 50});
    SetWindowPos(late, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE); // the first of all
    GatherWindows();
    EXPECT_EQ(PlaceOf(far), Rect(476, 132, 676, 232));
    EXPECT_EQ(RowOf(left).received.at(0).record, Rect(924, 668, 400, 300)) << "corner and size";
    EXPECT_EQ(PlaceOf(left), Rect(7, 8, 407, 308)) << "it may say where it wants to be";
    EXPECT_EQ(PlaceOf(late), Rect(976, 10, 1076, 50));
    EXPECT_EQ(PlaceOf(minimized).left, -32000);
}

TEST_F(Gather, ATimeoutIsSilentAndCostsASecondAndAnyOtherRefusalIsTold) {
    RowOf(far).answer = RowOf(left).answer = DeskAnswer::TimesOut;
    RowOf(left).error = 0; // as the oldest systems have it
    const DWORD before = Desk.now;
    GatherWindows();
    EXPECT_EQ(Desk.now - before, 2000U);
    EXPECT_EQ(PlaceOf(far).left, 1500) << "it stays";

    RowOf(far).answer = DeskAnswer::Answers;
    RowOf(left).answer = DeskAnswer::Fails;
    RowOf(left).error = ERROR_ACCESS_DENIED;
    WillAnswer({IDOK});
    Desk.inBox = [] { OpenKnown("box", {10, 10, 20, 20}); }; // comes to stand before all others
    GatherWindows();
    EXPECT_EQ(LastBox(), "Not a timeout! A window won't restore!/ok");
    EXPECT_EQ(PlaceOf(far).left, 476);
}
