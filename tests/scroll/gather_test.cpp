#include "scroll/gather.h"

#include "core/state.h"
#include "scroll/locked_windows.h"
#include "scroll/window_table.h"
#include "support/quorl_test.h"

namespace {

TEST(GatherDecision, ACornerFoldsOntoTheScreenAndOffItsLastPixels) {
    struct {
        int corner, screen, folded;
    } const cases[] = {
        {1500,  1024, 476 },
        {-100,  1024, 924 },
        {-2048, 1024, 0   },
        {1019,  1024, 1019},
        {1020,  1024, 4   },
        {-1,    1024, 1   },
        {-5,    768,  763 },
        {500,   0,    0   }, // no screen at all: some number, no trap
    };
    for (const auto& [corner, screen, folded] : cases)
        EXPECT_EQ(FoldedCorner(corner, screen), folded) << corner << " on " << screen;
}

class Gather : public QuorlTest {
  protected:
    HWND far = OpenWindow("far", {1500, 900, 1700, 1000});
    HWND left = OpenWindow("left", {-100, -100, 300, 200});

    void Start() { ASSERT_EQ(StartQuorl(), 1); }
};

TEST_F(Gather, EveryManagedWindowComesBackLockedOnesToo) {
    const HWND minimized = OpenWindow("minimized", {-32000, -32000, -31840, -31972});
    RowOf(minimized).style |= WS_MINIMIZE;
    const HWND beyond = OpenWindow("beyond", {5000, 100, 5100, 200});
    Start();
    LockWindow(far);
    RowOf(left).bRewrites = 1;
    RowOf(left).rewritten = {7, 8, 400, 300};
    const HWND late = OpenWindow("opened since the last refresh", {2000, 10, 2100, 50});
    Desk.trace.clear();

    GatherWindows();

    EXPECT_EQ(PlaceOf(far), Rect(476, 132, 676, 232));
    EXPECT_EQ(RowOf(left).received.at(0).record, Rect(924, 668, 400, 300)) << "corner and size";
    EXPECT_EQ(PlaceOf(left), Rect(7, 8, 407, 308)) << "it may say where it wants to be";
    EXPECT_EQ(PlaceOf(late), Rect(976, 10, 1076, 50));
    EXPECT_EQ(PlaceOf(minimized).left, -32000);
    EXPECT_EQ(PlaceOf(beyond).left, 5000);
    EXPECT_EQ(CallsOf("ShowWindow"), 0);
}

TEST_F(Gather, ATimeoutIsSilentAndCostsASecond) {
    for (const DWORD error : {DWORD{0}, ERROR_TIMEOUT}) {
        RowOf(far).answer = DeskAnswer::TimesOut;
        RowOf(far).error = error;
        Start();
        const DWORD before = Desk.now;
        GatherWindows();
        EXPECT_EQ(Desk.now - before, 1000U);
        EXPECT_EQ(PlaceOf(far), Rect(1500, 900, 1700, 1000)) << "it stays";
        EXPECT_GE(PlaceOf(left).left, 0);
        KillWindow(MainWnd);
    }
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
    EXPECT_EQ(Desk.boxes[0].text, "Not a timeout! A window won't restore!");
    EXPECT_EQ(Desk.boxes[0].caption, "ok");
    EXPECT_EQ(Desk.boxes[0].owner, nullptr);
    EXPECT_EQ(PlaceOf(last).left, 6);
}

TEST_F(Gather, AWindowMayDieBetweenAnyTwoCalls) {
    Start();
    int nth = 0;
    HWND victim = nullptr;
    do {
        victim = OpenWindow("victim", {2000, 10, 2050, 50});
        RowOf(victim).diesAtCall = ++nth;
        RowOf(far).place = {1500, 900, 1700, 1000};
        Desk.answers.assign(1, IDOK); // gone under the ping: a refusal
        GatherWindows();
        EXPECT_EQ(PlaceOf(far), Rect(476, 132, 676, 232)) << "gone at call " << nth;
    } while (!RowOf(victim).handle);
    EXPECT_GT(nth, 8);
}

} // namespace
