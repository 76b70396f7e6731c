#include "settings/regions_file.h"

#include "settings/settings_test.h"

class RegionsFile : public RunningQuorl {};

TEST_F(RegionsFile, ANameReadsBackAsSaved) {
    const std::pair<const char*, const char*> cases[] = {
        {"a|b||c|", "a|b||c|"},
        {"\x83||\x83\x83|\x83|", "\x83||\x83\x83|\x83|"}, // letters with '|' as their second byte
        {"  two in front, one behind ", "  two in front, one behind "},
        {";=\xE4\xFF", ";=\xE4\xFF"},
        {"tab\tand\x01one", "tab and one"},
        {" 12345678901234567890123456789", " 123456789012345678901234567"},
        {"012345678901234567890123456789", "01234567890123456789012345678"},
    };
    const auto readBack = [](const std::string& name) {
        num_regions = 0;
        AddRegion(name, 1111111, 2222222);
        RunAction(ACTION_SAVE_SETTINGS);
        RunAction(ACTION_LOAD_SETTINGS);
        return std::string(RegionTable[0].name);
    };
    for (const UINT codePage : {1252U, 932U, 936U, 949U, 950U}) {
        Desk.codePage = codePage;
        for (const auto& [name, saved] : cases)
            EXPECT_EQ(readBack(name), saved) << codePage;
        const std::string full(28, '1');
        EXPECT_EQ(readBack(full + "\x83|"), codePage == 1252 ? full + '\x83' : full) << codePage;
    }
}

TEST(RegionLine, ParsesAnyText) {
    const std::pair<const char*, const char*> cases[] = {
        {"||Home||1|2|3||4|5||6", "Home|1|2|3|4|5"},
        {"short|-1|-1|-1|-1|0", "short|-1|-1|-1|-1|0"},
        {"|-1|2|3|- 4", "-1|2|3|0|0|0"},
        {"Home|99999999999999999999|2|3|-40000|-1", "Home|32000|2|3|-32000|-1"},
        {"0123456789012345678901234567890123456789|1|2", "01234567890123456789012345678901234|1|2|0|0|0"},
    };
    for (const auto& [line, parsed] : cases) {
        RegionRow region{};
        ParseRegion(line, &region);
        MakeStorable(&region);
        char formatted[WRITTEN_SIZE];
        FormatRegion(region, formatted);
        EXPECT_STREQ(formatted, parsed);
    }
    Desk.codePage = 932;
    RegionRow region{};
    ParseRegion("0123456789012345678901234567890123\x83||1", &region);
    EXPECT_STREQ(region.name, "0123456789012345678901234567890123");
    ParseRegion("half\x83\0|7", &region);
    EXPECT_EQ(region.name + std::to_string(region.left), "half0");
}

TEST_F(RegionsFile, TheCountIsClampedAndIncludesRegionsWithoutALine) {
    Load("num_regions=1000000\n");
    EXPECT_EQ(num_regions, MAX_REGIONS);
    Load("num_regions=-5\nRegion0=a|1|2|3|4|5\n");
    EXPECT_EQ(num_regions, 0);
    const std::size_t hotkeys = Desk.hotkeys.size();
    Load("num_regions=2\nRegion1=b|1|2|3|4|5\n");
    EXPECT_STREQ(RegionTable[0].name, "");
    EXPECT_STREQ(RegionTable[1].name, "b");
    EXPECT_EQ(Desk.hotkeys.size(), hotkeys + 2);
}
