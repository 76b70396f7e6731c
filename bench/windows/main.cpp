// What the frequent deeds cost among real windows of another program, each beside its bare platform calls,
// taking turns in one run; and what a start is spent on.
//   quorl_bench.exe            all of it
//   quorl_bench.exe N          among N windows only, without the starts
//   quorl_bench.exe --play N   the other program, with N windows
//   quorl_bench.exe --start    one start, its parts
#include "deeds.h"

#include "actions/default_bindings.h"
#include "actions/hotkeys.h"
#include "core/main.h"
#include "core/state.h"
#include "menus/tray.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr char PLAYER_CLASS[] = "QuorlBenchPlayer";
constexpr UINT CALM_MESSAGE = WM_APP; // answered when everything that waits has been handled
constexpr int STARTS = 11;
constexpr int CROWD = 1000;

double Now() { // milliseconds
    LARGE_INTEGER count, second;
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&second);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(second.QuadPart);
}

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void HandleWaiting() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageA(&message);
}

LRESULT CALLBACK PlayerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == CALM_MESSAGE)
        HandleWaiting();
    return DefWindowProcA(window, message, wParam, lParam);
}

HWND OpenPlayer(DWORD exStyle, DWORD style, const POINT& at, const SIZE& size) {
    return CreateWindowExA(exStyle, PLAYER_CLASS, "player", style, at.x, at.y, size.cx, size.cy, nullptr,
                           nullptr, nullptr, nullptr);
}

// One of many: as a program's window stands among others.
HWND OpenOrdinary(int number) {
    return OpenPlayer(0, WS_OVERLAPPEDWINDOW, {number % 500, number % 300 + 100}, {300, 200});
}

// One of a crowd, side by side: where a thousand lie over each other, the system spends minutes on what is to
// be seen of each.
HWND OpenTile(int number) {
    constexpr int columns = 34;
    return OpenPlayer(WS_EX_TOOLWINDOW, WS_POPUP | WS_BORDER, {number % columns * 30, number / columns * 20},
                      {28, 18});
}

int Play(int count) {
    WNDCLASSA type{};
    type.lpfnWndProc = PlayerProc;
    type.lpszClassName = PLAYER_CLASS;
    type.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    RegisterClassA(&type);
    for (int i = 0; i < count; ++i)
        ShowWindow(count < CROWD ? OpenOrdinary(i) : OpenTile(i), SW_SHOWNOACTIVATE);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    return 0;
}

// Its output goes to `output`, if there is one. Gives the process.
HANDLE StartAgain(const std::string& words, HANDLE output = nullptr) {
    char program[MAX_PATH];
    GetModuleFileNameA(nullptr, program, MAX_PATH);
    std::string line = '"' + std::string(program) + "\" " + words;
    STARTUPINFOA how{};
    how.cb = sizeof how;
    if (output) {
        how.dwFlags = STARTF_USESTDHANDLES;
        how.hStdOutput = output;
    }
    PROCESS_INFORMATION started{};
    if (CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &how, &started))
        return started.hProcess;
    std::puts("cannot start the other program");
    std::exit(1);
}

BOOL CALLBACK CountPlayer(HWND window, LPARAM count) {
    char name[64] = "";
    GetClassNameA(window, name, sizeof name);
    if (std::strcmp(name, PLAYER_CLASS) == 0 && IsWindowVisible(window))
        ++*reinterpret_cast<int*>(count);
    return TRUE;
}

int PlayersOnShow() {
    int count = 0;
    EnumWindows(CountPlayer, reinterpret_cast<LPARAM>(&count));
    return count;
}

// Nobody has anything left to do.
void WaitForCalm() {
    SendMessageA(FindWindowA(PLAYER_CLASS, nullptr), CALM_MESSAGE, 0, 0);
}

double TimeOf(void (*does)()) {
    WaitForCalm();
    const double start = Now();
    does();
    return Now() - start;
}

// Prints the medians of both sides, and that of the ratios of neighbours, which one slow moment hardly moves.
void Measure(const Deed& deed, int windows) {
    const int rounds = windows < CROWD ? 51 : 15;
    std::vector<double> quorl, bare, ratios;
    deed.quorl();
    deed.bare();
    for (int round = 0; round < rounds; ++round) {
        quorl.push_back(TimeOf(deed.quorl));
        bare.push_back(TimeOf(deed.bare));
        ratios.push_back(quorl.back() / bare.back());
    }
    std::printf("%-22s %5d %12.1f %12.1f %8.2f\n", deed.name, windows, 1000 * Median(quorl) / deed.times,
                1000 * Median(bare) / deed.times, Median(ratios));
    std::fflush(stdout);
}

void MeasureAmong(int windows) {
    const HANDLE player = StartAgain("--play " + std::to_string(windows));
    while (PlayersOnShow() < windows)
        Sleep(50);
    WaitForCalm();
    PrepareDeeds();
    for (int deed = 0; deed < num_deeds; ++deed)
        Measure(Deeds[deed], windows);
    TerminateProcess(player, 0);
    WaitForSingleObject(player, INFINITE);
    while (PlayersOnShow() > 0)
        Sleep(50);
}

// Milliseconds since the process was created.
double Age() {
    FILETIME created, other, now;
    GetProcessTimes(GetCurrentProcess(), &created, &other, &other, &other);
    GetSystemTimeAsFileTime(&now);
    const auto whole = [](const FILETIME& time) {
        return static_cast<double>(time.dwHighDateTime) * 4294967296.0 + time.dwLowDateTime;
    };
    return (whole(now) - whole(created)) / 10000;
}

void End() {
    TrayIcon(MainWnd, NIM_DELETE);
    ClearAllActionKeys(MainWnd);
    ShutDown();
}

// What StartUp loads is loaded beforehand, so that each part is seen by itself. Prints one line of numbers.
int StartOnce() {
    const double age = Age();
    double at[6] = {Now()};
    LoadLibraryA("dwmapi.dll");
    at[1] = Now();
    LoadLibraryA("quorl.dll");
    at[2] = Now();
    if (!StartUp(GetModuleHandleA(nullptr)))
        return 1;
    at[3] = Now();
    UpdateWindow(MainWnd);
    at[4] = Now();
    ClearAllActionKeys(MainWnd);
    const double released = Now();
    SetDefaultBindings(MainWnd);
    at[5] = Now();
    std::printf("%f %f %f %f %f %f\n", age, at[1] - at[0], at[2] - at[1], at[3] - at[2], at[4] - at[3],
                at[5] - released);
    End();
    return 0;
}

enum StartPart { CREATION, COMPOSITOR, HOOK_LIBRARY, START_UP, FIRST_PAINT, HOTKEYS, NUM_PARTS };
const char* const PartNames[NUM_PARTS] = {
    "the system makes the process", "dwmapi.dll",      "quorl.dll",
    "StartUp without these two",    "the first paint", "in StartUp: hotkeys",
};

std::vector<double> PartsOfOneStart() {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE read = nullptr, write = nullptr;
    CreatePipe(&read, &write, &inherited, 0);
    const HANDLE child = StartAgain("--start", write);
    WaitForSingleObject(child, INFINITE);
    CloseHandle(write);
    char text[256] = "";
    DWORD length = 0;
    ReadFile(read, text, sizeof text - 1, &length, nullptr);
    CloseHandle(read);
    std::vector<double> parts;
    char* rest = text;
    for (int part = 0; part < NUM_PARTS; ++part)
        parts.push_back(std::strtod(rest, &rest));
    return parts;
}

void MeasureStarts() {
    std::vector<double> parts[NUM_PARTS], whole;
    for (int start = 0; start < STARTS; ++start) {
        const std::vector<double> one = PartsOfOneStart();
        whole.push_back(0);
        for (int part = 0; part < NUM_PARTS; ++part) {
            parts[part].push_back(one[static_cast<std::size_t>(part)]);
            whole.back() += part == HOTKEYS ? 0 : parts[part].back();
        }
    }
    std::printf("start to first map: %.1f ms\n", Median(whole));
    for (int part = 0; part < NUM_PARTS; ++part)
        std::printf("  %-30s %8.1f ms\n", PartNames[part], Median(parts[part]));
    std::fflush(stdout);
}

} // namespace

int main(int count, char** words) {
    if (count == 3 && std::strcmp(words[1], "--play") == 0)
        return Play(std::atoi(words[2]));
    if (count == 2 && std::strcmp(words[1], "--start") == 0)
        return StartOnce();
    const int only = count == 2 ? std::atoi(words[1]) : 0;
    if (!only)
        MeasureStarts();
    if (!StartUp(GetModuleHandleA(nullptr)))
        return 1;
    UpdateWindow(MainWnd);
    std::printf("%-22s %5s %12s %12s %8s\n", "deed", "among", "quorl us", "bare us", "ratio");
    if (only)
        MeasureAmong(only);
    else
        for (const int windows : {10, 100, 1000})
            MeasureAmong(windows);
    End();
    return 0;
}
