// The way out: asked, refused, granted.
#include "user.h"

namespace {

const Place EDITOR = {200, 150, 600, 450};

// Closes Quorl's window as the task bar would, and answers its question by the key.
void AskToQuit(HWND quorl, WORD answer) {
    PostMessageA(quorl, WM_CLOSE, 0, 0);
    const HWND box = WaitForBox("QUIT?");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box), "QUIT?");
    Activate(box);
    PressKeys({answer});
    EXPECT_TRUE(WaitForEnd(box));
}

} // namespace

TEST(Quit, NoChangesNothing) {
    const HWND editor = OpenWindow("editor", EDITOR);
    const HWND quorl = StartQuorl();
    ASSERT_TRUE(quorl);
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -SCREEN_W, 0));
    AskToQuit(quorl, 'N');
    EXPECT_EQ(PlaceOf(editor), Moved(EDITOR, -SCREEN_W, 0));
    PressKeys({VK_CONTROL, VK_MENU, VK_LEFT});
    EXPECT_SOON(PlaceOf(editor), EDITOR) << "it goes on working";
}

TEST(Quit, YesGathersTheWindowsAndFreesTheKeys) {
    const HWND editor = OpenWindow("editor", EDITOR);
    const HANDLE process = LaunchQuorl();
    EXPECT_SOON(QuorlWindow() && IsWindowVisible(QuorlWindow()), true);
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    PressKeys({VK_CONTROL, VK_MENU, VK_DOWN});
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, -SCREEN_W, -SCREEN_H));
    AskToQuit(QuorlWindow(), 'Y');
    EXPECT_EQ(WaitForExit(process), 0U);
    EXPECT_EQ(PlaceOf(editor), EDITOR);
    EXPECT_TRUE(RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_ALT, VK_RIGHT));
    UnregisterHotKey(nullptr, 1);
}
