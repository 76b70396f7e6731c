#include "settings/regions_file.h"

#include "settings/settings_test.h"

class RegionsFile : public RunningQuorl {};

TEST_F(RegionsFile, ANameReadsBackAsItIsShownAfterSaving) {
    const struct {
        const char *name, *shown;
    } cases[] = {
        {"a|b||c|",                        "a|b||c|"                      },
        {"  two in front, one behind ",    "  two in front, one behind "  },
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

static std::string Written(RegionRow row) {
    char line[WRITTEN_ROOM];
    MakeStorable(&row);
    WrittenRegion(row, line);
    return line;
}

TEST(RegionLine, MarksInARowCountAsOneAndWhatIsTooMuchIsIgnored) {
    const struct {
        const char *line, *read;
    } cases[] = {
        {"||Home||1|2|3||4|5||6",                        "Home|1|2|3|4|5"                               },
        {"short|-1|-1|-1|-1|0",                          "short|-1|-1|-1|-1|0"                          },
        {"|-1|2|3|- 4",                                  "-1|2|3|0|0|0"                                 },
        {"Home|99999999999999999999|2|3|-40000|-1",      "Home|32000|2|3|-32000|-1"                     },
        {"0123456789012345678901234567890123456789|1|2", "01234567890123456789012345678901234|1|2|0|0|0"},
    };
    for (const auto& [line, read] : cases) {
        RegionRow row{};
        ReadRegion(line, &row);
        EXPECT_EQ(Written(row), read);
    }
}

TEST_F(RegionsFile, TheCountStaysWithinTheTableAndRowsWithoutALineCount) {
    Load("num_regions=1000000\n");
    EXPECT_EQ(num_regions, 200);
    Load("num_regions=-5\nRegion0=a|1|2|3|4|5\n");
    EXPECT_EQ(num_regions, 0);
    Load("num_regions=2\nRegion1=b|1|2|3|4|5\n");
    EXPECT_STREQ(RegionTable[0].name, "");
    EXPECT_EQ(RegionTable[0].id, -1);
    EXPECT_EQ(RegionTable[1].id, 1);
    EXPECT_EQ(Desk.hotkeys.size(), 11u + 2u) << "each region has its digit";
}
