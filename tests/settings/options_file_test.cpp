#include "settings/options_file.h"

#include "menus/entries.h"
#include "settings/settings_test.h"

#include <climits>

namespace {

class OptionsFile : public RunningQuorl {};

TEST_F(OptionsFile, WhatIsAbsentOrNegativeStaysAsItIs) {
    Options.maxscroll = 77;
    Quorl.left = 3;
    Load("border=-3\nQuorl.left=-20\nquorl_menu_count=-1\nmousescroll=\nminscroll=x\nalpha=300\n");
    EXPECT_EQ(Options.border, 5);
    EXPECT_EQ(Options.maxscroll, 77);
    EXPECT_EQ(Quorl.left, 3);
    EXPECT_EQ(quorl_menu_count, 10);
    EXPECT_EQ(Options.mousescroll, 800);
    EXPECT_EQ(Options.minscroll, 0) << "what is no number reads as 0";
    Command(47);
    EXPECT_EQ(Stored("alpha"), "44") << "of the opacity the low byte is written";
}

TEST_F(OptionsFile, NumbersWithWhichWindowsWouldBeLostAreHeld) {
    Load("Quorl.left=2147483647\nQuorl.right=1023\nQuorl.bottom=0\n");
    EXPECT_EQ(Quorl, Rect(32000, 0, 1024, 768));
    Load("Quorl.right=6442450943\nQuorl.bottom=40000\n"); // past 32 bits, and positive in the low ones
    EXPECT_EQ(Quorl, Rect(32000, 0, 32000, 32000));
    Load("Quorl.left=0\nmaxscroll=2147483647\nborder=2147483647\nmousescroll_type=99\n"
         "mousescroll_delay=2147483647\n");
    EXPECT_EQ(Options.border, 100);
    EXPECT_EQ(Options.maxscroll, 32000);
    EXPECT_EQ(Options.mousescroll_type, 99) << "any type has a meaning";
    EXPECT_EQ(Options.mousescroll_delay, INT_MAX);
}

TEST_F(OptionsFile, TheToolwinGoesToAStoredPlaceRightOfZero) {
    const auto placed = [](int left, int top, int right, int bottom) {
        Load("quorl_pos.left=" + std::to_string(left) + "\nquorl_pos.top=" + std::to_string(top) +
             "\nquorl_pos.right=" + std::to_string(right) + "\nquorl_pos.bottom=" + std::to_string(bottom));
        return PlaceOf(MainWnd);
    };
    EXPECT_EQ(placed(0, 5, 300, 300), Rect(100, 100, 300, 200)) << "it stays";
    EXPECT_EQ(placed(1, 0, INT_MAX, 9), Rect(1, 0, 32001, 13)) << "as far as the window's own limits go";
    EXPECT_EQ(placed(1024, 5, 1200, 80), Rect(1, 0, 32001, 13)) << "from a display that is gone";
    EXPECT_EQ(placed(30, 5, 20, 80), Rect(30, 5, 70, 80)) << "no smaller than they go";
    EXPECT_EQ(placed(300, 200, -1, -1), Rect(300, 200, 340, 213)) << "only its corner is stored";
    SaveOptions(nullptr, SETTINGS_FILE); // no such window
    EXPECT_EQ(Stored("quorl_pos.left"), "300") << "without a rectangle the stored place stays";
}

TEST_F(OptionsFile, TheMenuTakesTheNumbersThatAreThere) {
    Load("quorl_menu=||7|| 8 |x\n");
    EXPECT_EQ(Menu(), (Entries{7, 8, 0, 77, 49, -1, 56, 57, -1, 59})) << "the rest stays";
    Load("quorl_menu=\nquorl_menu_count=3\n");
    EXPECT_EQ(Menu(), (Entries{7, 8, 0})) << "empty: only the count";
    Load("quorl_menu_count=5\nquorl_menu=5000|123|122|-2147483648|-7\n");
    EXPECT_EQ(Menu(), (Entries{-1, -1, 122, INT_MIN, -7})) << "no action: a separator";
    Load("quorl_menu_count=2147483647\n");
    EXPECT_EQ(quorl_menu_count, 500);
}

TEST_F(OptionsFile, AFullMenuSurvivesOneTooLongLosesItsEndAndAnEmptyOneIsWrittenEmpty) {
    struct {
        std::string entry;
        std::size_t given, kept; // entries
    } const cases[] = {
        {"|-99",         700, 500},
        {"|-2147483648", 300, 170},
        {"|54",          0,   0  },
    };
    for (const auto& [entry, given, kept] : cases) {
        std::string stored;
        for (std::size_t place = 0; place < given; ++place)
            stored += entry;
        Load("quorl_menu_count=" + std::to_string(given) + "\nquorl_menu=" + stored + "\n");
        Command(47);
        EXPECT_EQ(Stored("quorl_menu"), stored.substr(0, entry.size() * kept).erase(0, 1));
        EXPECT_EQ(Stored("quorl_menu_count"), std::to_string(kept));
    }
}

} // namespace
