// What is kept from one run to the next, in the file where Windows puts it.
#include "settings_file.h"
#include "user.h"

TEST(Settings, TheNextRunFindsWhatTheLastOneLeft) {
    StartQuorl();
    EXPECT_EQ(SettingsText(), "");
    DoRow(14); // the Toolwin 100 pixels to the right
    DoRow(43); // and 5 wider
    DoRow(SAVE);
    EXPECT_SOON(Stored("Action122") != "", true);
    const std::string saved = SettingsText();
    DoRow(14);
    DoRow(48); // back to what was saved
    EXPECT_SOON(PlaceOf(QuorlWindow()), (Place{200, 100, 405, 200}));

    PostMessageA(QuorlWindow(), WM_CLOSE, 0, 0);
    AnswerBox("QUIT?", 'N');
    EXPECT_TRUE(Answers(QuorlWindow()));
    Quit();
    EXPECT_EQ(SettingsText(), saved);
    EXPECT_EQ(PlaceOf(StartQuorl()), (Place{200, 100, 405, 200}));
}
