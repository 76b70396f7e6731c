// The cost of frequent operations among another program's real windows, each alternating with its bare
// platform calls in one run, and the parts of a start.
//   quorl_bench.exe            everything
//   quorl_bench.exe N          among N windows only, without the starts
//   quorl_bench.exe --play N   acts as the other program, with N windows
//   quorl_bench.exe --start    one start, split into parts
#include "operations.h"

#include "actions/hotkeys.h"
#include "app/main.h"
#include "core/state.h"
#include "menus/tray.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr char PROGRAM_CLASS[] = "QuorlBenchProgram";
constexpr UINT IDLE_MESSAGE = WM_APP; // returns after all pending messages were handled
constexpr int STARTS = 11;
constexpr int MANY_WINDOWS = 1000;

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

void HandlePending() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageA(&message);
}

LRESULT CALLBACK ProgramProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == IDLE_MESSAGE)
        HandlePending();
    return DefWindowProcA(window, message, wParam, lParam);
}

HWND OpenProgramWindow(DWORD exStyle, DWORD style, const POINT& at, const SIZE& size) {
    return CreateWindowExA(exStyle, PROGRAM_CLASS, "program", style, at.x, at.y, size.cx, size.cy, nullptr,
                           nullptr, nullptr, nullptr);
}

// An ordinary overlapping window.
HWND OpenOrdinary(int number) {
    return OpenProgramWindow(0, WS_OVERLAPPEDWINDOW, {number % 500, number % 300 + 100}, {300, 200});
}

// Windows side by side: with a thousand overlapping ones the system spends minutes on computing visible
// parts.
HWND OpenTile(int number) {
    constexpr int columns = 34;
    return OpenProgramWindow(WS_EX_TOOLWINDOW, WS_POPUP | WS_BORDER,
                             {number % columns * 30, number / columns * 20}, {28, 18});
}

int Play(int count) {
    WNDCLASSA type{};
    type.lpfnWndProc = ProgramProc;
    type.lpszClassName = PROGRAM_CLASS;
    type.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    RegisterClassA(&type);
    for (int i = 0; i < count; ++i)
        ShowWindow(count < MANY_WINDOWS ? OpenOrdinary(i) : OpenTile(i), SW_SHOWNOACTIVATE);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    return 0;
}

// Returns the process; `output` receives its standard output.
HANDLE StartSelf(const std::string& arguments, HANDLE output = nullptr) {
    char program[MAX_PATH];
    GetModuleFileNameA(nullptr, program, MAX_PATH);
    std::string line = '"' + std::string(program) + "\" " + arguments;
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

BOOL CALLBACK CountIfProgram(HWND window, LPARAM count) {
    char name[64] = "";
    GetClassNameA(window, name, sizeof name);
    if (std::strcmp(name, PROGRAM_CLASS) == 0 && IsWindowVisible(window))
        ++*reinterpret_cast<int*>(count);
    return TRUE;
}

int CountProgramWindows() {
    int count = 0;
    EnumWindows(CountIfProgram, reinterpret_cast<LPARAM>(&count));
    return count;
}

// Returns when the other program has handled everything.
void WaitForIdle() {
    SendMessageA(FindWindowA(PROGRAM_CLASS, nullptr), IDLE_MESSAGE, 0, 0);
}

double TimeOf(void (*run)()) {
    WaitForIdle();
    const double start = Now();
    run();
    return Now() - start;
}

// Prints the medians of both sides and of the ratios of neighbouring measurements, which a slow moment hardly
// affects.
void Measure(const Operation& operation, int windows) {
    const int rounds = windows < MANY_WINDOWS ? 51 : 15;
    std::vector<double> quorl, bare, ratios;
    operation.quorl();
    operation.bare();
    for (int round = 0; round < rounds; ++round) {
        quorl.push_back(TimeOf(operation.quorl));
        bare.push_back(TimeOf(operation.bare));
        ratios.push_back(quorl.back() / bare.back());
    }
    std::printf("%-22s %5d %12.1f %12.1f %8.2f\n", operation.name, windows,
                1000 * Median(quorl) / operation.times, 1000 * Median(bare) / operation.times,
                Median(ratios));
    std::fflush(stdout);
}

// The taskbar appears with the first windows of a desktop and changes its work area; until that has settled
// Quorl moves nothing.
void WaitForDisplays() {
    constexpr ULONGLONG SETTLED = 4000; // milliseconds
    const ULONGLONG end = GetTickCount64() + SETTLED;
    while (GetTickCount64() < end) {
        HandlePending();
        Sleep(10);
    }
}

void MeasureWithWindows(int windows) {
    const HANDLE program = StartSelf("--play " + std::to_string(windows));
    while (CountProgramWindows() < windows)
        Sleep(50);
    WaitForIdle();
    WaitForDisplays();
    PrepareOperations();
    for (int operation = 0; operation < num_operations; ++operation)
        Measure(Operations[operation], windows);
    TerminateProcess(program, 0);
    WaitForSingleObject(program, INFINITE);
    while (CountProgramWindows() > 0)
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
    RemoveTrayIcon(MainWnd);
    ClearAllActionKeys();
    ShutDown();
}

// Loads the libraries before StartUp does, so each part is measured by itself. Prints one line of numbers.
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
    ClearAllActionKeys();
    const double released = Now();
    FillActionTable();
    for (int id = 0; id < NUM_ACTIONS; ++id)
        RegisterDefaultKey(id);
    at[5] = Now();
    std::printf("%f %f %f %f %f %f\n", age, at[1] - at[0], at[2] - at[1], at[3] - at[2], at[4] - at[3],
                at[5] - released);
    End();
    return 0;
}

enum StartPart { CREATION, COMPOSITOR, HOOK_LIBRARY, START_UP, FIRST_PAINT, HOTKEYS, NUM_PARTS };
const char* const PartNames[NUM_PARTS] = {
    "process creation",          "dwmapi.dll",  "quorl.dll",
    "StartUp without these two", "first paint", "StartUp: hotkeys only",
};

std::vector<double> PartsOfOneStart() {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE read = nullptr, write = nullptr;
    CreatePipe(&read, &write, &inherited, 0);
    const HANDLE child = StartSelf("--start", write);
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

int main(int count, char** arguments) {
    if (count == 3 && std::strcmp(arguments[1], "--play") == 0)
        return Play(std::atoi(arguments[2]));
    if (count == 2 && std::strcmp(arguments[1], "--start") == 0)
        return StartOnce();
    const int only = count == 2 ? std::atoi(arguments[1]) : 0;
    if (!only)
        MeasureStarts();
    if (!StartUp(GetModuleHandleA(nullptr)))
        return 1;
    UpdateWindow(MainWnd);
    std::printf("%-22s %5s %12s %12s %8s\n", "operation", "windows", "quorl us", "bare us", "ratio");
    if (only)
        MeasureWithWindows(only);
    else
        for (const int windows : {10, 100, 1000})
            MeasureWithWindows(windows);
    End();
    return 0;
}
