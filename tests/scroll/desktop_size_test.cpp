#include "scroll/desktop_size.h"

#include "support/quorl_test.h"

TEST(DesktopSize, IsOneScreenAtLeastAndHasALargest) {
    EXPECT_EQ(ChangedSize(31744, 1, 1024), LARGEST_DESKTOP);
    EXPECT_EQ(ChangedSize(2000, -1, 1024), 1024);
}

TEST_F(RunningQuorl, EachRowOfTheDesktopsSizeChangesOneSideAndSlidesOrAsksTheWindows) {
    const struct {
        ActionId row;
        RECT quorl;
        POINT shift;
        std::size_t asked;
    } cases[] = {
        {60, {0, 0, 5120, 1536}, {0, 0},    0},
        {61, {0, 0, 5120, 1536}, {1024, 0}, 1},
        {62, {0, 0, 4096, 2304}, {0, 0},    0},
        {63, {0, 0, 4096, 2304}, {0, 768},  1},
        {64, {0, 0, 3072, 1536}, {0, 0},    1},
        {65, {0, 0, 3072, 1536}, {-100, 0}, 1}, // held at the desktop's edge
        {66, {0, 0, 4096, 768},  {0, -100}, 1},
        {67, {0, 0, 4096, 768},  {0, 0},    1},
    };
    const RECT before{100, 100, 500, 400};
    for (const auto& [row, quorl, shift, asked] : cases) {
        SCOPED_TRACE(row);
        Quorl = {0, 0, 4096, 1536};
        const HWND editor = OpenKnown("editor", before);
        Desk.trace.clear();
        EXPECT_EQ(DoAction(MainWnd, row, nullptr), 1);
        EXPECT_EQ(Quorl, quorl);
        EXPECT_EQ(PlaceOf(editor), Moved(before, shift.x, shift.y));
        EXPECT_EQ(RowOf(editor).received.size(), asked);
        EXPECT_EQ(CallsOf("UpdateWindow"), 1);
    }
}
