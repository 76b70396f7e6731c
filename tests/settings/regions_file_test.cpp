#include "settings/regions_file.h"

#include "settings/settings_test.h"

#include <climits>
#include <cstdio>
#include <cstring>

namespace {

class RegionsFile : public RunningQuorl {};

TEST_F(RegionsFile, ANameReadsBackAsItIsShownAfterSaving) {
    struct {
        const char* name;
        const char* becomes;
        const char* stored; // null: not looked at
    } const cases[] = {
        {"Mail",                            "Mail",                           "Mail|11111|22222|12135|22990|16777215"},
        {"a|b||c|",                         "a|b||c|",                        nullptr                                },
        {"|",                               "|",                              nullptr                                },
        {"",                                "",                               "|11111|22222|12135|22990|16777215"    },
        {"  two in front, one behind ",     "  two in front, one behind ",    nullptr                                },
        {" ",                               " ",                              nullptr                                },
        {"\"quoted\"",                      "\"quoted\"",                     nullptr                                },
        {" \"'",                            " \"'",                           nullptr                                },
        {"[Quorl]",                         "[Quorl]",                        nullptr                                },
        {";=\xE4\xFF",                      ";=\xE4\xFF",                     nullptr                                },
        {"tab\tand\x01one",                 "tab and one",                    nullptr                                },
        {" 123456789012345678901234567890", " 1234567890123456789012345678",  nullptr                                },
        {"0123456789012345678901234567890", "012345678901234567890123456789", nullptr                                },
    };
    for (const auto& given : cases) {
        RegionTable[0] = {0, "", 11111, 22222, 12135, 22990, 16777215};
        std::snprintf(RegionTable[0].name, sizeof RegionTable[0].name, "%s", given.name);
        num_regions = 1;
        Command(47);
        EXPECT_STREQ(RegionTable[0].name, given.becomes) << "the table holds what is stored";
        if (given.stored) {
            EXPECT_EQ(Stored("Region0"), given.stored);
        }
        RegionTable[0] = {};
        Command(48);
        const RegionRow& read = RegionTable[0];
        EXPECT_STREQ(read.name, given.becomes);
        EXPECT_EQ(RECT({read.left, read.top, read.right, read.bottom}), Rect(11111, 22222, 12135, 22990));
        EXPECT_EQ(read.color, 16777215u) << given.name;
    }
}

TEST(RegionLine, TheNameGivesWaySoThatAllNumbersAreSeen) {
    const int least = INT_MIN;
    RegionRow row{0, "0123456789012345678901234567890", least, least, least, least, 0x80000000u};
    char line[WRITTEN_ROOM];
    MakeStorable(&row);
    WrittenRegion(row, line);
    EXPECT_STREQ(line, "012|-2147483648|-2147483648|-2147483648|-2147483648|-2147483648");
    EXPECT_EQ(std::strlen(line), 63u);
}

TEST(RegionLine, MarksInARowCountAsOneAndWhatIsTooMuchIsIgnored) {
    struct {
        const char* line;
        const char* name;
        int left, bottom;
        COLORREF color;
    } const cases[] = {
        {"Home|1|2|3|4|5",                               "Home",                                1,     4,      5  },
        {"||Home||1|2|3||4|5||",                         "Home",                                1,     4,      5  },
        {"Home|1|2|3|4|5|6|7",                           "Home",                                1,     4,      5  },
        {"|1|2|3|4|5",                                   "",                                    1,     4,      5  },
        {"Home",                                         "Home",                                0,     0,      0  },
        {"Home|1|2|",                                    "Home",                                1,     0,      0  },
        {"|||",                                          "",                                    0,     0,      0  },
        {"Home| -1x|+2|z|- 4|0x5",                       "Home",                                -1,    0,      0  },
        {"Home|99999999999999999999|2|3|-40000|-1",      "Home",                                32000, -32000, ~0u},
        {"0123456789012345678901234567890123456789|1|2", "01234567890123456789012345678901234", 1,     0,      0  },
    };
    for (const auto& given : cases) {
        RegionRow row{};
        ReadRegion(given.line, &row);
        EXPECT_STREQ(row.name, given.name) << given.line;
        EXPECT_EQ(row.left, given.left) << given.line;
        EXPECT_EQ(row.bottom, given.bottom) << given.line;
        EXPECT_EQ(row.color, given.color) << given.line;
    }
}

TEST_F(RegionsFile, TheCountStaysWithinTheTableAndRowsWithoutALineCount) {
    struct {
        const char* lines;
        int count;
    } const cases[] = {
        {"num_regions=3\nRegion0=a|1|2|3|4|5\nRegion2=c|1|2|3|4|5\nRegion3=old|1|2|3|4|5\n", 3  },
        {"num_regions=1000000\n",                                                            200},
        {"num_regions=-5\nRegion0=a|1|2|3|4|5\n",                                            0  },
        {"Region0=a|1|2|3|4|5\n",                                                            0  },
    };
    for (const auto& given : cases) {
        StoreFile(given.lines);
        Command(48);
        EXPECT_EQ(num_regions, given.count) << given.lines;
    }
    StoreFile(cases[0].lines);
    Command(48);
    EXPECT_STREQ(RegionTable[1].name, "");
    EXPECT_EQ(RegionTable[1].id, -1);
    EXPECT_EQ(RegionTable[2].id, 2);
    EXPECT_STREQ(RegionTable[3].name, "") << "a line behind the count is not read";
    Command(47);
    EXPECT_EQ(Stored("Region3"), "old|1|2|3|4|5") << "nor touched";
    EXPECT_EQ(Desk.hotkeys.size(), 11u + 3u) << "each region has its digit";
}

} // namespace
