// Random use of Quorl among real programs, hung and dying ones included, and sudden ends of its process.
//   QUORL_SOAK="STEPS KILLS SEED"   how long; short by default
#include "shared/user.h"

#include <psapi.h>

#include <random>
#include <set>

namespace {

int Steps = 60, Kills = 2;
constexpr std::size_t MAX_PROGRAMS = 12;
constexpr int STEPS_BEFORE_KILL = 20;
constexpr int STEPS_TO_CATCH_UP = 20;
constexpr ULONGLONG WARM_UP = 60000;      // ms
constexpr SIZE_T MEMORY_SWING = 4U << 20; // bytes by which the working set varies anyway

std::mt19937 Random;

int Below(int limit) {
    return static_cast<int>(Random() % static_cast<unsigned>(limit));
}

template <typename Items>
auto OneOf(const Items& items) {
    return items[Random() % std::size(items)];
}

struct Program {
    HWND window;
    bool obeys; // moves where it is told
};
std::vector<Program> Others;

// Hidden ones too: a click on Wine's taskbar can minimize the map, which hides its dialogs.
std::vector<HWND> DialogsOfQuorl() {
    std::vector<HWND> dialogs;
    for (HWND dialog = nullptr; (dialog = FindWindowExA(nullptr, dialog, "#32770", nullptr));)
        if (ProcessOf(dialog) == ProcessOf(QuorlWindow()))
            dialogs.push_back(dialog);
    return dialogs;
}

void Answer(HWND dialog, std::initializer_list<WPARAM> answers) {
    for (const WPARAM answer : answers)
        PostMessageA(dialog, WM_COMMAND, answer, 0);
}

void AnswerModalOnes() {
    constexpr int TEXT_ID = 0xffff; // in every message box
    for (const HWND dialog : DialogsOfQuorl())
        if (GetDlgItem(dialog, TEXT_ID) || TextOf(dialog) == "Color")
            Answer(dialog, {IDNO, IDCANCEL});
}

void CloseDialogs() {
    const auto close = [] {
        for (const HWND dialog : DialogsOfQuorl())
            Answer(dialog, {IDNO, IDCANCEL, IDOK, IDC_RESIZE_OK});
        return DialogsOfQuorl().size();
    };
    EXPECT_EQ(Eventually(close, 0U), 0U) << TextOf(FindWindowA("#32770", nullptr));
}

void OpenProgram() {
    const char* const behaviour = OneOf(std::vector{"plain", "plain", "plain", "hung", "overrides", "dies"});
    const int left = Below(SCREEN_W - 200), top = Below(SCREEN_H - 200);
    const RECT rect{left, top, left + 150 + Below(300), top + 80 + Below(200)};
    if (Others.size() < MAX_PROGRAMS)
        Others.push_back({OpenWindow(std::to_string(Random()).c_str(), rect, behaviour), *behaviour == 'p'});
}

void End(DWORD process) {
    const HANDLE ended = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, process);
    TerminateProcess(ended, 0);
    WaitForSingleObject(ended, TIMEOUT);
    CloseHandle(ended);
}

void UseTheMenu() {
    RunAction(ACTION_SHOW_MENU);
    Sleep(60);
    PressInTurn(std::vector<WORD>(Random() % 8, VK_DOWN));
    PressInTurn({VK_RETURN, VK_ESCAPE, VK_ESCAPE});
}

void DoSomething() {
    static const WORD arrows[] = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN};
    static const WORD keys[] = {VK_DOWN, VK_UP, VK_TAB, VK_RETURN, '7', 'Q', VK_ESCAPE};
    static const std::set<int> excluded = {ACTION_SHOW_MENU, ACTION_EXIT, ACTION_LOCK_STATION,
                                           ACTION_SCREEN_SAVER, ACTION_TRANSPARENCY};
    switch (const int number = Below(NUM_ACTIONS); Below(14)) {
    case 0: PressKeys({VK_CONTROL, VK_MENU, OneOf(arrows)}); break;
    case 1: PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, static_cast<WORD>('0' + number % 10)}); break;
    case 2: MoveMouse(number % 2 * (SCREEN_W - 1), Below(SCREEN_H)); break;
    case 3: MoveMouse(Below(SCREEN_W), number % 2 * (SCREEN_H - 1)); break;
    case 4: SetForegroundWindow(Others.empty() ? nullptr : OneOf(Others).window); break;
    case 5: Click(VK_LBUTTON); break;
    case 6: OpenProgram(); break;
    case 7:
        if (!Others.empty()) {
            std::swap(Others[Random() % Others.size()], Others.back());
            End(ProcessOf(Others.back().window));
            Others.pop_back();
        }
        break;
    case 8: UseTheMenu(); break;
    case 9: PressKeys({OneOf(keys)}); break;
    default:
        if (!excluded.contains(number))
            RunAction(number);
    }
}

HWND TransparencyDialog() {
    return FindWindowA("#32770", "Toolwin Transparency...");
}

// Waits until Quorl has handled all actions posted so far, which hung programs can delay: until it opens a
// dialog that nothing else opens.
bool CatchesUp() {
    const auto isOpen = [] { return AnswerModalOnes(), TransparencyDialog() != nullptr; };
    const auto isClosed = [&] { return Answer(TransparencyDialog(), {IDOK}), !isOpen(); };
    for (int tries = 0; tries < 3; ++tries) { // a key typed before may close it at once
        RunAction(ACTION_TRANSPARENCY);
        if (Eventually(isOpen, true, 20000))
            return Eventually(isClosed, true);
    }
    return false;
}

// False if Quorl no longer responds.
bool RunSteps(int steps) {
    for (int step = 0; step < steps; ++step) {
        DoSomething();
        AnswerModalOnes();
        if (!Responds(QuorlWindow()) || (step % STEPS_TO_CATCH_UP == 0 && !CatchesUp()))
            return false;
    }
    return true;
}

// Unlike StartQuorl it accepts a hidden map and a box about a hotkey.
HANDLE Start() {
    const HANDLE quorl = LaunchQuorl();
    EXPECT_EVENTUALLY(QuorlWindow() != nullptr, true);
    EXPECT_TRUE(Responds(QuorlWindow()));
    return quorl;
}

void QuitAndExpectAllOnScreen() {
    CloseDialogs();
    RunAction(ACTION_EXIT);
    PostMessageA(WaitForBox("QUIT?"), WM_COMMAND, IDYES, 0);
    EXPECT_EVENTUALLY(QuorlWindow(), HWND{});
    for (const auto& [window, obeys] : Others) {
        const RECT rect = WindowRect(window);
        EXPECT_TRUE(!obeys || !IsWindowVisible(window) || IsIconic(window) || IsZoomed(window) ||
                    (rect.left >= 0 && rect.left < SCREEN_W && rect.top >= 0 && rect.top < SCREEN_H))
            << testing::PrintToString(rect);
    }
}

// Reads the length from the environment and opens three programs.
void Prepare() {
    unsigned seed = 1;
    if (const char* const words = getenv("QUORL_SOAK"))
        sscanf(words, "%d %d %u", &Steps, &Kills, &seed);
    Random.seed(seed);
    StoreSettings("quorl_menu_count=8\0"); // without the last one, Exit, which the next key would confirm
    Others.clear();
    for (const char* const title : {"first", "second", "third"})
        Others.push_back({OpenWindow(title, EDITOR), true});
}

// Windows caches resources of a dialog or menu after its first use.
void OpenDialogs(std::initializer_list<int> actions) {
    UseTheMenu();
    Sleep(1000); // until what was chosen is open and has had its Escape
    CloseDialogs();
    for (const int action : actions) {
        RunAction(action);
        EXPECT_EVENTUALLY(DialogsOfQuorl().size(), 1U) << action;
        CloseDialogs();
    }
}

struct Resources {
    std::vector<std::string> windows; // class and title of each, visible or not
    SIZE_T memory;                    // bytes in the working set
};

Resources ResourcesAtRest(HANDLE quorl) {
    EXPECT_TRUE(CatchesUp());
    CloseDialogs();
    EXPECT_TRUE(CatchesUp());
    std::vector<std::string> windows;
    for (HWND window = nullptr; (window = FindWindowExA(nullptr, window, nullptr, nullptr));)
        if (char name[64] = ""; ProcessOf(window) == GetProcessId(quorl) && GetClassNameA(window, name, 64))
            windows.push_back(name + (" " + TextOf(window)));
    PROCESS_MEMORY_COUNTERS memory{};
    K32GetProcessMemoryInfo(quorl, &memory, sizeof memory);
    return {windows, memory.WorkingSetSize};
}

} // namespace

TEST(Soak, QuorlKeepsRespondingAndLeaksNothing) {
    NEEDS(IsWine(), "Wine: it types and clicks anywhere");
    Prepare();
    const HANDLE quorl = Start();
    OpenDialogs({ACTION_OPTIONS, ACTION_MARK_REGION, ACTION_FIND_WINDOW, ACTION_RESIZE_WINDOW,
                 ACTION_DEFINE_ACTIONS, ACTION_HELP, ACTION_ABOUT, ACTION_CUSTOMIZE_MENU, ACTION_FIND_REGION,
                 ACTION_TRANSPARENCY});
    const ULONGLONG start = GetTickCount64();
    int done = 0;
    for (; done < Steps && GetTickCount64() < start + WARM_UP; ++done)
        ASSERT_TRUE(RunSteps(1)) << "step " << done;
    const Resources first = ResourcesAtRest(quorl);
    ASSERT_TRUE(RunSteps(Steps - done));
    const Resources last = ResourcesAtRest(quorl);
    EXPECT_LE(last.windows.size(), first.windows.size()) << testing::PrintToString(last.windows);
    EXPECT_LE(last.memory, first.memory + MEMORY_SWING);
    QuitAndExpectAllOnScreen();
}

TEST(Soak, NextRunAfterAKillReturnsTheWindowsAndFindsCompleteSettings) {
    NEEDS(IsWine(), "Wine: it types and clicks anywhere");
    Prepare();
    Start();
    RunAction(ACTION_SAVE_SETTINGS);
    EXPECT_EVENTUALLY(Stored("num_regions"), "0");
    QuitAndExpectAllOnScreen();
    for (int kill = 0; kill < Kills && !testing::Test::HasFailure(); ++kill) {
        const HANDLE quorl = Start();
        ASSERT_TRUE(RunSteps(STEPS_BEFORE_KILL));
        RunAction(Below(3) ? ACTION_SAVE_SETTINGS : Below(NUM_ACTIONS));
        Sleep(static_cast<DWORD>(Below(60)));
        End(GetProcessId(quorl));
        for (const char* const key :
             {"border", "Quorl.right", "quorl_menu_count", "num_regions", "Action122"})
            EXPECT_NE(Stored(key), "") << key;
        Start();
        QuitAndExpectAllOnScreen();
    }
}
