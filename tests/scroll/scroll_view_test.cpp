#include "scroll/scroll_view.h"

#include "core/state.h"
#include "support/quorl_test.h"

namespace {

class Scroll : public QuorlTest {};

TEST_F(Scroll, AHungProgramStaysAndTheOthersMove) {
    const HWND editor = OpenWindow("editor", {100, 100, 500, 400});
    const HWND hung = OpenWindow("hung", {600, 100, 900, 400});
    RowOf(hung).answer = DeskAnswer::Hung;
    ASSERT_EQ(StartQuorl(), 1);

    PressCombination(MOD_CONTROL | MOD_ALT, VK_RIGHT);
    Settle();

    EXPECT_EQ(PlaceOf(editor), Rect(-924, 100, -524, 400));
    EXPECT_EQ(PlaceOf(hung), Rect(600, 100, 900, 400)) << "a window that does not answer is left alone";
    EXPECT_EQ(VDesk, Rect(1024, 0, 2048, 768));
}

} // namespace
