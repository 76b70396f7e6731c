#include "menus/entries.h"
#include "settings/settings_test.h"

#include <climits>

class OptionsFile : public RunningQuorl {};

TEST_F(OptionsFile, WhatIsAbsentOrNegativeStaysAsItIs) {
    Options.maxscroll = 77;
    Load("border=-3\nquorl_menu_count=-1\nmousescroll=\nminscroll=x\n");
    EXPECT_EQ(Options.border, 5);
    EXPECT_EQ(Options.maxscroll, 77);
    EXPECT_EQ(quorl_menu_count, 10);
    EXPECT_EQ(Options.mousescroll, 800);
    EXPECT_EQ(Options.minscroll, 0) << "what is no number reads as 0";
}

TEST_F(OptionsFile, NumbersWithWhichWindowsWouldBeLostAreHeld) {
    Load("Quorl.left=2147483647\nQuorl.right=1023\nQuorl.bottom=0\n");
    EXPECT_EQ(Quorl, Rect(32000, 0, 1024, 768));
    Load("maxscroll=2147483647\nborder=2147483647\n");
    EXPECT_EQ(Options.border, 100);
    EXPECT_EQ(Options.maxscroll, 32000);
}

TEST_F(OptionsFile, TheToolwinGoesToAStoredPlaceRightOfZero) {
    const auto placed = [](int left, int top, int right, int bottom) {
        Load("quorl_pos.left=" + std::to_string(left) + "\nquorl_pos.top=" + std::to_string(top) +
             "\nquorl_pos.right=" + std::to_string(right) + "\nquorl_pos.bottom=" + std::to_string(bottom));
        return PlaceOf(MainWnd);
    };
    EXPECT_EQ(placed(0, 5, 300, 300), Rect(100, 100, 300, 200));
    EXPECT_EQ(placed(1, 0, INT_MAX, 9), Rect(1, 0, 32001, 13)) << "as far as the window's own limits go";
    EXPECT_EQ(placed(1024, 5, 1200, 80), Rect(1, 0, 32001, 13)) << "from a display that is gone";
    EXPECT_EQ(placed(300, 200, -1, -1), Rect(300, 200, 340, 213)) << "only its corner is stored";
}

TEST_F(OptionsFile, TheMenuTakesTheNumbersThatAreThere) {
    Load("quorl_menu=||7|| 8 |x\n");
    EXPECT_EQ(Menu(), (Entries{7, 8, 0, 77, 49, -1, 56, 57, -1, 59})) << "the rest stays";
    Load("quorl_menu=\nquorl_menu_count=3\n");
    EXPECT_EQ(Menu(), (Entries{7, 8, 0})) << "empty: only the count";
    Load("quorl_menu_count=5\nquorl_menu=5000|123|122|-2147483648|-7\n");
    EXPECT_EQ(Menu(), (Entries{-1, -1, 122, INT_MIN, -7})) << "no action: a separator";
}

TEST_F(OptionsFile, AMenuTooLongForItsLineLosesItsEnd) {
    std::string stored;
    for (int place = 0; place < 500; ++place)
        stored += "|-2147483648";
    Load("quorl_menu_count=500\nquorl_menu=" + stored + "\n");
    Command(47);
    EXPECT_EQ(Stored("quorl_menu"), stored.substr(1, 12 * 170 - 1));
    EXPECT_EQ(Stored("quorl_menu_count"), "170");
}
