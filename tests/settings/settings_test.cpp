#include "settings/settings.h"

#include "actions/hotkeys.h"
#include "app/create.h"
#include "menus/menu_list.h"
#include "regions/region_table.h"
#include "scroll/desktop_size.h"
#include "settings/settings_test.h"

#include <fstream>
#include <iterator>
#include <utility>

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
    std::ifstream expected(SAVED_SETTINGS, std::ios::binary);
    EXPECT_EQ(saved, std::string(std::istreambuf_iterator<char>(expected), {}));
    const std::size_t hotkeys = Desk.hotkeys.size();
    ClearAllActionKeys();
    FillActionTable();
    OnCreate(MainWnd); // as the next start does
    EXPECT_EQ(Desk.hotkeys.size(), hotkeys + 2) << "the regions have hotkeys too";
    SaveSettings();
    EXPECT_EQ(File(), saved);
}

using Files = std::map<std::string, std::string>;

static Files FilesAfterSaving(const Files& files, const DeskFault& fault = {}) {
    Desk.files = files;
    Desk.fault = fault;
    SaveSettings();
    EXPECT_EQ(Desk.fault.hits > 0, !fault.call.empty() || fault.permanent) << fault.call;
    Desk.fault = {};
    return Desk.files;
}

static std::string StoredIn(Files files) {
    return files[SETTINGS_FILE];
}

TEST_F(Settings, AKilledSaveLeavesTheOldFileOrTheNewOne) {
    const Files before = FilesAfterSaving({});
    EXPECT_EQ(FilesAfterSaving({{"quorl1234.new", "[Quorl]\r\nhalf=1"}}), before) << "a copy left by a crash";
    ChangeAll();
    for (const Files& stored : {before, Files{}}) {
        Desk.trace.clear();
        const std::string after = StoredIn(FilesAfterSaving(stored));
        const int calls = static_cast<int>(Desk.trace.size());
        for (int nth = 1; nth <= calls; ++nth) {
            Files left = FilesAfterSaving(stored, {"", nth, true}); // no call after the kill does anything
            const std::string found = StoredIn(left);
            EXPECT_TRUE(found == StoredIn(stored) || found == after) << "call " << nth;
            ++Desk.processId;
            Files next = FilesAfterSaving(left);
            EXPECT_EQ(StoredIn(next), after);
            for (Files* const files : {&left, &next})
                std::erase_if(*files, [](const auto& file) { return !file.first.ends_with(".new"); });
            EXPECT_TRUE(next == left) << "another Quorl does not write into the same copy";
        }
    }
}

TEST_F(Settings, AFailedSaveLosesNothing) {
    const Files before = FilesAfterSaving({});
    ChangeAll();
    Desk.ownRights = {SETTINGS_FILE};
    Desk.trace.clear();
    const Files after = FilesAfterSaving(before);
    EXPECT_TRUE(Desk.ownRights.contains(SETTINGS_FILE)) << "replacing keeps the rights";
    const int writes = CountCalls("WritePrivateProfileStringA");
    EXPECT_GT(writes, NUM_ACTIONS);
    const DWORD errors[] = {ERROR_ACCESS_DENIED,    ERROR_NOT_READY,        ERROR_WRITE_FAULT,
                            ERROR_DISK_FULL,        ERROR_HANDLE_DISK_FULL, ERROR_NOT_ENOUGH_QUOTA,
                            ERROR_USER_MAPPED_FILE, ERROR_NETNAME_DELETED};
    for (int nth = 1; nth <= writes; ++nth) {
        const DWORD error = errors[static_cast<std::size_t>(nth) % std::size(errors)];
        EXPECT_EQ(FilesAfterSaving(before, {"WritePrivateProfileStringA", nth, false, error}), before);
    }
    for (const DWORD error : {ERROR_DISK_FULL, ERROR_PATH_NOT_FOUND})
        EXPECT_EQ(FilesAfterSaving(before, {"CopyFileA", 1, false, error}), before) << "no copy: " << error;
    for (const char* call :
         {"CreateFileA", "FlushFileBuffers", "GetPrivateProfileIntA", "GetPrivateProfileStringA"})
        EXPECT_EQ(FilesAfterSaving(before, {call, 1}), before) << call;
    for (const DeskFault& harmless : {DeskFault{"GetFileSecurityA", 1}, DeskFault{"SetFileSecurityA", 1},
                                      DeskFault{"FlushFileBuffers", 1, false, ERROR_INVALID_FUNCTION}})
        EXPECT_EQ(FilesAfterSaving(before, harmless), after) << harmless.call;
    EXPECT_EQ(FilesAfterSaving(before, {"DeleteFileA", 1, false, ERROR_ACCESS_DENIED}), before);
    std::string oneRefused = StoredIn(FilesAfterSaving(before, {"WritePrivateProfileStringA", 1}));
    EXPECT_EQ(oneRefused.replace(oneRefused.find("border=5"), 8, "border=6"), StoredIn(after));
    const DeskFault readOnlyFolder{"CopyFileA", 1, false, ERROR_ACCESS_DENIED};
    EXPECT_EQ(FilesAfterSaving(before, readOnlyFolder), after) << "written in place";
    Desk.protectedFiles = {SETTINGS_FILE};
    EXPECT_EQ(FilesAfterSaving(before), before);
}

TEST_F(Settings, AFileThatIsOpenIsWaitedForAFifthOfASecond) {
    const Files before = FilesAfterSaving({});
    ChangeAll();
    const Files after = FilesAfterSaving(before);
    const std::pair<const char*, DWORD> steps[] = {{"DeleteFileA", ERROR_SHARING_VIOLATION},
                                                   {"CopyFileA", ERROR_LOCK_VIOLATION},
                                                   {"WritePrivateProfileStringA", ERROR_SHARING_VIOLATION},
                                                   {"WritePrivateProfileStringA", ERROR_LOCK_VIOLATION},
                                                   {"CreateFileA", ERROR_SHARING_VIOLATION},
                                                   {"MoveFileExA", ERROR_SHARING_VIOLATION},
                                                   {"MoveFileExA", ERROR_ACCESS_DENIED}};
    for (const auto& [call, error] : steps) {
        const DeskFault tenTimes{call, 1, false, error, 9};
        const DeskFault elevenTimes{call, 1, false, error, 10};
        const DWORD start = Desk.now;
        EXPECT_EQ(FilesAfterSaving(before, tenTimes), after) << call;
        EXPECT_EQ(Desk.now - start, 200U);
        EXPECT_EQ(FilesAfterSaving(before, elevenTimes), before) << call;
        EXPECT_EQ(Desk.now - start, 400U);
    }
    Desk.openFiles = {SETTINGS_FILE};
    const DWORD start = Desk.now;
    EXPECT_EQ(FilesAfterSaving(before, {"CopyFileA", 1, false, ERROR_SHARING_VIOLATION, 4}), before);
    EXPECT_EQ(Desk.now - start, 200U) << "in all";
}

TEST(PortableMode, UsesTheFileBesideTheProgram) {
    // Starts, and saves, with this empty file besides the usual one.
    const auto uses = [](const std::string& file, const std::wstring& program) {
        const std::string usual = "[Quorl]\r\nborder=3\r\n";
        Desk.programPath = program;
        Desk.files = {{"quorl.ini", usual}, {file, ""}};
        PrepareDesk();
        OnCreate(MainWnd);
        SaveSettings();
        const bool bUsed = Desk.files[file].find("border=5") != std::string::npos;
        EXPECT_EQ(Desk.files["quorl.ini"] == usual, bUsed);
        EXPECT_EQ(Desk.files["quorl.ini"].starts_with(usual + "maxscroll"), !bUsed);
        EXPECT_EQ(Desk.files.size(), 2u) << "the copy replaced the file";
        return bUsed;
    };
    ASSERT_TRUE((PrepareDesk(), StartQuorl()));
    EXPECT_TRUE(uses("d:\\tools\\quorl.ini", L"D:\\Tools\\quorl.exe"));
    EXPECT_FALSE(uses("d:\\quorl.ini", L"D:\\Tools\\quorl.exe"));
    EXPECT_FALSE(uses("d:\\d~1\\quorl.ini", L"D:\\\x0414\\quorl.exe")) << "a Cyrillic name";
    Desk.shortPaths[L"D:\\\x0414\\quorl.ini"] = L"D:\\D~1\\quorl.ini";
    EXPECT_TRUE(uses("d:\\d~1\\quorl.ini", L"D:\\\x0414\\quorl.exe"));
    const std::string folder = "d:\\" + std::string(240, 'x'); // the name of the copy would be too long
    EXPECT_FALSE(uses(folder + "\\quorl.ini", std::wstring(folder.begin(), folder.end()) + L"\\quorl.exe"));
}
