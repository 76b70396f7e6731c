// Moving the view over windows of other programs: the good ones, the hung, the dying and the wilful.
// Windows opened first lie undermost and are moved last: when the first has arrived all have had their turn.
#include "user.h"

namespace {

const Place EDITOR = {200, 150, 600, 450};
const Place OTHER = {500, 300, 900, 600};

} // namespace

TEST(Scroll, TheViewStopsAtTheEdgesOfTheDesktop) {
    const HWND editor = OpenWindow("editor", EDITOR);
    ASSERT_TRUE(StartQuorl());
    for (int i = 1; i <= 5; ++i) {
        PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
        EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -SCREEN_W * (i < 3 ? i : 3), 0));
    }
    for (int i = 1; i <= 5; ++i)
        PressKeys({VK_CONTROL, VK_MENU, VK_LEFT});
    EXPECT_SOON(PlaceOf(editor), EDITOR);
}

TEST(Scroll, RealProgramsSlideTogether) {
    const HWND programs[] = {OpenProgram("notepad", "Notepad"), OpenProgram("winemine", "WineMine"),
                             OpenProgram("clock", "CLClass")};
    Place places[3];
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(programs[i]) << i;
        SetWindowPos(programs[i], nullptr, 150 * i + 50, 60 * i + 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        places[i] = PlaceOf(programs[i]);
    }
    ASSERT_TRUE(StartQuorl());
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    for (int i = 0; i < 3; ++i)
        EXPECT_SOON(PlaceOf(programs[i]), Moved(places[i], -SCREEN_W, 0)) << i;
}

TEST(Scroll, AHungProgramStaysAndCostsLittle) {
    const HWND editor = OpenWindow("editor", EDITOR);
    const HWND hung = OpenWindow("hung", OTHER, "hung");
    ASSERT_TRUE(StartQuorl());
    const ULONGLONG start = GetTickCount64();
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -SCREEN_W, 0));
    EXPECT_LT(GetTickCount64() - start, 2000U) << "one wait of 100 ms, with room for a slow machine";
    EXPECT_EQ(PlaceOf(hung), OTHER);
}

TEST(Scroll, AProgramThatDiesMeanwhileHurtsNobody) {
    const HWND editor = OpenWindow("editor", EDITOR);
    const HWND dying = OpenWindow("dying", OTHER, "dies");
    ASSERT_TRUE(StartQuorl());
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_TRUE(WaitForEnd(dying));
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -SCREEN_W, 0));
    PressKeys({VK_CONTROL, VK_MENU, VK_LEFT});
    EXPECT_SOON(PlaceOf(editor), EDITOR);
}

TEST(Scroll, AWindowThatChangesTheRecordLandsWhereItSaid) {
    const HWND wilful = OpenWindow("wilful", EDITOR, "rewrites");
    ASSERT_TRUE(StartQuorl());
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(PlaceOf(wilful), Moved(EDITOR, 7 - SCREEN_W, 9));
}

TEST(Scroll, AMinimizedWindowStaysAndComesBackWhereItWas) {
    const HWND editor = OpenWindow("editor", EDITOR);
    const HWND minimized = OpenWindow("minimized", OTHER);
    ShowWindow(minimized, SW_MINIMIZE);
    ASSERT_TRUE(StartQuorl());
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -SCREEN_W, 0));
    ShowWindow(minimized, SW_RESTORE);
    EXPECT_SOON(PlaceOf(minimized), OTHER);
}

TEST(Scroll, AMaximizedWindowIsRestoredWhenTheUserAskedForIt) {
    const HWND editor = OpenWindow("editor", EDITOR);
    ShowWindow(editor, SW_MAXIMIZE);
    EXPECT_SOON(IsZoomed(editor) != 0, true);
    const Place zoomed = PlaceOf(editor); // its frame lies outside of the screen
    ASSERT_TRUE(StartQuorl());
    DoRow(30);
    const Place atTheEdge = Moved(zoomed, -zoomed.left, -zoomed.top);
    EXPECT_SOON(PlaceOf(editor), Moved(atTheEdge, -SCREEN_W, 0)) << "no window goes past the desktop's edge";
    EXPECT_TRUE(IsZoomed(editor));

    DoRow(82); // restore before moving
    DoRow(28);
    EXPECT_SOON(PlaceOf(editor), atTheEdge);
    EXPECT_FALSE(IsZoomed(editor));
}

TEST(Scroll, AListViewOnTheDesktopIsAskedToScroll) {
    const HWND list = OpenWindow("icons", EDITOR, "list");
    ASSERT_TRUE(StartQuorl());
    DoRow(6); // right by <max>
    EXPECT_SOON(TextOf(list), std::string("scrolled by -100, 0"));
}
