// The program behind check.cmd.
//   kit save FILE, kit restore FILE   the position of every window
//   kit facts                         what Quorl relies on, measured here
//   kit run PROGRAM                   each case of a test program, in its own process
//   kit displays                      what Windows does to a window beyond all displays
#include "shared/desktop.h"

#include <shellscalingapi.h>

#include <cstdio>
#include <fstream>
#include <sstream>

namespace {

constexpr RECT NORMAL{200, 150, 600, 450};

struct Saved {
    HWND window;
    DWORD process; // a handle may have been given to another window since
    WINDOWPLACEMENT placement;
    RECT rect;
};

UINT StateOf(HWND window) {
    return IsIconic(window) ? SW_SHOWMINNOACTIVE : IsZoomed(window) ? SW_SHOWMAXIMIZED : SW_SHOWNOACTIVATE;
}

BOOL CALLBACK SaveWindow(HWND window, LPARAM file) {
    Saved saved{window, ProcessOf(window), {}, WindowRect(window)};
    saved.placement.length = sizeof saved.placement;
    if (IsWindowVisible(window) && GetWindowPlacement(window, &saved.placement)) {
        saved.placement.showCmd = StateOf(window); // Wine does not return that of another program's window
        reinterpret_cast<std::ofstream*>(file)->write(reinterpret_cast<const char*>(&saved), sizeof saved);
    }
    return TRUE;
}

int Save(const char* path) {
    std::ofstream file(path, std::ios::binary);
    const bool running = FindWindowA("Quorltop", nullptr) != nullptr;
    if (!running)
        EnumWindows(SaveWindow, reinterpret_cast<LPARAM>(&file));
    fputs(running ? "Quorl is running. Exit it first.\n" : file ? "" : "The folder is read-only.\n", stderr);
    return running || !file;
}

// Without waiting for a program.
int Restore(const char* path) {
    std::ifstream file(path, std::ios::binary);
    for (Saved saved{}; file.read(reinterpret_cast<char*>(&saved), sizeof saved);) {
        if (ProcessOf(saved.window) != saved.process)
            continue;
        const UINT state = saved.placement.showCmd;
        if (StateOf(saved.window) != state) {
            saved.placement.flags |= WPF_ASYNCWINDOWPLACEMENT;
            SetWindowPlacement(saved.window, &saved.placement);
            ShowWindowAsync(saved.window, static_cast<int>(state));
        }
        if (state != SW_SHOWMINNOACTIVE && WindowRect(saved.window) != saved.rect)
            SetWindowPos(saved.window, nullptr, saved.rect.left, saved.rect.top,
                         saved.rect.right - saved.rect.left, saved.rect.bottom - saved.rect.top,
                         SWP_NOZORDER | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
    }
    return 0;
}

void Print(const char* what, const RECT& rect) {
    printf("%-22s %6ld %6ld %6ld %6ld\n", what, rect.left, rect.top, rect.right, rect.bottom);
}

BOOL CALLBACK PrintDisplay(HMONITOR monitor, HDC, RECT*, LPARAM) {
    MONITORINFOEXA info{};
    info.cbSize = sizeof info;
    UINT dpi = 0, same = 0;
    GetMonitorInfoA(monitor, &info);
    GetDpiForMonitor(monitor, MDT_EFFECTIVE_DPI, &dpi, &same);
    printf("%s, scale %u%%\n", info.szDevice, dpi * 100 / 96);
    Print("  all", info.rcMonitor);
    Print("  work area", info.rcWork);
    return TRUE;
}

void PrintMargins(const char* what, HWND window) {
    const RECT rect = WindowRect(window), visible = VisibleRect(window);
    Print(what, {visible.left - rect.left, visible.top - rect.top, rect.right - visible.right,
                 rect.bottom - visible.bottom});
}

int Facts() {
    RTL_OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    const auto read = reinterpret_cast<LONG(WINAPI*)(RTL_OSVERSIONINFOW*)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll.dll"), "RtlGetVersion")));
    read(&version);
    printf("Windows %lu.%lu.%lu%s\n\nDisplays\n", version.dwMajorVersion, version.dwMinorVersion,
           version.dwBuildNumber, IsWine() ? " (Wine)" : "");
    EnumDisplayMonitors(nullptr, nullptr, PrintDisplay, 0);
    printf("\nMargins: left, top, right, bottom\n");
    const HWND window = OpenWindow("margins", NORMAL);
    Sleep(500); // the compositor has drawn it
    PrintMargins("normal", window);
    PrintMargins("not DPI aware", OpenWindow("not DPI aware", NORMAL, "unaware"));
    ShowWindow(window, SW_MAXIMIZE);
    Sleep(500);
    PrintMargins("maximized", window);
    ShowWindow(window, SW_RESTORE);
    PrintMargins("just restored", window);
    SetForegroundWindow(window);
    for (const bool down : {true, false})
        for (const int key : {VK_LWIN, VK_LEFT})
            HoldKey(key, down);
    Sleep(1000);
    PrintMargins("snapped by Win+Left", window);
    EndPrograms();
    return 0;
}

// The output and exit code of a program; STILL_ACTIVE if it had to be ended.
DWORD Run(const std::string& command, std::string* output) {
    constexpr DWORD LIMIT = 300000; // ms
    const HANDLE program = Launch("cmd /c \"" + command + " >case.txt 2>&1\"");
    DWORD code = STILL_ACTIVE;
    WaitForSingleObject(program, LIMIT);
    GetExitCodeProcess(program, &code);
    EndPrograms();
    std::ifstream file("case.txt");
    *output = {std::istreambuf_iterator<char>(file), {}};
    return code;
}

void RunCase(const std::string& program, const std::string& name) {
    std::string output;
    const bool passed = Run(program + " --gtest_filter=" + name, &output) == 0;
    const bool skipped = output.find("[  SKIPPED ]") != std::string::npos;
    printf("%-8s %s\n", !passed ? "FAILED" : skipped ? "skipped" : "passed", name.c_str());
    if (!passed || skipped)
        printf("%s\n", output.c_str());
    fflush(stdout);
    fprintf(stderr, "%s\n", name.c_str());
}

int RunAll(const char* program) {
    std::string list, suite;
    printf("\n%s\n", program);
    if (Run(std::string(program) + " --gtest_list_tests", &list) != 0)
        return printf("FAILED to list its cases\n%s\n", list.c_str());
    std::istringstream lines(list);
    for (std::string line; std::getline(lines, line);)
        if (line[0] == ' ')
            RunCase(program, suite + line.substr(2));
        else
            suite = line.substr(0, line.find(' '));
    return 0;
}

int DisplayChange() {
    const HWND window = OpenWindow("beyond all displays", NORMAL);
    const RECT away = Moved(NORMAL, 4 * GetSystemMetrics(SM_CXVIRTUALSCREEN), 0);
    SetWindowPos(window, nullptr, away.left, away.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    fprintf(stderr, "Now change a display within a minute: unplug one, or choose another resolution.\n");
    printf("\nA window beyond all displays, before and after a change of the displays\n");
    Print("before", WindowRect(window));
    const RECT after = Eventually([window] { return WindowRect(window); }, RECT{}, 60000);
    Print("after", after);
    EnumDisplayMonitors(nullptr, nullptr, PrintDisplay, 0);
    EndPrograms();
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    const auto is = [&](int words, const char* mode) {
        return count == words && std::string(arguments[1]) == mode;
    };
    if (count < 3 || std::string(arguments[2]) != "unaware")
        ScreenMetric(SM_CXSCREEN);
    if (PlayWindow(count, arguments))
        return 0;
    if (is(3, "save"))
        return Save(arguments[2]);
    if (is(3, "restore"))
        return Restore(arguments[2]);
    if (is(3, "run"))
        return RunAll(arguments[2]);
    if (is(2, "facts"))
        return Facts();
    return is(2, "displays") ? DisplayChange() : 1;
}
