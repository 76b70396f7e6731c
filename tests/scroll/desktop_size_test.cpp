#include "scroll/desktop_size.h"

#include "core/state.h"
#include "support/quorl_test.h"

namespace {

TEST(DesktopSizeDecision, TheDesktopIsOneScreenAtLeastAndHasALargestSize) {
    struct {
        int size, screens, after;
    } const cases[] = {
        {31744, 1,  32000},
        {2000,  -1, 1024 },
        {500,   0,  500  },
    };
    for (const auto& [size, screens, after] : cases)
        EXPECT_EQ(ChangedSize(size, screens, 1024), after) << size << " and " << screens;
}

class DesktopSize : public QuorlTest {
  protected:
    HWND editor = OpenWindow("editor", {100, 100, 500, 400});
};

TEST_F(DesktopSize, EachRowChangesOneSideAndSlidesOrAsksTheWindows) {
    struct {
        ActionId row;
        SIZE quorl;
        POINT shift;
        int asked;
    } const cases[] = {
        {60, {5120, 1536}, {0, 0},    0},
        {61, {5120, 1536}, {1024, 0}, 1},
        {62, {4096, 2304}, {0, 0},    0},
        {63, {4096, 2304}, {0, 768},  1},
        {64, {3072, 1536}, {0, 0},    1},
        {65, {3072, 1536}, {-100, 0}, 1}, // held at the desktop's edge
        {66, {4096, 768},  {0, -100}, 1},
        {67, {4096, 768},  {0, 0},    1},
    };
    ASSERT_EQ(StartQuorl(), 1);
    for (const auto& [row, quorl, shift, asked] : cases) {
        Quorl = {0, 0, 4096, 1536};
        RowOf(editor).place = {100, 100, 500, 400};
        RowOf(editor).received.clear();
        Desk.trace.clear();
        EXPECT_EQ(DoAction(MainWnd, row, nullptr), 1);
        EXPECT_EQ(Quorl, Rect(0, 0, quorl.cx, quorl.cy)) << "row " << row;
        EXPECT_EQ(PlaceOf(editor), Rect(100 + shift.x, 100 + shift.y, 500 + shift.x, 400 + shift.y))
            << "row " << row;
        EXPECT_EQ(RowOf(editor).received.size(), static_cast<std::size_t>(asked)) << "row " << row;
        EXPECT_TRUE(CameInOrder({"InvalidateRect", "UpdateWindow"})) << "row " << row;
        EXPECT_EQ(VDesk, Rect(0, 0, 1024, 768)) << "row " << row;
    }
    RowOf(editor).place = {100, 100, 500, 400};
    Quorl.right = LARGEST_DESKTOP;
    DoAction(MainWnd, 61, nullptr);
    EXPECT_EQ(Quorl.right, LARGEST_DESKTOP);
    EXPECT_EQ(PlaceOf(editor).left, 1124) << "they slide even where there is no room left";
}

} // namespace
