#include "settings/settings.h"

#include "actions/hotkeys.h"
#include "core/create.h"
#include "core/state.h"
#include "menus/menu_list.h"
#include "regions/region_table.h"
#include "settings/settings_test.h"

#include <cstring>

namespace {

class Settings : public RunningQuorl {};

// All that is kept between runs but the actions, as one text.
std::string Kept() {
    std::string text;
    for (const int number : {Options.border, Options.maxscroll, Options.minscroll, Options.mousescroll,
                             static_cast<int>(Options.alpha), Options.mousescroll_type,
                             Options.mousescroll_delay, Options.mousescroll_delay_time})
        text += std::to_string(number) + ' ';
    for (const RECT& rect : {Quorl, PlaceOf(MainWnd)})
        for (const LONG side : {rect.left, rect.top, rect.right, rect.bottom})
            text += std::to_string(side) + ' ';
    for (int place = 0; place < quorl_menu_count; ++place)
        text += std::to_string(MenuList[place]) + ' ';
    for (int index = 0; index < num_regions; ++index) {
        const RegionRow& row = RegionTable[index];
        text += row.name;
        for (const int number : {row.left, row.top, row.right, row.bottom, static_cast<int>(row.color)})
            text += std::to_string(number) + ' ';
    }
    return text;
}

std::string KeptActions() {
    std::string text;
    for (const ActionRow& row : ActionTable)
        for (const int number : {row.mouse_mods, row.mouse_btn, row.key_mods, row.vk, row.value})
            text += std::to_string(number) + ' ';
    return text;
}

// Nothing is as it was at first.
void ChangeAll() {
    Options = {6, 101, 7, 801, 102, 254, 2, 3, Options.hook_present};
    Quorl = {1, 2, 5000, 1600};
    MoveWindow(MainWnd, 40, 50, 300, 200, TRUE);
    SwapMenuEntries(0, 1);
    AppendMenuEntry(-2);
    RegionTable[0] = {0, "First|Second", 0, 100, 1024, 868, 255};
    RegionTable[1] = {1, "", 3976, 768, 5000, 1536, 16777215};
    num_regions = 2;
    for (ActionId row = 0; row < NUM_ACTIONS; ++row)
        ActionTable[row].value = row == ROW_LOAD_SETTINGS || !ActionTable[row].value;
    ActionTable[4].mouse_mods = KEY_WIN;
    ActionTable[28].vk = VK_F1 + 4;
}

TEST_F(Settings, AllThatIsKeptComesBackInTheNextRun) {
    ChangeAll();
    const std::string kept = Kept();
    const std::string actions = KeptActions();
    SaveSettings(MainWnd);

    ClearAllActionKeys(MainWnd);
    OnCreate(MainWnd); // fills in every default, as the next run does
    EXPECT_EQ(Kept(), kept);
    EXPECT_EQ(KeptActions(), actions);
}

TEST_F(Settings, AreSavedAsAWholeOrNotAtAll) {
    EXPECT_EQ(DoAction(MainWnd, 47, nullptr), 0);
    const std::string before = File();
    ChangeAll();
    Command(47);
    const std::string after = File();
    const int writes = 18 + 1 + 2 + 123;
    for (int nth = 1; nth <= writes; ++nth) {
        File() = before;
        Desk.fault = {"WritePrivateProfileStringA", nth};
        SaveSettings(MainWnd);
        EXPECT_EQ(Desk.fault.hits, 1) << nth;
        EXPECT_EQ(File(), before) << "write " << nth;
        EXPECT_EQ(Desk.files.size(), 1U) << "no copy is left";
    }
    for (const char* call :
         {"WritePrivateProfileStringA", "GetWindowsDirectoryA", "CopyFileA", "MoveFileExA"}) {
        File() = before;
        Desk.fault = {call, *call == 'W' ? writes + 1 : 1};
        SaveSettings(MainWnd);
        EXPECT_EQ(File(), after) << call;
        EXPECT_EQ(Desk.files.size(), 1U) << call;
    }
}

TEST_F(Settings, AnUnfinishedCopyOfAnEarlierRunCountsForNothing) {
    Command(47);
    const std::string whole = File();
    Desk.files = {
        {"quorl.new", "[Quorl]\r\nhalf=1"}
    };
    Command(47);
    EXPECT_EQ(File(), whole);
}

// Everything that other code relies on, whatever the file said.
void ExpectSane(const std::string& what) {
    EXPECT_TRUE(num_regions >= 0 && num_regions <= MAX_REGIONS) << what;
    EXPECT_TRUE(quorl_menu_count >= 0 && quorl_menu_count <= MAX_MENU_ENTRIES) << what;
    EXPECT_TRUE(Quorl.right >= 1024 && Quorl.right <= 32000 && Quorl.bottom >= 768 && Quorl.bottom <= 32000)
        << what;
    for (const int entry : MenuList)
        EXPECT_LT(entry, NUM_ACTIONS) << what;
    for (const RegionRow& row : RegionTable)
        EXPECT_TRUE(std::memchr(row.name, 0, sizeof row.name)) << what;
}

void LoadHostile(const std::string& what, const std::string& file) {
    File() = file;
    Desk.answers.assign(NUM_ACTIONS, IDOK); // to the boxes of refused hotkeys
    LoadSettings(MainWnd);
    ExpectSane(what);
    SaveSettings(MainWnd);
    const std::string kept = Kept();
    Desk.answers.assign(NUM_ACTIONS, IDOK);
    LoadSettings(MainWnd);
    EXPECT_EQ(Kept(), kept) << what;
    Desk.answers.clear();
}

TEST_F(Settings, NoFileHarms) {
    const std::string many(10 << 20, '7');
    const std::string marks(100000, '|');
    const std::string row = "[Quorl]\nAction5=";
    LoadHostile("empty", "");
    LoadHostile("no end of line", "[Quorl]\nborder");
    LoadHostile("no line", std::string(1000, '\n'));
    LoadHostile("10 MB in one value", row + "1|2" + many + "\nnum_regions=1\nRegion0=a|1");
    LoadHostile("long values",
                row + marks + "\nborder=" + marks + "9\nnum_regions=1\nRegion0=" + marks + "a");
    LoadHostile("a long menu",
                "[Quorl]\nquorl_menu_count=999\nquorl_menu=" + std::string(4046, '1') + marks + "|5");
    LoadHostile("a million regions", "[Quorl]\nnum_regions=1000000\nRegion199=x|1\nRegion200=y|2");
    LoadHostile("least numbers", row + "-2147483648|-2147483648|-2147483648|-2147483648|-2147483648");
    LoadHostile("most numbers", row + "2147483647|2147483647|2147483647|2147483647|2147483647");
    LoadHostile("past 32 bits", row + "4294967296|9999999999999|99999999999999999999|1e9|9");
    LoadHostile("formats", "[Quorl]\nRegion0=%s%n%d|%s\nnum_regions=1\nAction5=%n|%s");
    LoadHostile("zeros", std::string(5000, '\0'));
    LoadHostile("two bytes a letter", std::string("\xFF\xFE[\0Q\0u\0o\0r\0l\0]\0\n\0b\0=\0007\0", 24));
    LoadHostile("a mark in front", "\xEF\xBB\xBF[Quorl]\nnum_regions=1\nRegion0=\xE2\x82\xAC|1|2|3");
}

TEST_F(Settings, NoBrokenFileHarms) {
    ChangeAll();
    Command(47);
    const std::string good = File();
    unsigned chance = 1;
    for (std::size_t cut = 0; cut < good.size(); cut += 61) {
        std::string broken = good;
        for (int times = 0; times < 20; ++times) {
            chance = chance * 1664525u + 1013904223u;
            broken[chance / 256 % broken.size()] = static_cast<char>(chance >> 24);
        }
        LoadHostile("cut at " + std::to_string(cut), good.substr(0, cut));
        LoadHostile("broken " + std::to_string(cut), broken);
    }
}

} // namespace
