#include "settings/settings.h"

#include "actions/hotkeys.h"
#include "app/create.h"
#include "menus/menu_list.h"
#include "regions/region_table.h"
#include "scroll/desktop_size.h"
#include "settings/settings_test.h"

class Settings : public RunningQuorl {};

// Changes every setting from its default, each number to a different one.
static void ChangeAll() {
    Options = {6, 101, 7, 801, 102, 254, 2, 3, Options.hook_present};
    SetDesktop({1, 4, 5000, 1600});
    MoveWindow(MainWnd, 40, 50, 300, 200, TRUE);
    SwapMenuEntries(0, 1);
    InsertMenuEntry(-1, -2);
    SetRegion(0, {"First|Second", 0, 100, 1024, 868, 255});
    SetRegion(1, {"", 3976, 768, 5000, 1536, 16777215});
    for (ActionRow& action : ActionTable)
        action.value = !action.value;
    ActionTable[ACTION_LOAD_AT_START].value = 1;
    ActionTable[ACTION_VIEW_TO_CELL].mouse_mods = KEY_WIN;
    ActionTable[ACTION_SCREEN_LEFT].vk = VK_F1 + 4;
}

TEST_F(Settings, EverythingIsSavedInOrderAndLoadedAtTheNextStart) {
    ChangeAll();
    SaveSettings();
    const std::string saved = File();
    const std::string first =
        "[Quorl]\r\nborder=6\r\nmaxscroll=101\r\nminscroll=7\r\nmousescroll=801\r\nalpha=254\r\n"
        "mousescroll_type=2\r\nmousescroll_delay=3\r\nmousescroll_delay_time=102\r\n"
        "Quorl.left=1\r\nQuorl.top=4\r\nQuorl.right=5000\r\nQuorl.bottom=1600\r\n"
        "quorl_pos.left=40\r\nquorl_pos.top=50\r\nquorl_pos.right=340\r\nquorl_pos.bottom=250\r\n"
        "quorl_menu_count=11\r\nquorl_menu=55|54|74|77|49|-1|56|57|-1|59|-2\r\nnum_regions=2\r\n"
        "Region0=First\x01Second|0|100|1024|868|255\r\nRegion1=|3976|768|5000|1536|16777215\r\n"
        "Action0=0|16|7|32|1\r\n";
    EXPECT_TRUE(saved.starts_with(first)) << saved;
    EXPECT_TRUE(saved.ends_with("Action122=-1|-1|-1|-1|0\r\n"));
    const std::size_t hotkeys = Desk.hotkeys.size();
    ClearAllActionKeys();
    FillActionTable();
    OnCreate(MainWnd); // as the next start does
    EXPECT_EQ(Desk.hotkeys.size(), hotkeys + 2) << "the regions have hotkeys too";
    SaveSettings();
    EXPECT_EQ(File(), saved);
}

TEST_F(Settings, SavingIsAtomic) {
    using Files = std::map<std::string, std::string>;
    const auto save = [](const Files& files, const char* failing = "", int nth = 0) {
        Desk.files = files;
        Desk.fault = {failing, nth};
        RunAction(ACTION_SAVE_SETTINGS);
        return Desk.files;
    };
    const Files before = save({});
    EXPECT_EQ(save({{"quorl.new", "[Quorl]\r\nhalf=1"}}), before) << "a copy left by an earlier run";
    ChangeAll();
    Desk.trace.clear();
    const Files after = save(before);
    const int writes = CountCalls("WritePrivateProfileStringA");
    for (int nth = 1; nth <= writes; ++nth)
        EXPECT_EQ(save(before, "WritePrivateProfileStringA", nth), before) << "write " << nth;
    for (const char* call : {"GetWindowsDirectoryA", "CopyFileA", "MoveFileExA"})
        EXPECT_EQ(save(before, call, 1), after) << call;
    Desk.protectedFiles = {SETTINGS_FILE};
    EXPECT_EQ(save(before), before);
}

TEST(PortableMode, UsesTheFileBesideTheProgram) {
    const auto startsAndSaves = [](const std::wstring& program, const std::string& file) {
        Desk.programPath = program;
        Desk.files = {{"quorl.ini", "[Quorl]\r\nborder=3\r\n"}};
        if (!file.empty())
            Desk.files[file] = "";
        PrepareDesk();
        OnCreate(MainWnd);
        SaveSettings();
        return Desk.files;
    };
    ASSERT_TRUE((PrepareDesk(), StartQuorl()));
    auto files = startsAndSaves(L"D:\\Tools\\quorl.exe", "d:\\tools\\quorl.ini");
    EXPECT_NE(files["d:\\tools\\quorl.ini"].find("border=5"), std::string::npos) << "even if it is empty";
    EXPECT_EQ(files["quorl.ini"], "[Quorl]\r\nborder=3\r\n");
    EXPECT_EQ(files.size(), 2u) << "the copy is beside it, and replaced it";
    Desk.shortPaths[L"D:\\\x0414\\quorl.ini"] = L"D:\\D~1\\quorl.ini"; // a Cyrillic name
    files = startsAndSaves(L"D:\\\x0414\\quorl.exe", "d:\\d~1\\quorl.ini");
    EXPECT_NE(files["d:\\d~1\\quorl.ini"].find("border=5"), std::string::npos);
    Desk.shortPaths.clear();
    files = startsAndSaves(L"D:\\\x0414\\quorl.exe", "d:\\d~1\\quorl.ini");
    EXPECT_NE(files["quorl.ini"].find("border=3\r\nmaxscroll"), std::string::npos)
        << "no name, so the usual file";
    files = startsAndSaves(L"D:\\Tools\\quorl.exe", "");
    EXPECT_NE(files["quorl.ini"].find("border=3\r\nmaxscroll"), std::string::npos) << "not portable";
}
