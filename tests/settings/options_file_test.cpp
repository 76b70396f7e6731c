#include "settings/options_file.h"

#include "core/state.h"
#include "menus/menu_list.h"
#include "settings/settings_test.h"

#include <climits>

namespace {

class OptionsFile : public QuorlTest {};

TEST_F(OptionsFile, ANewFileHoldsItsKeysInOrder) {
    StartQuorl();
    Command(47);

    const std::string expected =
        "[Quorl]\r\nborder=5\r\nmaxscroll=100\r\nminscroll=5\r\nmousescroll=800\r\nalpha=255\r\n"
        "mousescroll_type=3\r\nmousescroll_delay=0\r\nmousescroll_delay_time=100\r\n"
        "Quorl.left=0\r\nQuorl.top=0\r\nQuorl.right=4096\r\nQuorl.bottom=1536\r\n"
        "quorl_pos.left=100\r\nquorl_pos.top=100\r\nquorl_pos.right=300\r\nquorl_pos.bottom=200\r\n"
        "quorl_menu_count=10\r\nquorl_menu=54|55|74|77|49|-1|56|57|-1|59\r\nnum_regions=0\r\n";
    EXPECT_EQ(File().substr(0, expected.size()), expected);
    std::size_t at = expected.size();
    for (int row = 0; row < 123; ++row) {
        const std::string key = "Action" + std::to_string(row) + "=";
        EXPECT_EQ(File().substr(at, key.size()), key);
        at = File().find('\n', at) + 1;
    }
    EXPECT_EQ(at, File().size()) << "nothing comes behind";
    EXPECT_EQ(Stored("Action28"), "-1|-1|6|37|0");
    EXPECT_EQ(Stored("Action0"), "0|16|7|32|0");
}

TEST_F(OptionsFile, WhatIsAbsentOrNegativeStaysAsItIs) {
    StartQuorl();
    Options.maxscroll = 77;
    Quorl.left = 3;
    StoreFile("border=-3\nQuorl.left=-20\nquorl_menu_count=-1\nmousescroll=\nminscroll=x\nalpha=300\n");
    Command(48);
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
    StartQuorl();
    struct {
        const char* line;
        const LONG* where;
        int becomes;
    } const cases[] = {
        {"Quorl.right=0",          &Quorl.right,  1024 },
        {"Quorl.right=1023",       &Quorl.right,  1024 },
        {"Quorl.right=2147483647", &Quorl.right,  32000},
        {"Quorl.right=6442450943", &Quorl.right,  32000}, // past 32 bits, and positive in the low ones
        {"Quorl.bottom=0",         &Quorl.bottom, 768  },
        {"Quorl.bottom=40000",     &Quorl.bottom, 32000},
        {"Quorl.left=2147483647",  &Quorl.left,   32000},
    };
    for (const auto& given : cases) {
        StoreFile(given.line);
        Command(48);
        EXPECT_EQ(*given.where, given.becomes) << given.line;
    }
    StoreFile("maxscroll=2147483647\nborder=2147483647\nmousescroll_type=99\nmousescroll_delay=2147483647\n");
    Command(48);
    EXPECT_EQ(Options.border, 100);
    EXPECT_EQ(Options.mousescroll_type, 99) << "any type has a meaning";
    EXPECT_EQ(Options.mousescroll_delay, INT_MAX);
    for (int time = 0; time < 3; ++time)
        Command(6);
    EXPECT_EQ(VDesk, Rect(32000 - 1024, 0, 32000, 768)) << "the view stays on the desktop";
}

TEST_F(OptionsFile, TheToolwinGoesToAStoredPlaceRightOfZero) {
    StartQuorl();
    const RECT stays{10, 20, 210, 80};
    struct {
        int left, top, right, bottom;
        RECT place;
    } const cases[] = {
        {10,   20,  210,     80,  stays               },
        {0,    5,   300,     300, stays               },
        {-9,   5,   300,     300, stays               },
        {1,    0,   INT_MAX, 9,   {1, 0, 32001, 13}   }, // as far as the window's own limits go
        {1024, 5,   1200,    80,  {1, 0, 32001, 13}   }, // from a display that is gone
        {30,   5,   20,      80,  {30, 5, 70, 80}     }, // no smaller than they go
        {300,  200, -1,      -1,  {300, 200, 340, 213}}, // only its corner is stored
    };
    for (const auto& given : cases) {
        StoreFile("quorl_pos.left=" + std::to_string(given.left) + "\nquorl_pos.top=" +
                  std::to_string(given.top) + "\nquorl_pos.right=" + std::to_string(given.right) +
                  "\nquorl_pos.bottom=" + std::to_string(given.bottom));
        Command(48);
        EXPECT_EQ(PlaceOf(MainWnd), given.place);
    }
}

TEST_F(OptionsFile, WithoutARectangleTheStoredPlaceStays) {
    StoreFile("quorl_pos.left=10\nquorl_pos.top=20\nquorl_pos.right=210\nquorl_pos.bottom=80\n");
    SaveOptions(nullptr, SETTINGS_FILE); // no such window
    EXPECT_EQ(Stored("quorl_pos.right"), "210");
}

TEST_F(OptionsFile, TheMenuTakesTheNumbersThatAreThere) {
    StartQuorl();
    struct {
        const char* lines;
        int count;
        std::vector<int> list; // from the front
    } const cases[] = {
        {"quorl_menu=\nquorl_menu_count=3\n",        3,   {54, 55, 74, 77}          }, // empty: only the count
        {"quorl_menu=1|-2|3\n",                      3,   {1, -2, 3, 77}            }, // the rest keeps what it held
        {"quorl_menu=||7|| 8 |x\n",                  3,   {7, 8, 0, 77}             },
        {"quorl_menu=5000|123|122|-2147483648|-7\n", 3,   {-1, -1, 122, INT_MIN, -7}}, // no action: a separator
        {"quorl_menu_count=2147483647\n",            500, {-1, -1, 122}             },
    };
    for (const auto& given : cases) {
        StoreFile(given.lines);
        Command(48);
        EXPECT_EQ(quorl_menu_count, given.count) << given.lines;
        EXPECT_EQ(std::vector<int>(MenuList, MenuList + given.list.size()), given.list) << given.lines;
    }
}

TEST_F(OptionsFile, AFullMenuSurvivesOneTooLongLosesItsEndAndAnEmptyOneIsWrittenEmpty) {
    StartQuorl();
    struct {
        std::string entry;
        std::size_t given, kept; // entries
    } const cases[] = {
        {"|-99",         700, 500},
        {"|122",         500, 500},
        {"|-2147483648", 300, 170},
    };
    for (const auto& given : cases) {
        std::string stored;
        for (std::size_t place = 0; place < given.given; ++place)
            stored += given.entry;
        StoreFile("quorl_menu_count=500\nquorl_menu=" + stored + "\n");
        Command(48);
        Command(47);
        EXPECT_EQ(Stored("quorl_menu"), stored.substr(1, given.entry.size() * given.kept - 1));
        EXPECT_EQ(Stored("quorl_menu_count"), std::to_string(given.kept));
    }

    quorl_menu_count = 0;
    Command(47);
    EXPECT_NE(File().find("quorl_menu=\n"), std::string::npos);
}

} // namespace
