// Moving the view over windows of other programs: the good ones, the hung, the dying and the wilful.
#include "user.h"

// Windows opened first lie undermost and are moved last: when the first has arrived all have had their turn.
TEST(Scroll, EachProgramIsMovedAsItAllowsAndNoneHarmsTheOthers) {
    const Place other = {500, 300, 900, 600};
    const HWND editor = OpenWindow("editor", EDITOR);
    const HWND hung = OpenWindow("hung", other, "hung");
    const HWND dying = OpenWindow("dying", other, "dies");
    const HWND wilful = OpenWindow("wilful", other, "rewrites");
    const HWND minimized = OpenWindow("minimized", other);
    ShowWindow(minimized, SW_MINIMIZE);
    StartQuorl();
    const ULONGLONG start = GetTickCount64();
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -SCREEN_W, 0));
    EXPECT_LT(GetTickCount64() - start, 2000U) << "one wait of 100 ms, with room for a slow machine";
    EXPECT_EQ(PlaceOf(hung), other);
    EXPECT_TRUE(WaitForEnd(dying));
    EXPECT_EQ(PlaceOf(wilful), Moved(other, 7 - SCREEN_W, 9)) << "it lands where it said";
    PressKeys({VK_CONTROL, VK_MENU, VK_LEFT});
    EXPECT_SOON(PlaceOf(editor), EDITOR);
    ShowWindow(minimized, SW_RESTORE);
    EXPECT_SOON(PlaceOf(minimized), other);
}

TEST(Scroll, AMaximizedWindowIsRestoredWhenAskedFor) {
    const HWND editor = OpenWindow("editor", EDITOR);
    ShowWindow(editor, SW_MAXIMIZE);
    EXPECT_SOON(IsZoomed(editor) != 0, true);
    StartQuorl();
    DoRow(30);
    EXPECT_SOON(PlaceOf(editor).left, -SCREEN_W) << "no window goes past the desktop's edge";
    EXPECT_TRUE(IsZoomed(editor));
    DoRow(82); // restore before moving
    DoRow(28);
    EXPECT_SOON(PlaceOf(editor).left, 0);
    EXPECT_FALSE(IsZoomed(editor));
}
