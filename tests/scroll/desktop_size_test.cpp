#include "scroll/desktop_size.h"

#include "core/state.h"
#include "support/quorl_test.h"

namespace {

class DesktopSize : public QuorlTest {};

TEST_F(DesktopSize, IsOneScreenAtLeastAndHasALargest) {
    EXPECT_EQ(ChangedSize(31744, 1, 1024), LARGEST_DESKTOP);
    EXPECT_EQ(ChangedSize(2000, -1, 1024), 1024);
    EXPECT_EQ(ChangedSize(500, 0, 1024), 500) << "the other side stays as it is";
}

TEST_F(DesktopSize, EachRowChangesOneSideAndSlidesOrAsksTheWindows) {
    const struct {
        ActionId row;
        SIZE quorl;
        POINT corner; // of a window that was at (100, 100)
        std::size_t asked;
    } cases[] = {
        {60, {5120, 1536}, {100, 100},  0},
        {61, {5120, 1536}, {1124, 100}, 1},
        {62, {4096, 2304}, {100, 100},  0},
        {63, {4096, 2304}, {100, 868},  1},
        {64, {3072, 1536}, {100, 100},  1},
        {65, {3072, 1536}, {0, 100},    1}, // held at the desktop's edge
        {66, {4096, 768},  {100, 0},    1},
        {67, {4096, 768},  {100, 100},  1},
    };
    const HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    Start();
    for (const auto& [row, quorl, corner, asked] : cases) {
        SCOPED_TRACE(row);
        Quorl = {0, 0, 4096, 1536};
        RowOf(editor).place = {100, 100, 500, 400};
        RowOf(editor).received.clear();
        Desk.trace.clear();
        EXPECT_EQ(DoAction(MainWnd, row, nullptr), 1);
        EXPECT_EQ(Quorl, Rect(0, 0, quorl.cx, quorl.cy));
        EXPECT_EQ(PlaceOf(editor), Rect(corner.x, corner.y, corner.x + 400, corner.y + 300));
        EXPECT_EQ(RowOf(editor).received.size(), asked);
        EXPECT_EQ(CallsOf("UpdateWindow"), 1);
    }
}

} // namespace
