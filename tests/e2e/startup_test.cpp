// How Quorl comes up, and what happens when it is started in bad circumstances.
#include "user.h"

TEST(Startup, QuorlStandsAtItsPlaceAboveTheOthers) {
    const HWND quorl = StartQuorl();
    ASSERT_TRUE(quorl);
    EXPECT_EQ(PlaceOf(quorl), (Place{100, 100, 300, 200}));

    constexpr LONG_PTR STYLE = static_cast<LONG_PTR>(WS_POPUP) | WS_THICKFRAME | WS_VISIBLE;
    constexpr LONG_PTR EX_STYLE = WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_LAYERED;
    EXPECT_EQ(GetWindowLongPtrA(quorl, GWL_STYLE) & STYLE & 0xffffffff, STYLE & 0xffffffff);
    EXPECT_EQ(GetWindowLongPtrA(quorl, GWL_EXSTYLE) & EX_STYLE, EX_STYLE);
    BYTE alpha = 0;
    EXPECT_TRUE(GetLayeredWindowAttributes(quorl, nullptr, &alpha, nullptr));
    EXPECT_EQ(alpha, 255);
}

TEST(Startup, ASecondQuorlEndsSilently) {
    const HWND first = StartQuorl();
    ASSERT_TRUE(first);
    EXPECT_EQ(WaitForExit(LaunchQuorl()), 0U);
    EXPECT_EQ(QuorlWindow(), first);
    EXPECT_FALSE(FindWindowExA(nullptr, first, "Quorltop", "Quorltop"));
}

TEST(Startup, WithoutItsHookLibraryTheKeysWork) {
    const std::string alone = ProgramFolder() + "\\alone";
    CreateDirectoryA(alone.c_str(), nullptr);
    ASSERT_TRUE(CopyFileA((ProgramFolder() + "\\quorl.exe").c_str(), (alone + "\\quorl.exe").c_str(), FALSE));
    const HWND editor = OpenWindow("editor", {200, 150, 600, 450});
    ASSERT_TRUE(StartQuorl(alone));
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(PlaceOf(editor), (Place{-824, 150, -424, 450}));
}

TEST(Startup, AfterAKillANewStartWorks) {
    const Place place = {200, 150, 600, 450};
    const HWND editor = OpenWindow("editor", place);
    const HANDLE killed = LaunchQuorl();
    EXPECT_SOON(QuorlWindow() != nullptr, true);
    TerminateProcess(killed, 1);
    EXPECT_SOON(QuorlWindow(), HWND{});

    ASSERT_TRUE(StartQuorl());
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(PlaceOf(editor), Moved(place, -SCREEN_W, 0)) << "the dead one's hotkeys are free again";
}
