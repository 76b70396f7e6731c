// Long days among real programs, hung and dying ones among them, and sudden ends of Quorl.
//   QUORL_SOAK="ACTS KILLS SEED"   how long; without it a short one
#include "mouse.h"
#include "resources_in_use.h"
#include "settings_file.h"

#include <cstdio>
#include <cstdlib>
#include <random>
#include <set>
#include <vector>

namespace {

struct Length {
    int acts = 60, kills = 2;
    unsigned seed = 1;
};

constexpr std::size_t MOST_PROGRAMS = 12;
constexpr int ACTS_BEFORE_KILL = 20;
constexpr ULONGLONG FIRST_MINUTE = 60000;
constexpr SIZE_T MEMORY_SWING = 4U << 20; // what the working set breathes by
constexpr int MENU = 0, EXIT = 59, LOCK_MACHINE = 84, SCREEN_SAVER = 108;
constexpr int NUM_ROWS = 123;
constexpr int RESIZE_OK = 1044; // closes Resize Windows

std::mt19937 Chance;

int Below(int limit) {
    return static_cast<int>(Chance() % static_cast<unsigned>(limit));
}

template <typename Item, std::size_t COUNT>
Item OneOf(const Item (&items)[COUNT]) {
    return items[Chance() % COUNT];
}

struct Program {
    HWND window;
    bool good; // moves as it is told
};
std::vector<Program> Programs;

BOOL CALLBACK CollectDialog(HWND window, LPARAM dialogs) {
    char name[16] = "";
    GetClassNameA(window, name, sizeof name);
    if (strcmp(name, "#32770") == 0 && IsWindowVisible(window) &&
        ProcessOf(window) == ProcessOf(QuorlWindow()))
        reinterpret_cast<std::vector<HWND>*>(dialogs)->push_back(window);
    return TRUE;
}

std::vector<HWND> DialogsOfQuorl() {
    std::vector<HWND> dialogs;
    EnumWindows(CollectDialog, reinterpret_cast<LPARAM>(&dialogs));
    return dialogs;
}

std::string TitlesOf(const std::vector<HWND>& windows) {
    std::string titles;
    for (const HWND window : windows)
        titles += TextOf(window) + "; ";
    return titles;
}

bool IsModal(HWND dialog) {
    static const std::set<std::string> modeless = {
        "Options...",        "Quorl Help",        "About...",
        "Name Region",       "Resize Windows...", "Actions...",
        "Customize Menu...", "Find Windows...",   "Toolwin Transparency...",
    };
    return !modeless.contains(TextOf(dialog));
}

void Answer(HWND dialog, std::initializer_list<WPARAM> answers) {
    for (const WPARAM answer : answers)
        PostMessageA(dialog, WM_COMMAND, answer, 0);
}

void AnswerBoxes() {
    for (const HWND box : DialogsOfQuorl())
        if (IsModal(box))
            Answer(box, {IDNO, IDCANCEL});
}

void CloseDialogs() {
    const auto close = [] {
        for (const HWND dialog : DialogsOfQuorl())
            Answer(dialog, {IDNO, IDCANCEL, IDOK, RESIZE_OK});
        return DialogsOfQuorl().size();
    };
    EXPECT_EQ(Soon(close, 0U), 0U) << TitlesOf(DialogsOfQuorl());
}

void RunRow() {
    static const std::set<int> notNow = {MENU, EXIT, LOCK_MACHINE, SCREEN_SAVER};
    const int row = Below(NUM_ROWS);
    if (!notNow.contains(row))
        DoRow(row);
}

void ScrollByKey() {
    static const WORD ways[] = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN};
    PressKeys({VK_CONTROL, VK_MENU, OneOf(ways)});
}

void GoToARegion() {
    PressKeys({VK_CONTROL, VK_MENU, VK_SHIFT, static_cast<WORD>('0' + Below(10))});
}

void ChooseFromMenu() {
    DoRow(MENU);
    Sleep(60);
    for (int steps = Below(8); steps > 0; --steps)
        PressKeys({VK_DOWN});
    PressInTurn({VK_RETURN, VK_ESCAPE, VK_ESCAPE});
}

void PushAtAnEdge() {
    static const POINT edges[] = {
        {0,            300         },
        {SCREEN_W - 1, 300         },
        {300,          0           },
        {300,          SCREEN_H - 1}
    };
    const POINT edge = OneOf(edges);
    SetCursorPos(edge.x, edge.y);
    SendMouse(edge.x, edge.y);
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

void Open(const char* part, const Place& place) {
    const std::string title = "program " + std::to_string(Chance());
    Programs.push_back({OpenWindow(title.c_str(), place, part), strcmp(part, "plain") == 0});
}

void OpenAProgram() {
    static const char* const parts[] = {"plain", "plain", "plain", "hung", "rewrites", "dies"};
    const int left = Below(SCREEN_W - 200), top = Below(SCREEN_H - 200);
    if (Programs.size() < MOST_PROGRAMS)
        Open(OneOf(parts), {left, top, left + 150 + Below(300), top + 80 + Below(200)});
}

void EndAProgram() {
    if (Programs.empty())
        return;
    const std::size_t which = Chance() % Programs.size();
    const HANDLE process = OpenProcess(PROCESS_TERMINATE, FALSE, ProcessOf(Programs[which].window));
    TerminateProcess(process, 0);
    CloseHandle(process);
    Programs.erase(Programs.begin() + static_cast<std::ptrdiff_t>(which));
}

void GoToAProgram() {
    if (!Programs.empty())
        SetForegroundWindow(Programs[Chance() % Programs.size()].window);
}

void WorkInADialog() {
    static const WORD keys[] = {VK_DOWN, VK_UP, VK_TAB, VK_RETURN, '7', 'Q', VK_ESCAPE};
    const std::vector<HWND> dialogs = DialogsOfQuorl();
    if (dialogs.empty())
        return;
    HWND control = GetWindow(dialogs[Chance() % dialogs.size()], GW_CHILD);
    for (int steps = Below(30); steps > 0 && GetWindow(control, GW_HWNDNEXT); --steps)
        control = GetWindow(control, GW_HWNDNEXT);
    const Place place = PlaceOf(control);
    SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    Click(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
    PressKeys({OneOf(keys)});
}

struct Act {
    const char* name;
    void (*does)();
};
const Act Acts[] = {
    {"a row",     RunRow        },
    {"a row",     RunRow        },
    {"a row",     RunRow        },
    {"a row",     RunRow        },
    {"arrow",     ScrollByKey   },
    {"region",    GoToARegion   },
    {"menu",      ChooseFromMenu},
    {"edge",      PushAtAnEdge  },
    {"map",       WorkOnTheMap  },
    {"program",   OpenAProgram  },
    {"end",       EndAProgram   },
    {"go to",     GoToAProgram  },
    {"in dialog", WorkInADialog },
    {"in dialog", WorkInADialog },
};

// 1 if Quorl still lives and answers.
bool Live(int acts) {
    for (int act = 0; act < acts; ++act) {
        const Act& chosen = OneOf(Acts);
        chosen.does();
        AnswerBoxes();
        if (!Answers(QuorlWindow())) {
            ADD_FAILURE() << "after act " << act << ", " << chosen.name;
            return false;
        }
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
    return place.left >= 0 && place.left < SCREEN_W && place.top >= 0 && place.top < SCREEN_H;
}

bool MustComeBack(const Program& program) {
    return program.good && IsWindowVisible(program.window) && !IsIconic(program.window) &&
           !IsZoomed(program.window);
}

void QuitAndSeeAllBack() {
    CloseDialogs();
    DoRow(EXIT);
    PostMessageA(WaitForBox("QUIT?"), WM_COMMAND, IDYES, 0);
    EXPECT_SOON(QuorlWindow(), HWND{});
    for (const Program& program : Programs)
        EXPECT_TRUE(IsBack(program) || !MustComeBack(program)) << PlaceOf(program.window);
}

void Kill(HANDLE quorl) {
    DoRow(Below(3) ? SAVE : Below(NUM_ROWS));
    Sleep(static_cast<DWORD>(Below(60)));
    TerminateProcess(quorl, 0);
    WaitForSingleObject(quorl, INFINITE);
    EXPECT_SOON(QuorlWindow(), HWND{});
}

// What stands last in a file that was saved without a stop.
void ExpectWholeSettings() {
    const std::string text = SettingsText();
    EXPECT_EQ(text.rfind("[Quorl]", 0), 0U) << text;
    for (const char* key : {"Quorl.right=", "border=", "num_regions=", "quorl_menu_count=", "Action122="})
        EXPECT_NE(text.find(key), std::string::npos) << key << " in\n" << text;
    const int regions = std::atoi(Stored("num_regions").c_str());
    for (int region = 0; region < regions; ++region)
        EXPECT_NE(Stored(("Region" + std::to_string(region)).c_str()), "") << region << " of " << regions;
}

// A day as long as it was asked for, with three programs to begin with.
Length Begin() {
    Length length;
    if (const char* const words = std::getenv("QUORL_SOAK"))
        std::sscanf(words, "%d %d %u", &length.acts, &length.kills, &length.seed);
    Chance.seed(length.seed);
    Programs.clear();
    for (int i = 0; i < 3; ++i)
        Open("plain", {100 * i, 50 * i, 100 * i + 400, 50 * i + 300});
    return length;
}

// What the system keeps of a dialog, or of a menu, for the next one is kept once; so are up to 64 contexts,
// as they are needed, and Options with its many controls needs most.
void OpenAllOnce() {
    ChooseFromMenu();
    for (const int row : {54, 54, 54, 54, 54, 49, 52, 53, 55, 56, 57, 74, 111, 116}) {
        DoRow(row);
        EXPECT_SOON(DialogsOfQuorl().size(), 1U) << row;
        CloseDialogs();
    }
}

// A row that was only posted may open a dialog yet.
ResourcesInUse ResourcesAtRest(HANDLE quorl) {
    Sleep(2000);
    CloseDialogs();
    EXPECT_TRUE(Answers(QuorlWindow()));
    Sleep(500);
    return ResourcesOf(quorl);
}

} // namespace

TEST(Soak, QuorlGoesOnAnsweringAndKeepsNothingOfWhatItUsed) {
    const Length length = Begin();
    const HANDLE quorl = Start();
    OpenAllOnce();
    const ULONGLONG start = GetTickCount64();
    int done = 0;
    for (; done < length.acts && GetTickCount64() < start + FIRST_MINUTE; ++done)
        ASSERT_TRUE(Live(1));
    const ResourcesInUse first = ResourcesAtRest(quorl);
    ASSERT_TRUE(Live(length.acts - done));
    const ResourcesInUse last = ResourcesAtRest(quorl);
    std::printf("%d acts: %s, at last %s\n", length.acts, Told(first).c_str(), Told(last).c_str());
    EXPECT_LE(last.windows, first.windows);
    EXPECT_LE(last.gdi, first.gdi) << "graphics objects";
    EXPECT_LE(last.memory, first.memory + MEMORY_SWING);
    QuitAndSeeAllBack();
}

TEST(Soak, WhenQuorlIsKilledTheNextOneBringsTheWindowsBackAndTheSettingsAreWhole) {
    const Length length = Begin();
    Start();
    DoRow(SAVE);
    EXPECT_SOON(Stored("Action122") != "", true);
    QuitAndSeeAllBack();
    for (int kill = 0; kill < length.kills && !testing::Test::HasFailure(); ++kill) {
        const HANDLE quorl = Start();
        ASSERT_TRUE(Live(ACTS_BEFORE_KILL));
        Kill(quorl);
        ExpectWholeSettings();
        Start();
        QuitAndSeeAllBack();
    }
}
