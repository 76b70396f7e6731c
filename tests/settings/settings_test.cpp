#include "settings/settings.h"

#include "actions/hotkeys.h"
#include "core/create.h"
#include "fuzz/settings_input.h"
#include "menus/menu_list.h"
#include "regions/region_table.h"
#include "settings/settings_test.h"
#include "support/faults.h"

class Settings : public RunningQuorl {};

// Nothing is as it was at first, and no two numbers are the same.
static void ChangeAll() {
    Options = {6, 101, 7, 801, 102, 254, 2, 3, Options.hook_present};
    Quorl = {1, 4, 5000, 1600};
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

TEST_F(Settings, AllIsWrittenInItsOrderAndComesBackInTheNextRun) {
    ChangeAll();
    SaveSettings(MainWnd);
    const std::string kept = File();
    const std::string first =
        "[Quorl]\r\nborder=6\r\nmaxscroll=101\r\nminscroll=7\r\nmousescroll=801\r\nalpha=254\r\n"
        "mousescroll_type=2\r\nmousescroll_delay=3\r\nmousescroll_delay_time=102\r\n"
        "Quorl.left=1\r\nQuorl.top=4\r\nQuorl.right=5000\r\nQuorl.bottom=1600\r\n"
        "quorl_pos.left=40\r\nquorl_pos.top=50\r\nquorl_pos.right=340\r\nquorl_pos.bottom=250\r\n"
        "quorl_menu_count=11\r\nquorl_menu=55|54|74|77|49|-1|56|57|-1|59|-2\r\nnum_regions=2\r\n"
        "Region0=First\x01Second|0|100|1024|868|255\r\nRegion1=|3976|768|5000|1536|16777215\r\n"
        "Action0=0|16|7|32|1\r\n";
    EXPECT_EQ(kept.substr(0, first.size()), first);
    EXPECT_EQ(Stored("Action28"), "-1|-1|6|116|1");
    EXPECT_EQ(kept.substr(kept.rfind("Action")), "Action122=-1|-1|-1|-1|0\r\n");

    const std::size_t hotkeys = Desk.hotkeys.size();
    ClearAllActionKeys(MainWnd);
    OnCreate(MainWnd); // fills in every default, as the next run does
    EXPECT_EQ(Desk.hotkeys.size(), hotkeys + 2) << "those of the regions, too";
    SaveSettings(MainWnd);
    EXPECT_EQ(File(), kept);
}

TEST_F(Settings, AreSavedAsAWholeOrNotAtAllAndLeaveNoCopyInTheWay) {
    using Files = std::map<std::string, std::string>;
    const auto saved = [](const Files& found, const char* call = "", int nth = 0) {
        Desk.files = found;
        Desk.fault = {call, nth};
        Command(47);
        return Desk.files;
    };
    const Files::value_type unfinished{"quorl.new", "[Quorl]\r\nhalf=1"}; // by an earlier run
    const Files before = saved({});
    EXPECT_EQ(saved({unfinished}), before);
    ChangeAll();
    const Files after = saved(before);
    for (int nth = 1; nth <= 18 + 1 + 2 + 123; ++nth)
        EXPECT_EQ(saved(before, "WritePrivateProfileStringA", nth), before) << "write " << nth;
    for (const char* call : {"GetWindowsDirectoryA", "CopyFileA", "MoveFileExA"})
        EXPECT_EQ(saved(before, call, 1), after) << call;
    Desk.protectedFiles = {SETTINGS_FILE};
    EXPECT_EQ(saved(before), before);
}

TEST_F(QuorlTest, TakesNoHarmFromAFileHoweverLongItsValuesAre) {
    const std::string marks(100000, '|');
    const std::string files[] = {
        "border=" + marks + "9\nnum_regions=1\nRegion0=" + marks + "a\nAction5=" + marks,
        "quorl_menu_count=999\nquorl_menu=" + std::string(4046, '1') + marks + "|5",
        "Action5=1|2" + std::string(10 << 20, '7') + "\nnum_regions=1\nRegion0=a|1",
    };
    for (const std::string& lines : files)
        EXPECT_TRUE(HoldsInItsOwnProcess([&] { TrySettings("\2" + lines); })) << lines.substr(0, 20);
}
