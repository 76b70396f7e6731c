#include "menus/entries.h"
#include "settings/settings_test.h"

#include <climits>

class OptionsFile : public RunningQuorl {};

TEST_F(OptionsFile, AbsentAndNegativeNumbersChangeNothing) {
    Options.maxscroll = 77;
    Load("border=-3\nquorl_menu_count=-1\nmousescroll=\nminscroll=x\n");
    EXPECT_EQ((Entries{Options.border, Options.maxscroll, quorl_menu_count, Options.mousescroll}),
              (Entries{5, 77, 10, 800}));
    EXPECT_EQ(Options.minscroll, 0) << "not a number";
}

TEST_F(OptionsFile, NumbersThatWouldLoseWindowsAreClamped) {
    Load("maxscroll=2147483647\nQuorl.left=2147483647\nQuorl.right=1023\nQuorl.bottom=0\n");
    EXPECT_EQ(Quorl, Rect(LARGEST_DESKTOP, 0, 1024, 768));
    EXPECT_EQ(Options.maxscroll, LARGEST_DESKTOP);
}

TEST_F(OptionsFile, TheMapMovesToAStoredPositionOnADisplay) {
    const auto load = [](int left, int top, int right, int bottom) {
        Load("quorl_pos.left=" + std::to_string(left) + "\nquorl_pos.top=" + std::to_string(top) +
             "\nquorl_pos.right=" + std::to_string(right) + "\nquorl_pos.bottom=" + std::to_string(bottom));
        return RectOf(MainWnd);
    };
    EXPECT_EQ(load(0, 5, 300, 300), Rect(100, 100, 300, 200)) << "left must be positive";
    EXPECT_EQ(load(1, 0, INT_MAX, 9), Rect(1, 0, 32001, 13)) << "within the window's own limits";
    EXPECT_EQ(load(300, 200, -1, -1), Rect(300, 200, 340, 213)) << "only the corner is stored";
    EXPECT_EQ(load(1024, 5, 1200, 80), Rect(300, 200, 340, 213)) << "off the display";
}

TEST_F(OptionsFile, TheMenuIsReadAsFarAsItIsStored) {
    Load("quorl_menu=||7|| 8 |x\n");
    EXPECT_EQ(Menu(), (Entries{7, 8, 0, 77, 49, -1, 56, 57, -1, 59}));
    Load("quorl_menu=\nquorl_menu_count=3\n");
    EXPECT_EQ(Menu(), (Entries{7, 8, 0}));
    Load("quorl_menu_count=0\n");
    EXPECT_EQ(Menu(), Entries{});
    Load("quorl_menu_count=5\nquorl_menu=5000|123|122|-2147483648|-7\n");
    EXPECT_EQ(Menu(), (Entries{-1, -1, 122, INT_MIN, -7})) << "what is no action is a separator";
}

TEST_F(OptionsFile, AMenuTooLongForItsLineLosesItsEnd) {
    std::string stored;
    for (int i = 0; i < MAX_MENU_ENTRIES; ++i)
        stored += "|-2147483648";
    Load("quorl_menu_count=500\nquorl_menu=" + stored + "\n");
    RunAction(ACTION_SAVE_SETTINGS);
    EXPECT_EQ(Stored("quorl_menu"), stored.substr(1, 12 * 170 - 1));
    EXPECT_EQ(Stored("quorl_menu_count"), "170");
}
