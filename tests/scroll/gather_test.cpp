#include "scroll/gather.h"

#include "core/state.h"
#include "scroll/locked_windows.h"
#include "scroll/window_table.h"
#include "support/quorl_test.h"

namespace {

class Gather : public QuorlTest {
  protected:
    HWND far = OpenWindow("far", {1500, 900, 1700, 1000});
    HWND left = OpenWindow("left", {-100, -100, 300, 200});
};

TEST_F(Gather, ACornerFoldsOntoTheScreenAndOffItsLastPixels) {
    const struct {
        int corner, screen, folded;
    } cases[] = {
        {1500,  1024, 476 },
        {-2048, 1024, 0   },
        {1019,  1024, 1019},
        {1020,  1024, 4   },
        {-5,    768,  763 },
        {500,   0,    0   }, // no screen at all: some number, no trap
    };
    for (const auto& [corner, screen, folded] : cases)
        EXPECT_EQ(FoldedCorner(corner, screen), folded) << corner << " on " << screen;
}

TEST_F(Gather, EveryManagedWindowComesBackLockedOnesToo) {
    const HWND minimized = OpenWindow("minimized", {-32000, -32000, -31840, -31972});
    RowOf(minimized).style |= WS_MINIMIZE;
    Start();
    LockWindow(far);
    RowOf(left).bRewrites = 1;
    RowOf(left).rewritten = {7, 8, 400, 300};
    const HWND late = OpenWindow("opened since the last refresh", {2000, 10, 2100, 50});

    GatherWindows();

    EXPECT_EQ(PlaceOf(far), Rect(476, 132, 676, 232));
    EXPECT_EQ(RowOf(left).received.at(0).record, Rect(924, 668, 400, 300)) << "corner and size";
    EXPECT_EQ(PlaceOf(left), Rect(7, 8, 407, 308)) << "it may say where it wants to be";
    EXPECT_EQ(PlaceOf(late), Rect(976, 10, 1076, 50));
    EXPECT_EQ(PlaceOf(minimized).left, -32000);
    EXPECT_EQ(CallsOf("ShowWindow"), 0);
}

TEST_F(Gather, ATimeoutIsSilentAndCostsASecond) {
    RowOf(far).answer = RowOf(left).answer = DeskAnswer::TimesOut;
    RowOf(left).error = 0; // as the oldest systems have it
    Start();
    const DWORD before = Desk.now;
    GatherWindows();
    EXPECT_EQ(Desk.now - before, 2000U);
    EXPECT_EQ(PlaceOf(far).left, 1500) << "it stays";
}

TEST_F(Gather, AnyOtherRefusalIsToldForEachWindow) {
    for (const HWND window : {far, left}) {
        RowOf(window).answer = DeskAnswer::Fails;
        RowOf(window).error = ERROR_ACCESS_DENIED;
    }
    const HWND last = OpenWindow("last", {1030, 10, 1100, 50});
    Start();
    WillAnswer({IDOK, IDOK});
    Desk.inBox = [] { // the box comes to stand before all others
        OpenWindow("box", {10, 10, 20, 20});
        RebuildWindowTable();
    };

    GatherWindows();

    ASSERT_EQ(Desk.boxes.size(), 2U);
    EXPECT_EQ(Desk.boxes[0].text + "/" + Desk.boxes[0].caption, "Not a timeout! A window won't restore!/ok");
    EXPECT_EQ(PlaceOf(last).left, 6);
}

} // namespace
