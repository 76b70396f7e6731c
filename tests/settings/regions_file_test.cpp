#include "settings/regions_file.h"

#include "settings/settings_test.h"

#include <climits>
#include <cstdio>

namespace {

class RegionsFile : public RunningQuorl {};

TEST_F(RegionsFile, ANameReadsBackAsItIsShownAfterSaving) {
    const auto readBack = [](const char* name) {
        RegionTable[0] = {0, "", 11111, 22222, 12135, 22990, 16777215};
        std::snprintf(RegionTable[0].name, sizeof RegionTable[0].name, "%s", name);
        num_regions = 1;
        Command(47);
        std::string shown = RegionTable[0].name;
        RegionTable[0] = {};
        Command(48);
        const RegionRow& read = RegionTable[0];
        EXPECT_EQ(read.name, shown) << "the table holds what is stored";
        EXPECT_EQ(RECT({read.left, read.top, read.right, read.bottom}), Rect(11111, 22222, 12135, 22990));
        EXPECT_EQ(read.color, 16777215u) << name;
        return shown;
    };
    for (const char* name :
         {"a|b||c|", "|", "", "  two in front, one behind ", "\"quoted\"", " \"'", ";=\xE4\xFF"})
        EXPECT_EQ(readBack(name), name);
    EXPECT_EQ(readBack("tab\tand\x01one"), "tab and one");
    EXPECT_EQ(readBack(" 123456789012345678901234567890"), " 1234567890123456789012345678");
    EXPECT_EQ(readBack("0123456789012345678901234567890"), "012345678901234567890123456789");
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
    struct {
        const char *line, *name;
        int left, bottom;
        COLORREF color;
    } const cases[] = {
        {"||Home||1|2|3||4|5||6",                        "Home",                                1,     4,      5  },
        {"Home",                                         "Home",                                0,     0,      0  },
        {"|||",                                          "",                                    0,     0,      0  },
        {"|-1|2|3|- 4",                                  "-1",                                  2,     0,      0  },
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
    const auto counted = [](const char* lines) {
        Load(lines);
        return num_regions;
    };
    EXPECT_EQ(counted("num_regions=1000000\n"), 200);
    EXPECT_EQ(counted("num_regions=-5\nRegion0=a|1|2|3|4|5\n"), 0);
    EXPECT_EQ(counted("Region0=a|1|2|3|4|5\n"), 0);
    EXPECT_EQ(counted("num_regions=3\nRegion0=a|1|2|3|4|5\nRegion2=c|1|2|3|4|5\nRegion3=old|1|2|3|4|5\n"), 3);
    EXPECT_STREQ(RegionTable[1].name, "");
    EXPECT_EQ(RegionTable[1].id, -1);
    EXPECT_EQ(RegionTable[2].id, 2);
    EXPECT_STREQ(RegionTable[3].name, "") << "a line behind the count is not read";
    Command(47);
    EXPECT_EQ(Stored("Region3"), "old|1|2|3|4|5") << "nor touched";
    EXPECT_EQ(Desk.hotkeys.size(), 11u + 3u) << "each region has its digit";
}

} // namespace
