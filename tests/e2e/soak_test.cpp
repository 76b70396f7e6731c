// Long days among real programs, hung and dying ones among them, and sudden ends of Quorl.
//   QUORL_SOAK="ACTS KILLS SEED"   how long; without it a short one
#include "user.h"

#include <psapi.h>
#include <winternl.h>

#include <random>
#include <set>

namespace {

struct Length {
    int acts = 60, kills = 2;
    unsigned seed = 1;
};

constexpr std::size_t MOST_PROGRAMS = 12;
constexpr int ACTS_BEFORE_KILL = 20;
constexpr ULONGLONG FIRST_MINUTE = 60000;
constexpr SIZE_T MEMORY_SWING = 4U << 20; // what the working set breathes by
constexpr int MENU = 0, EXIT = 59, LOCK_MACHINE = 84, SCREEN_SAVER = 108, NUM_ROWS = 123;
constexpr int RESIZE_OK = 1044; // closes Resize Windows

std::mt19937 Chance;

int Below(int limit) {
    return static_cast<int>(Chance() % static_cast<unsigned>(limit));
}

template <typename Items>
auto OneOf(const Items& items) {
    return items[Chance() % std::size(items)];
}

struct Program {
    HWND window;
    bool good; // moves as it is told
};
std::vector<Program> Programs;

std::vector<HWND> DialogsOfQuorl() {
    std::vector<HWND> dialogs;
    for (HWND dialog = nullptr; (dialog = FindWindowExA(nullptr, dialog, "#32770", nullptr));)
        if (IsWindowVisible(dialog) && ProcessOf(dialog) == ProcessOf(QuorlWindow()))
            dialogs.push_back(dialog);
    return dialogs;
}

void Answer(HWND dialog, std::initializer_list<WPARAM> answers) {
    for (const WPARAM answer : answers)
        PostMessageA(dialog, WM_COMMAND, answer, 0);
}

void AnswerBoxes() {
    static const std::set<std::string> modeless = {
        "Options...",        "Quorl Help",        "About...",
        "Name Region",       "Resize Windows...", "Actions...",
        "Customize Menu...", "Find Windows...",   "Toolwin Transparency...",
    };
    for (const HWND box : DialogsOfQuorl())
        if (!modeless.contains(TextOf(box)))
            Answer(box, {IDNO, IDCANCEL});
}

void CloseDialogs() {
    const auto close = [] {
        for (const HWND dialog : DialogsOfQuorl())
            Answer(dialog, {IDNO, IDCANCEL, IDOK, RESIZE_OK});
        return DialogsOfQuorl().size();
    };
    EXPECT_EQ(Soon(close, 0U), 0U) << TextOf(FindWindowA("#32770", nullptr));
}

void WorkOnTheMap() {
    static const WORD keys[] = {VK_SHIFT, VK_CONTROL, VK_MENU};
    const Place map = PlaceOf(QuorlWindow());
    const WORD key = OneOf(keys);
    SetCursorPos(map.left + Below(map.right - map.left + 1), map.top + Below(map.bottom - map.top + 1));
    SendKey(key, 0);
    PressButton(MOUSEEVENTF_LEFTDOWN);
    SetCursorPos(map.left + Below(200), map.top + Below(200));
    PressButton(MOUSEEVENTF_LEFTUP);
    SendKey(key, KEYEVENTF_KEYUP);
    PressKeys({VK_ESCAPE});
}

void OpenAProgram() {
    static const char* const parts[] = {"plain", "plain", "plain", "hung", "rewrites", "dies"};
    const char* const part = OneOf(parts);
    const int left = Below(SCREEN_W - 200), top = Below(SCREEN_H - 200);
    const Place place = {left, top, left + 150 + Below(300), top + 80 + Below(200)};
    if (Programs.size() < MOST_PROGRAMS)
        Programs.push_back({OpenWindow(std::to_string(Chance()).c_str(), place, part), *part == 'p'});
}

void EndAProgram() {
    if (Programs.empty())
        return;
    std::swap(Programs[Chance() % Programs.size()], Programs.back());
    const HANDLE process = OpenProcess(PROCESS_TERMINATE, FALSE, ProcessOf(Programs.back().window));
    TerminateProcess(process, 0);
    CloseHandle(process);
    Programs.pop_back();
}

void WorkInADialog() {
    static const WORD keys[] = {VK_DOWN, VK_UP, VK_TAB, VK_RETURN, '7', 'Q', VK_ESCAPE};
    const std::vector<HWND> dialogs = DialogsOfQuorl();
    if (dialogs.empty())
        return;
    HWND control = GetWindow(OneOf(dialogs), GW_CHILD);
    for (int steps = Below(30); steps > 0 && GetWindow(control, GW_HWNDNEXT); --steps)
        control = GetWindow(control, GW_HWNDNEXT);
    const Place place = PlaceOf(control);
    SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    Click(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
    PressKeys({OneOf(keys)});
}

void ChooseFromMenu() {
    DoRow(MENU);
    Sleep(60);
    PressInTurn(std::vector<WORD>(Chance() % 8, VK_DOWN));
    PressInTurn({VK_RETURN, VK_ESCAPE, VK_ESCAPE});
}

void DoSomething() {
    static const WORD arrows[] = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN};
    static const std::set<int> notNow = {MENU, EXIT, LOCK_MACHINE, SCREEN_SAVER};
    switch (const int row = Below(NUM_ROWS); Below(14)) {
    case 0: PressKeys({VK_CONTROL, VK_MENU, OneOf(arrows)}); break;
    case 1: PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, static_cast<WORD>('0' + row % 10)}); break;
    case 2: MoveMouse({row % 2 * (SCREEN_W - 1), Below(SCREEN_H)}); break;
    case 3: MoveMouse({Below(SCREEN_W), row % 2 * (SCREEN_H - 1)}); break;
    case 4: SetForegroundWindow(Programs.empty() ? nullptr : OneOf(Programs).window); break;
    case 5: WorkOnTheMap(); break;
    case 6: OpenAProgram(); break;
    case 7: EndAProgram(); break;
    case 8: ChooseFromMenu(); break;
    case 9: WorkInADialog(); break;
    case 10: WorkInADialog(); break;
    default:
        if (!notNow.contains(row))
            DoRow(row);
    }
}

// 1 if Quorl still lives and answers.
bool Live(int acts) {
    for (int act = 0; act < acts; ++act) {
        DoSomething();
        AnswerBoxes();
        if (!Answers(QuorlWindow()))
            return false;
    }
    return true;
}

// The map may be hidden by the settings, and a box may tell of a hotkey.
HANDLE Start() {
    const HANDLE quorl = LaunchQuorl();
    EXPECT_SOON(QuorlWindow() != nullptr, true);
    EXPECT_TRUE(Answers(QuorlWindow()));
    return quorl;
}

bool IsBack(const Program& program) {
    const Place place = PlaceOf(program.window);
    return !program.good || !IsWindowVisible(program.window) || IsIconic(program.window) ||
           IsZoomed(program.window) ||
           (place.left >= 0 && place.left < SCREEN_W && place.top >= 0 && place.top < SCREEN_H);
}

void QuitAndSeeAllBack() {
    CloseDialogs();
    DoRow(EXIT);
    PostMessageA(WaitForBox("QUIT?"), WM_COMMAND, IDYES, 0);
    EXPECT_SOON(QuorlWindow(), HWND{});
    for (const Program& program : Programs)
        EXPECT_TRUE(IsBack(program)) << PlaceOf(program.window);
}

// What stands last in a file that was saved without a stop.
void ExpectWholeSettings() {
    std::vector<std::string> keys = {"Quorl.right", "border", "num_regions", "quorl_menu_count", "Action122"};
    for (int region = atoi(Stored("num_regions").c_str()); region > 0; --region)
        keys.push_back("Region" + std::to_string(region - 1));
    for (const std::string& key : keys)
        EXPECT_NE(Stored(key), "") << key;
}

// A day as long as it was asked for, with three programs to begin with.
Length Begin() {
    Length length;
    if (const char* const words = getenv("QUORL_SOAK"))
        sscanf(words, "%d %d %u", &length.acts, &length.kills, &length.seed);
    Chance.seed(length.seed);
    Programs.clear();
    for (const char* const title : {"first", "second", "third"})
        Programs.push_back({OpenWindow(title, EDITOR), true});
    return length;
}

// What the system keeps of a dialog, or of a menu, for the next one is kept once; so are up to 64 contexts,
// as they are needed, and Options with its many controls needs most.
void OpenAllOnce() {
    ChooseFromMenu();
    Sleep(1000); // what was chosen is open, and its Escape has come through
    CloseDialogs();
    for (const int row : {54, 54, 54, 54, 54, 49, 52, 53, 55, 56, 57, 74, 111, 116}) {
        DoRow(row);
        EXPECT_SOON(DialogsOfQuorl().size(), 1U) << row;
        CloseDialogs();
    }
}

struct ResourcesInUse {
    int windows;   // visible or not
    int gdi;       // pens, brushes, fonts, contexts, ..., but no bitmaps; -1: cannot be counted
    SIZE_T memory; // bytes in the working set
};

// Wine counts no graphics objects, but it keeps them, as Windows does, in a table in the program's memory.
// Its place in the process environment block, and what an entry is.
constexpr SIZE_T TABLE_POINTER = sizeof(void*) == 8 ? 0xf8 : 0x94;
constexpr BYTE BITMAP_TYPE = 9; // not counted: under Wine a picture in a dialog template stays for good

struct GdiEntry {
    BYTE object[14];
    BYTE type; // 0: free
    BYTE user[9];
};

int GdiObjectsOf(HANDLE process) {
    PROCESS_BASIC_INFORMATION basics = {};
    NtQueryInformationProcess(process, ProcessBasicInformation, &basics, sizeof basics, nullptr);
    const char* const block = reinterpret_cast<const char*>(basics.PebBaseAddress);
    const void* place = nullptr;
    std::vector<GdiEntry> table(65536);
    if (!ReadProcessMemory(process, block + TABLE_POINTER, &place, sizeof place, nullptr) ||
        !ReadProcessMemory(process, place, table.data(), table.size() * sizeof(GdiEntry), nullptr))
        return -1;
    return static_cast<int>(std::count_if(table.begin(), table.end(), [](const GdiEntry& entry) {
        return entry.type != 0 && entry.type != BITMAP_TYPE;
    }));
}

// A row that was only posted may open a dialog yet.
ResourcesInUse ResourcesAtRest(HANDLE quorl) {
    Sleep(2000);
    CloseDialogs();
    EXPECT_TRUE(Answers(QuorlWindow()));
    Sleep(500);
    int windows = 0;
    for (HWND window = nullptr; (window = FindWindowExA(nullptr, window, nullptr, nullptr));)
        windows += ProcessOf(window) == GetProcessId(quorl);
    PROCESS_MEMORY_COUNTERS memory = {};
    K32GetProcessMemoryInfo(quorl, &memory, sizeof memory);
    return {windows, GdiObjectsOf(quorl), memory.WorkingSetSize};
}

} // namespace

TEST(Soak, QuorlGoesOnAnsweringAndKeepsNothingOfWhatItUsed) {
    const Length length = Begin();
    const HANDLE quorl = Start();
    OpenAllOnce();
    const ULONGLONG start = GetTickCount64();
    int done = 0;
    for (; done < length.acts && GetTickCount64() < start + FIRST_MINUTE; ++done)
        ASSERT_TRUE(Live(1)) << "act " << done;
    const ResourcesInUse first = ResourcesAtRest(quorl);
    ASSERT_TRUE(Live(length.acts - done));
    const ResourcesInUse last = ResourcesAtRest(quorl);
    EXPECT_LE(last.windows, first.windows);
    EXPECT_LE(last.gdi, first.gdi) << "graphics objects";
    EXPECT_LE(last.memory, first.memory + MEMORY_SWING);
    QuitAndSeeAllBack();
}

TEST(Soak, WhenQuorlIsKilledTheNextOneBringsTheWindowsBackAndTheSettingsAreWhole) {
    const Length length = Begin();
    Start();
    ExpectSaved("num_regions", "0");
    QuitAndSeeAllBack();
    for (int kill = 0; kill < length.kills && !testing::Test::HasFailure(); ++kill) {
        const HANDLE quorl = Start();
        ASSERT_TRUE(Live(ACTS_BEFORE_KILL));
        DoRow(Below(3) ? SAVE : Below(NUM_ROWS));
        Sleep(static_cast<DWORD>(Below(60)));
        TerminateProcess(quorl, 0);
        WaitForExit(quorl);
        ExpectWholeSettings();
        Start();
        QuitAndSeeAllBack();
    }
}
