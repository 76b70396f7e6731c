#include "scroll/desktop_size.h"

#include "support/quorl_test.h"

class DesktopSize : public RunningQuorl {
  protected:
    HWND editor = OpenWindow("editor", {100, 100, 500, 400});
};

TEST_F(DesktopSize, IsOneScreenAtLeastAndHasALargest) {
    EXPECT_EQ(ChangedSize(31744, 1, 1024), LARGEST_DESKTOP);
    EXPECT_EQ(ChangedSize(2000, -1, 1024), 1024);
    EXPECT_EQ(ChangedSize(500, 0, 1024), 500) << "the other side stays as it is";
}

TEST_F(DesktopSize, EachRowChangesOneSideAndSlidesOrAsksTheWindows) {
    const struct {
        ActionId row;
        SIZE quorl;
        POINT shift;
        std::size_t asked;
    } cases[] = {
        {60, {5120, 1536}, {0, 0},    0},
        {61, {5120, 1536}, {1024, 0}, 1},
        {62, {4096, 2304}, {0, 0},    0},
        {63, {4096, 2304}, {0, 768},  1},
        {64, {3072, 1536}, {0, 0},    1},
        {65, {3072, 1536}, {-100, 0}, 1}, // held at the desktop's edge
        {66, {4096, 768},  {0, -100}, 1},
        {67, {4096, 768},  {0, 0},    1},
    };
    for (const auto& [row, quorl, shift, asked] : cases) {
        SCOPED_TRACE(row);
        Quorl = {0, 0, 4096, 1536};
        RowOf(editor).place = {100, 100, 500, 400};
        RowOf(editor).received.clear();
        Desk.trace.clear();
        EXPECT_EQ(DoAction(MainWnd, row, nullptr), 1);
        EXPECT_EQ(Quorl, Rect(0, 0, quorl.cx, quorl.cy));
        EXPECT_EQ(PlaceOf(editor), Moved({100, 100, 500, 400}, shift.x, shift.y));
        EXPECT_EQ(RowOf(editor).received.size(), asked);
        EXPECT_EQ(CallsOf("UpdateWindow"), 1);
    }
}
