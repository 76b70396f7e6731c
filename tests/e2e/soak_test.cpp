// Long days among real programs, hung and dying ones among them, and sudden ends of Quorl.
//   QUORL_SOAK="ACTS KILLS SEED"   how long; without it a short one
#include "dialogs.h"

#include <winternl.h>

#include <random>
#include <set>

namespace {

constexpr std::size_t MOST_PROGRAMS = 12;
constexpr int ACTS_BEFORE_KILL = 20;
constexpr ULONGLONG FIRST_MINUTE = 60000;
constexpr int MENU = 0, EXIT = 59, LOCK_MACHINE = 84, SCREEN_SAVER = 108, NUM_ROWS = 123;

int Acts, Kills;
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

std::vector<HWND> OpenDialogs() {
    std::vector<HWND> dialogs;
    for (HWND dialog = nullptr; (dialog = FindWindowExA(nullptr, dialog, "#32770", nullptr));)
        if (IsWindowVisible(dialog))
            dialogs.push_back(dialog);
    return dialogs;
}

// Only those that hold up the others: message boxes and the choice of a colour.
std::size_t CloseDialogs(bool onlyModal) {
    constexpr int BOX_TEXT = 0xffff, RESIZE_OK = 1044;
    for (const HWND dialog : OpenDialogs())
        if (!onlyModal || GetDlgItem(dialog, BOX_TEXT) || TextOf(dialog) == "Color")
            for (const WPARAM answer : {IDNO, IDCANCEL, IDOK, RESIZE_OK})
                PostMessageA(dialog, WM_COMMAND, answer, 0);
    return OpenDialogs().size();
}

void CloseAll() {
    EXPECT_SOON(CloseDialogs(false), 0U) << TextOf(FindWindowA("#32770", nullptr));
}

void WorkOnTheMap() {
    const Place map = PlaceOf(QuorlWindow());
    for (const DWORD flag : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
        SetCursorPos(map.left + Below(200), map.top + Below(100));
        PressButton(flag);
    }
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
    TerminateProcess(OpenProcess(PROCESS_TERMINATE, FALSE, ProcessOf(Programs.back().window)), 0);
    Programs.pop_back();
}

void WorkInADialog() {
    static const WORD keys[] = {VK_DOWN, VK_UP, VK_TAB, VK_RETURN, '7', 'Q', VK_ESCAPE};
    const std::vector<HWND> dialogs = OpenDialogs();
    if (dialogs.empty())
        return;
    HWND control = GetWindow(OneOf(dialogs), GW_CHILD);
    for (int steps = Below(30); steps > 0 && GetWindow(control, GW_HWNDNEXT); --steps)
        control = GetWindow(control, GW_HWNDNEXT);
    PressOnly(control);
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
    case 9:
    case 10: WorkInADialog(); break;
    default:
        if (!notNow.contains(row))
            DoRow(row);
    }
}

void Live(int acts) {
    for (int act = 0; act < acts && !testing::Test::HasFailure(); ++act) {
        DoSomething();
        CloseDialogs(true);
        EXPECT_TRUE(Answers(QuorlWindow())) << "act " << act;
    }
}

// The map may be hidden by the settings, and a box may tell of a hotkey.
HANDLE Start() {
    const HANDLE quorl = LaunchQuorl();
    EXPECT_SOON(QuorlWindow() != nullptr, true);
    EXPECT_TRUE(Answers(QuorlWindow()));
    return quorl;
}

void QuitAndSeeAllBack() {
    CloseAll();
    DoRow(EXIT);
    PostMessageA(WaitForBox("QUIT?"), WM_COMMAND, IDYES, 0);
    EXPECT_SOON(QuorlWindow(), HWND{});
    for (const auto& [window, good] : Programs) {
        const Place place = PlaceOf(window);
        EXPECT_TRUE(!good || !IsWindowVisible(window) || IsIconic(window) || IsZoomed(window) ||
                    (place.left >= 0 && place.left < SCREEN_W && place.top >= 0 && place.top < SCREEN_H))
            << place;
    }
}

// A day as long as it was asked for, with three programs to begin with.
void Begin() {
    unsigned seed = 1;
    Acts = 60;
    Kills = 2;
    if (const char* const words = getenv("QUORL_SOAK"))
        sscanf(words, "%d %d %u", &Acts, &Kills, &seed);
    Chance.seed(seed);
    Programs.clear();
    for (const char* const title : {"first", "second", "third"})
        Programs.push_back({OpenWindow(title, EDITOR), true});
}

// What the system keeps of a dialog, or of a menu, for the next one is kept once; so are up to 64 contexts,
// as they are needed, and Options with its many controls needs most.
void OpenAllOnce() {
    ChooseFromMenu();
    Sleep(1000); // what was chosen is open, and its Escape has come through
    CloseAll();
    for (const int row : {54, 54, 54, 54, 54, 49, 52, 53, 55, 56, 57, 74, 111, 116}) {
        DoRow(row);
        EXPECT_SOON(OpenDialogs().size(), 1U) << row;
        CloseAll();
    }
}

// Wine counts no graphics objects, but it keeps them, as Windows does, in a table in the program's memory.
// Its place in the process environment block, and what an entry is.
constexpr SIZE_T TABLE_POINTER = sizeof(void*) == 8 ? 0xf8 : 0x94;
constexpr BYTE BITMAP_TYPE = 9; // not counted: under Wine a picture in a dialog template stays for good

struct GdiEntry {
    BYTE object[14];
    BYTE type; // 0: free
    BYTE user[9];
};

// Pens, brushes, fonts, contexts. A row that was only posted may open a dialog yet.
int GdiObjectsAtRest(HANDLE quorl) {
    Sleep(2000);
    CloseAll();
    Sleep(500);
    PROCESS_BASIC_INFORMATION basics = {};
    NtQueryInformationProcess(quorl, ProcessBasicInformation, &basics, sizeof basics, nullptr);
    const char* const block = reinterpret_cast<const char*>(basics.PebBaseAddress);
    const void* place = nullptr;
    std::vector<GdiEntry> table(65536);
    EXPECT_TRUE(ReadProcessMemory(quorl, block + TABLE_POINTER, &place, sizeof place, nullptr));
    EXPECT_TRUE(ReadProcessMemory(quorl, place, table.data(), table.size() * sizeof(GdiEntry), nullptr));
    return static_cast<int>(std::count_if(table.begin(), table.end(), [](const GdiEntry& entry) {
        return entry.type != 0 && entry.type != BITMAP_TYPE;
    }));
}

} // namespace

TEST(Soak, QuorlGoesOnAnsweringAndKeepsNothingOfWhatItUsed) {
    Begin();
    const HANDLE quorl = Start();
    OpenAllOnce();
    const ULONGLONG start = GetTickCount64();
    int done = 0;
    for (; done < Acts && GetTickCount64() < start + FIRST_MINUTE; ++done)
        Live(1);
    const int first = GdiObjectsAtRest(quorl);
    Live(Acts - done);
    EXPECT_LE(GdiObjectsAtRest(quorl), first) << "graphics objects";
    QuitAndSeeAllBack();
}

TEST(Soak, WhenQuorlIsKilledTheNextOneBringsTheWindowsBackAndTheSettingsAreWhole) {
    Begin();
    Start();
    ExpectSaved("num_regions", "0");
    QuitAndSeeAllBack();
    for (int kill = 0; kill < Kills && !testing::Test::HasFailure(); ++kill) {
        const HANDLE quorl = Start();
        Live(ACTS_BEFORE_KILL);
        DoRow(Below(3) ? SAVE : Below(NUM_ROWS));
        Sleep(static_cast<DWORD>(Below(60)));
        TerminateProcess(quorl, 0);
        WaitForExit(quorl);
        for (const char* const key : {"border", "num_regions", "quorl_menu_count", "Action122"})
            EXPECT_NE(Stored(key), "") << key;
        Start();
        QuitAndSeeAllBack();
    }
}
