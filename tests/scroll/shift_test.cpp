#include "scroll/shift.h"

#include "scroll/locked_windows.h"
#include "support/quorl_test.h"

class Shift : public RunningQuorl {
  protected:
    HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    HWND other = OpenWindow("other", {600, 100, 900, 400});
    HWND list = OpenWindow("list", {10, 10, 50, 50}, "SysListView32");
};

TEST_F(Shift, AWindowIsHeldInsideTheDesktop) {
    const auto shifted = [](const RECT& window, int dx, int dy) {
        const auto place = ShiftedPlace(window, dx, dy, {1000, 500, 2024, 1268}, {0, 0, 4096, 1536}, 5);
        return Rect(place.x, place.y, place.width, place.height);
    };
    EXPECT_EQ(shifted({4000, 1500, 4400, 1700}, 96, 36), Rect(4096, 1536, 400, 200));
    EXPECT_EQ(shifted({4000, 1500, 4400, 1700}, 97, 37), Rect(3691, 1331, 400, 200)) << "past the far edges";
    EXPECT_EQ(shifted({-900, -450, -500, -150}, -200, -100), Rect(-1000, -500, 400, 300));
    EXPECT_EQ(shifted({4000, 1500, 9000, 4000}, 200, 200), Rect(-909, -500, 5000, 2500))
        << "too large for it";
}

TEST_F(Shift, EachWindowIsAskedMovedAndShownALockedOneStaysAndAListViewScrollsEvenThen) {
    const HWND kin = OpenKnown("kin", {10, 10, 50, 50}, "SysListView32 of a library");
    for (const HWND window : {editor, other, list})
        LockWindow(window);
    UnlockWindow(editor); // the others stand behind a hole now
    EnableWindow(kin, FALSE);
    ShiftWindows(30, -7);
    EXPECT_EQ(PlaceOf(editor), Rect(130, 93, 530, 393));
    EXPECT_EQ(RowOf(editor).received.at(0).record, Rect(130, 93, 400, 300)) << "corner and size";
    EXPECT_TRUE(CameInOrder({"SendMessageTimeoutA", "MoveWindow", "ShowWindow"}));
    EXPECT_TRUE(RowOf(other).received.empty());
    for (const HWND scrolled : {list, kin}) {
        const DeskMessage& got = RowOf(scrolled).received.at(0);
        EXPECT_TRUE(got.message == LVM_SCROLL && got.wParam == 30 && got.lParam == -7);
        EXPECT_EQ(RowOf(scrolled).received.size(), 1U);
    }
}

TEST_F(Shift, AProgramThatDoesNotAnswerCostsItsPatienceOnceAndNothingElseSuffers) {
    const HWND zoomed = OpenKnown("zoomed", {10, 10, 50, 50});
    ShowWindow(zoomed, SW_MAXIMIZE);
    ActionTable[ROW_RESTORE_MAXIMIZED].value = 1;
    for (const HWND silent : {editor, list, zoomed})
        RowOf(silent).answer = DeskAnswer::TimesOut;
    const DWORD before = Desk.now;
    ShiftWindows(30, 0);
    EXPECT_EQ(Desk.now - before, 300U) << "100 ms for each of the three";
    EXPECT_EQ(PlaceOf(editor).left, 100);
    EXPECT_EQ(PlaceOf(other).left, 630);

    RowOf(zoomed).answer = DeskAnswer::Answers;
    for (const int bRestored : {0, 1}) {
        ActionTable[ROW_RESTORE_MAXIMIZED].value = bRestored;
        ShiftWindows(30, 0);
        EXPECT_EQ(IsZoomed(zoomed), !bRestored) << "as the user wishes";
    }
}
