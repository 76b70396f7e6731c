// Scrolling other programs' windows, hung, dying and overriding ones among them.
#include "shared/user.h"

// The window that was opened last is on top and is moved last, so all others have been by then.
TEST(Scroll, ProgramsDoNotDelayOrHarmEachOther) {
    const RECT other{500, 300, 900, 600};
    const HWND hung = OpenWindow("hung", other, "hung");
    const HWND dying = OpenWindow("dying", other, "dies");
    const HWND overriding = OpenWindow("overriding", other, "overrides");
    const HWND minimized = OpenWindow("minimized", other);
    const HWND maximized = OpenWindow("maximized", other);
    ShowWindow(minimized, SW_MINIMIZE);
    ShowWindow(maximized, SW_MAXIMIZE);
    EXPECT_EVENTUALLY(IsZoomed(maximized) != 0, true);
    const HWND editor = OpenWindow("editor", EDITOR);
    StartQuorl();
    const ULONGLONG start = GetTickCount64();
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_EVENTUALLY(WindowRect(editor), Moved(EDITOR, -SCREEN_W, 0));
    EXPECT_LT(GetTickCount64() - start, 2000U) << "one timeout of 100 ms, with room for a slow machine";
    EXPECT_EQ(WindowRect(hung), other);
    EXPECT_TRUE(WaitForEnd(dying));
    EXPECT_EQ(WindowRect(overriding), Moved(other, 7 - SCREEN_W, 9));
    EXPECT_EQ(WindowRect(maximized).left, -SCREEN_W) << "not beyond the desktop's edge";
    EXPECT_TRUE(IsZoomed(maximized));
    RunActions({ACTION_RESTORE_MAXIMIZED, ACTION_SCREEN_LEFT});
    EXPECT_EVENTUALLY(WindowRect(editor), EDITOR);
    EXPECT_FALSE(IsZoomed(maximized));
    ShowWindow(minimized, SW_RESTORE);
    EXPECT_EVENTUALLY(WindowRect(minimized), other);
}
