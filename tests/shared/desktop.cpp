#include "shared/desktop.h"

#include <dwmapi.h>

#include <vector>

static HANDLE Job; // closing it ends every program in it
static std::vector<HANDLE> Programs;

bool IsWine() {
    return GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
}

int ScreenMetric(int metric) {
    static const BOOL real = SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    static_cast<void>(real);
    return GetSystemMetrics(metric);
}

HANDLE Launch(std::string command) {
    if (!Job) {
        Job = CreateJobObjectA(nullptr, nullptr);
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limit{};
        limit.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        SetInformationJobObject(Job, JobObjectExtendedLimitInformation, &limit, sizeof limit);
    }
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION program{};
    CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr, nullptr,
                   &startup, &program);
    AssignProcessToJobObject(Job, program.hProcess);
    ResumeThread(program.hThread);
    CloseHandle(program.hThread);
    Programs.push_back(program.hProcess);
    return program.hProcess;
}

void EndPrograms() {
    CloseHandle(Job);
    Job = nullptr;
    for (const HANDLE program : Programs) {
        WaitForSingleObject(program, TIMEOUT);
        CloseHandle(program);
    }
    Programs.clear();
}

HWND OpenWindow(const char* title, const RECT& rect, const char* behaviour) {
    char path[MAX_PATH] = "", command[512];
    GetModuleFileNameA(nullptr, path, sizeof path);
    snprintf(command, sizeof command, "\"%s\" --play %s \"%s\" %ld %ld %ld %ld", path, behaviour, title,
             rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
    const HWND window = WaitForVisible(GetProcessId(Launch(command)), "Player", title);
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
    return window;
}

// Wine's own library has these functions too, but they fail.
template <typename Function>
static Function* Compositor(const char* name) {
    static const HMODULE library = LoadLibraryA("dwmapi.dll");
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

RECT VisibleRect(HWND window) {
    constexpr DWORD EXTENDED_FRAME_BOUNDS = 9;
    RECT visible{};
    const auto read = Compositor<decltype(DwmGetWindowAttribute)>("DwmGetWindowAttribute");
    return SUCCEEDED(read(window, EXTENDED_FRAME_BOUNDS, &visible, sizeof visible)) ? visible
                                                                                    : WindowRect(window);
}

static void Cloak(HWND window) {
    constexpr DWORD CLOAK = 13;
    const BOOL yes = TRUE;
    Compositor<decltype(DwmSetWindowAttribute)>("DwmSetWindowAttribute")(window, CLOAK, &yes, sizeof yes);
}

static std::string Behaviour;

static LRESULT CALLBACK PlayerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP && Behaviour == "hung")
        Sleep(INFINITE);
    if (message == WM_MOVING && Behaviour == "slow")
        Sleep(500);
    if (message == WM_DESTROY || (message == WM_MOVING && Behaviour == "dies"))
        ExitProcess(0);
    if (message == WM_MOVING && Behaviour == "overrides") {
        RECT& rect = *reinterpret_cast<RECT*>(lParam); // right and bottom are a size here
        rect.left += 7;
        rect.top += 9;
        return TRUE;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

bool PlayWindow(int count, char** arguments) {
    if (count != 8 || std::string(arguments[1]) != "--play")
        return false;
    Behaviour = arguments[2];
    WNDCLASSA type{};
    type.lpfnWndProc = PlayerProc;
    type.lpszClassName = "Player";
    type.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    type.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    RegisterClassA(&type);
    const HWND window =
        CreateWindowA("Player", arguments[3], WS_OVERLAPPEDWINDOW, atoi(arguments[4]), atoi(arguments[5]),
                      atoi(arguments[6]), atoi(arguments[7]), nullptr, nullptr, nullptr, nullptr);
    ShowWindow(window, SW_SHOWNOACTIVATE);
    UpdateWindow(window);
    if (Behaviour == "cloaked")
        Cloak(window);
    PostMessageA(window, WM_APP, 0, 0);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    return true;
}

HWND FindVisible(DWORD process, const char* windowClass, const char* title) {
    HWND window = nullptr;
    do
        window = FindWindowExA(nullptr, window, windowClass, title);
    while (window && (!IsWindowVisible(window) || (process && process != ProcessOf(window))));
    return window;
}

HWND WaitForVisible(DWORD process, const char* windowClass, const char* title) {
    HWND found = nullptr;
    Eventually([&] { return (found = FindVisible(process, windowClass, title)) != nullptr; }, true);
    return found;
}

DWORD ProcessOf(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process;
}

void HoldKey(int key, bool down) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<WORD>(key);
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(input.ki.wVk, MAPVK_VK_TO_VSC));
    const bool extended = (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_LWIN || key == VK_RSHIFT;
    input.ki.dwFlags = (down ? 0U : KEYEVENTF_KEYUP) | (extended ? KEYEVENTF_EXTENDEDKEY : 0U);
    SendInput(1, &input, sizeof input);
}

static void Send(LONG x, LONG y, DWORD data, DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi = {x, y, data, flags, 0, 0};
    SendInput(1, &input, sizeof input);
}

// Without the flag Windows counts from the primary display; with it Wine's virtual desktop loses moves.
void SendMouse(int x, int y) {
    const auto scaled = [](int at, int start, int size) {
        return ((at - GetSystemMetrics(start)) * 65536 + 32768) / GetSystemMetrics(size);
    };
    const DWORD all = GetSystemMetrics(SM_CMONITORS) > 1 ? MOUSEEVENTF_VIRTUALDESK : 0U;
    Send(scaled(x, SM_XVIRTUALSCREEN, SM_CXVIRTUALSCREEN), scaled(y, SM_YVIRTUALSCREEN, SM_CYVIRTUALSCREEN),
         0, MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | all);
}

// Under Wine a move that was only sent is replaced by the X server's pointer position after some 100 ms, and
// one that follows SetCursorPos at once may be lost.
void MoveMouse(int x, int y) {
    SetCursorPos(x, y);
    Sleep(60);
    SendMouse(x, y);
    Sleep(60);
}

void PressMouse(int button, bool down) {
    const DWORD press = button == VK_LBUTTON   ? MOUSEEVENTF_LEFTDOWN
                        : button == VK_RBUTTON ? MOUSEEVENTF_RIGHTDOWN
                                               : MOUSEEVENTF_MIDDLEDOWN;
    Send(0, 0, 0, down ? press : press << 1); // the flag of the release is the next bit
}

void TurnWheel() {
    Send(0, 0, WHEEL_DELTA, MOUSEEVENTF_WHEEL);
}

void HandleMessages() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageA(&message);
}
