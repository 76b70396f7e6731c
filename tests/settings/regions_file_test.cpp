#include "settings/regions_file.h"

#include "settings/settings_test.h"

#include <climits>

namespace {

class RegionsFile : public RunningQuorl {};

TEST_F(RegionsFile, ANameReadsBackAsItIsShownAfterSaving) {
    const struct {
        const char *name, *shown;
    } cases[] = {
        {"a|b||c|",                        "a|b||c|"                      },
        {"",                               ""                             },
        {"  two in front, one behind ",    "  two in front, one behind "  },
        {" \"'",                           " \"'"                         },
        {";=\xE4\xFF",                     ";=\xE4\xFF"                   },
        {"tab\tand\x01one",                "tab and one"                  },
        {" 12345678901234567890123456789", " 123456789012345678901234567" },
        {"012345678901234567890123456789", "01234567890123456789012345678"},
    };
    for (const auto& [name, shown] : cases) {
        num_regions = 0;
        Mark(name, 1111111, 2222222);
        Command(47);
        EXPECT_STREQ(RegionTable[0].name, shown) << "the table holds what is stored";
        Command(48);
        EXPECT_STREQ(RegionTable[0].name, shown);
    }
}

TEST(RegionLine, TheNameGivesWaySoThatAllNumbersAreSeen) {
    const int least = INT_MIN;
    RegionRow row{0, "0123456789012345678901234567890", least, least, least, least, 0x80000000u};
    char line[WRITTEN_ROOM];
    MakeStorable(&row);
    WrittenRegion(row, line);
    EXPECT_STREQ(line, "012|-2147483648|-2147483648|-2147483648|-2147483648|-2147483648");
}

TEST(RegionLine, MarksInARowCountAsOneAndWhatIsTooMuchIsIgnored) {
    const struct {
        const char *line, *name;
        int left, bottom;
        COLORREF color;
    } cases[] = {
        {"||Home||1|2|3||4|5||6",                        "Home",                                1,     4,      5  },
        {"Home",                                         "Home",                                0,     0,      0  },
        {"|-1|2|3|- 4",                                  "-1",                                  2,     0,      0  },
        {"Home|99999999999999999999|2|3|-40000|-1",      "Home",                                32000, -32000, ~0u},
        {"0123456789012345678901234567890123456789|1|2", "01234567890123456789012345678901234", 1,     0,      0  },
    };
    for (const auto& given : cases) {
        RegionRow row{};
        ReadRegion(given.line, &row);
        EXPECT_STREQ(row.name, given.name);
        EXPECT_EQ(row.left, given.left) << given.line;
        EXPECT_EQ(row.bottom, given.bottom) << given.line;
        EXPECT_EQ(row.color, given.color) << given.line;
    }
}

TEST_F(RegionsFile, TheCountStaysWithinTheTableAndRowsWithoutALineCount) {
    Load("num_regions=1000000\n");
    EXPECT_EQ(num_regions, 200);
    Load("num_regions=-5\nRegion0=a|1|2|3|4|5\n");
    EXPECT_EQ(num_regions, 0);
    Mark("behind", 0, 0);
    Load("num_regions=2\nRegion1=b|1|2|3|4|5\nRegion2=old|1|2|3|4|5\n");
    EXPECT_EQ(num_regions, 2);
    EXPECT_STREQ(RegionTable[0].name, "");
    EXPECT_EQ(RegionTable[0].id, -1);
    EXPECT_EQ(RegionTable[1].id, 1);
    EXPECT_STREQ(RegionTable[2].name, "") << "a line behind the count is not read";
    Command(47);
    EXPECT_EQ(Stored("Region2"), "old|1|2|3|4|5") << "nor touched";
    EXPECT_EQ(Desk.hotkeys.size(), 11u + 2u) << "each region has its digit";
}

} // namespace
