// The keys that work without any settings, pressed for real, beside those that the tour shows.
#include "settings_file.h"
#include "user.h"

TEST(Hotkeys, TheActiveWindowIsLockedAndUnlocked) {
    const Place otherPlace = {300, 250, 700, 550};
    const HWND witness = OpenWindow("witness", otherPlace); // undermost: moved last
    const HWND editor = OpenWindow("editor", EDITOR);
    StartQuorl();
    Activate(editor);
    PressKeys({VK_LWIN, VK_DOWN});
    EXPECT_SOON(TipStrip() != nullptr, true) << "it says what it locked";
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(PlaceOf(witness), Moved(otherPlace, -SCREEN_W, 0));
    EXPECT_EQ(PlaceOf(editor), EDITOR);

    EXPECT_SOON(TipStrip(), HWND{});
    PressKeys({VK_LWIN, VK_UP});
    EXPECT_SOON(TipStrip() != nullptr, true);
    PressKeys({VK_CONTROL, VK_MENU, VK_DOWN});
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, 0, -SCREEN_H));
}

TEST(Hotkeys, ARefusedCombinationIsReportedAtTheFirstStartOnlyAndTheOthersWork) {
    const HWND editor = OpenWindow("editor", EDITOR);
    ASSERT_TRUE(RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_ALT, VK_RIGHT));
    LaunchQuorl();
    EXPECT_EQ(BoxText(WaitForBox("Error")),
              "Hotkey registeration failed (1409): \n\t\"Move one desktop to the right\" (30)"
              "\nAnother program has already registered the hotkey combination.");
    AnswerBox("Error", VK_RETURN);
    EXPECT_SOON(IsMapShown(), true);
    PressKeys({VK_CONTROL, VK_MENU, VK_DOWN});
    EXPECT_SOON(PlaceOf(editor), Moved(EDITOR, 0, -SCREEN_H));

    Quit();
    EXPECT_EQ(Stored("Action30"), "-1|-1|-1|-1|0");
    EXPECT_TRUE(StartQuorl()) << "it is on show: no box holds it up";
    UnregisterHotKey(nullptr, 1);
}
