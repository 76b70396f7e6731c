// What is kept from one run to the next, in the file where Windows puts it.
#include "dialogs.h"
#include "settings_file.h"

namespace {

// By its own question, after all that it was told before.
void Quit() {
    DoRow(59);
    AnswerBox("QUIT?", 'Y');
    EXPECT_SOON(QuorlWindow(), HWND{});
}

} // namespace

TEST(Settings, SavingWritesTheFileInTheWindowsFolder) {
    ASSERT_TRUE(StartQuorl());
    EXPECT_EQ(SettingsText(), "");
    DoRow(47);
    EXPECT_SOON(Stored("Action122"), std::string("-1|-1|-1|-1|1"));
    EXPECT_EQ(SettingsText().substr(0, 44), "[Quorl]\r\nborder=5\r\nmaxscroll=100\r\nminscroll=");
    EXPECT_EQ(Stored("Action28"), "-1|-1|6|37|0");
    EXPECT_EQ(Stored("Action0"), "0|16|7|32|0");
    EXPECT_EQ(Stored("quorl_menu"), "54|55|74|77|49|-1|56|57|-1|59");
}

TEST(Settings, TheNextRunFindsWhatTheLastOneLeft) {
    ASSERT_TRUE(StartQuorl());
    DoRow(14); // the Toolwin 100 pixels to the right
    DoRow(43); // and 5 wider
    DoRow(60); // a screen more
    DoRow(70);
    Quit();
    EXPECT_EQ(Stored("Quorl.right"), "5120");

    Store("Action28", "-1|-1|6|120|0"); // F9 in place of the arrow
    Store("Region0", "\" mail\x01web|2048|0|3072|768|255\"");
    Store("num_regions", "1");
    const HWND editor = OpenWindow("editor", {200, 150, 600, 450});
    const HWND quorl = StartQuorl();
    ASSERT_TRUE(quorl);
    EXPECT_EQ(PlaceOf(quorl), (Place{200, 100, 405, 200}));
    PressKeys({VK_CONTROL, VK_MENU, VK_RIGHT});
    EXPECT_SOON(PlaceOf(editor), (Place{-824, 150, -424, 450}));
    EXPECT_FALSE(TipStrip()) << "tips are off";
    PressKeys({VK_CONTROL, VK_MENU, VK_F9});
    EXPECT_SOON(PlaceOf(editor), (Place{200, 150, 600, 450}));
    PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, '0'});
    EXPECT_SOON(PlaceOf(editor), (Place{-1848, 150, -1448, 450})) << "the region has its digit";

    const std::string before = SettingsText();
    DoRow(47);
    DoRow(48);
    Quit();
    EXPECT_EQ(SettingsText(), before) << "what was saved is saved again the same";
}

TEST(Settings, ACombinationThatTheShellHoldsIsReportedAtTheFirstStartOnly) {
    ASSERT_TRUE(RegisterHotKey(nullptr, 1, MOD_WIN, VK_UP));
    LaunchQuorl();
    AnswerBox("Error", VK_RETURN);
    EXPECT_SOON(QuorlWindow() && IsWindowVisible(QuorlWindow()), true);
    Quit();
    EXPECT_EQ(Stored("Action41"), "2|2|-1|-1|0");
    EXPECT_TRUE(StartQuorl()) << "it is on show: no box holds it up";
    UnregisterHotKey(nullptr, 1);
}
