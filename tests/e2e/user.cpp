// The user's hands and eyes, made of plain Win32 calls from outside of Quorl.
#include "user.h"

namespace {

HANDLE Programs; // a job: closing it ends every program in it
HANDLE Quorl;    // the last one that was started

// Null if it does not start.
HANDLE Launch(std::string command) {
    STARTUPINFOA how = {};
    how.cb = sizeof how;
    PROCESS_INFORMATION program = {};
    CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr, nullptr, &how,
                   &program);
    AssignProcessToJobObject(Programs, program.hProcess);
    ResumeThread(program.hThread);
    CloseHandle(program.hThread);
    return program.hProcess;
}

// A program that stands beside this one.
HANDLE LaunchOwn(const char* program, const std::string& words = "") {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    *(strrchr(path, '\\') + 1) = 0;
    return Launch("\"" + std::string(path) + program + "\" " + words);
}

// 0: of any process; null: with any title.
HWND FindVisible(DWORD process, const char* windowClass, const char* title) {
    HWND window = nullptr;
    do
        window = FindWindowExA(nullptr, window, windowClass, title);
    while (window && (!IsWindowVisible(window) || (process && process != ProcessOf(window))));
    return window;
}

HWND WaitForVisible(DWORD process, const char* windowClass, const char* title) {
    HWND found = nullptr;
    Soon([&] { return (found = FindVisible(process, windowClass, title)) != nullptr; }, true);
    return found;
}

void Send(LONG dx, LONG dy, DWORD data, DWORD flags) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi = {dx, dy, data, flags, 0, 0};
    SendInput(1, &input, sizeof input);
}

std::string SettingsFile() {
    char folder[MAX_PATH] = "";
    GetWindowsDirectoryA(folder, sizeof folder);
    return std::string(folder) + "\\quorl.ini";
}

} // namespace

std::ostream& operator<<(std::ostream& out, const Place& place) {
    return out << place.left << "," << place.top << " - " << place.right << "," << place.bottom;
}

Place Moved(const Place& place, int dx, int dy) {
    return {place.left + dx, place.top + dy, place.right + dx, place.bottom + dy};
}

void Insist(bool came, const std::string& wanted) {
    if (came)
        return;
    printf("This did not come as announced. Wanted: %s\n", wanted.c_str());
    CleanDesktop();
    exit(1);
}

void CleanDesktop() {
    if (Programs)
        CloseHandle(Programs);
    Programs = CreateJobObjectA(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limit = {};
    limit.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(Programs, JobObjectExtendedLimitInformation, &limit, sizeof limit);
    EXPECT_SOON(QuorlWindow(), HWND{});
    DeleteFileA(SettingsFile().c_str());
    SetCursorPos(SCREEN_W - 1, SCREEN_H - 1); // out of the way of the windows
}

HWND QuorlWindow() {
    return FindWindowA("Quorltop", "Quorltop");
}

HANDLE LaunchQuorl() {
    return Quorl = LaunchOwn("quorl.exe");
}

// It shows its window before it reads messages; answering one says that it is ready for keys.
HWND StartQuorl() {
    Insist(LaunchQuorl() && Soon(IsMapShown, true) && Answers(QuorlWindow()), "Quorl on the screen");
    return QuorlWindow();
}

bool IsMapShown() {
    return IsWindowVisible(QuorlWindow());
}

bool Answers(HWND window) {
    DWORD_PTR answer = 0;
    return SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, PATIENCE, &answer) != 0;
}

HWND OpenWindow(const char* title, const Place& place, const char* part) {
    char words[256];
    snprintf(words, sizeof words, "--play %s \"%s\" %d %d %d %d", part, title, place.left, place.top,
             place.right - place.left, place.bottom - place.top);
    const HWND window = WaitForVisible(GetProcessId(LaunchOwn("e2e_tests.exe", words)), "Player", title);
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
    return window;
}

HWND OpenProgram(const char* command, const char* windowClass) {
    return WaitForVisible(GetProcessId(Launch(command)), windowClass, nullptr);
}

void SendKey(WORD key, DWORD flags) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
    const bool extended = (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_LWIN || key == VK_RSHIFT;
    input.ki.dwFlags = flags | (extended ? KEYEVENTF_EXTENDEDKEY : 0U);
    SendInput(1, &input, sizeof input);
}

// Under Wine a window that slides under the pointer, or takes the focus late, lets go of keys that no real
// keyboard holds. So the keys to hold are looked at before the last one goes down.
bool PressKeys(std::initializer_list<WORD> keys) {
    const WORD* const last = keys.end() - 1;
    bool held = false;
    for (int i = 0; i < 20 && !held; ++i) {
        for (const WORD* key = keys.begin(); key != last; ++key)
            SendKey(*key, 0);
        Sleep(60); // older states are cached
        held = std::all_of(keys.begin(), last, [](WORD key) { return GetAsyncKeyState(key) < 0; });
        if (held)
            SendKey(*last, 0);
        for (auto key = std::rbegin(keys); key != std::rend(keys); ++key)
            SendKey(*key, KEYEVENTF_KEYUP);
    }
    return held;
}

void PressInTurn(const std::vector<WORD>& keys) {
    for (const WORD key : keys)
        PressKeys({key});
}

// A move that was only sent is forgotten after some 100 ms under Wine, for the pointer's own place; one that
// follows the pointer at once may be lost.
void MoveMouse(POINT to) {
    SetCursorPos(to.x, to.y);
    Sleep(60);
    SendMouse(to.x, to.y);
    Sleep(60);
}

POINT MousePlace() {
    POINT place = {};
    GetCursorPos(&place);
    return place;
}

Place AfterMoving(HWND window, POINT to) {
    MoveMouse({to.x - 1, to.y});
    MoveMouse(to);
    return PlaceOf(window);
}

void SendMouse(LONG x, LONG y) {
    const auto scaled = [](LONG at, int size) { return (at * 65536 + 32768) / size; };
    Send(scaled(x, SCREEN_W), scaled(y, SCREEN_H), 0, MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE);
}

void Click(DWORD press, DWORD release) {
    const DWORD data = press == MOUSEEVENTF_WHEEL ? WHEEL_DELTA : 0;
    Send(0, 0, data, press);
    Send(0, 0, data, release);
}

void PressButton(DWORD flag) {
    Send(0, 0, 0, flag);
}

void DoRow(int row) {
    PostMessageA(QuorlWindow(), WM_HOTKEY, static_cast<WPARAM>(row), 0);
}

void Activate(HWND window) {
    const auto isActive = [window] { return GetForegroundWindow() == window; };
    Until(isActive, [&] {
        SetForegroundWindow(window);
        Soon(isActive, true);
        Settle(window);
    });
    EXPECT_TRUE(isActive()) << TextOf(window);
}

// Quorl and the window's program do all that an activation means to them; one that comes in between is undone
// under Wine.
void Settle(HWND window) {
    EXPECT_TRUE(Answers(QuorlWindow()) || !QuorlWindow());
    EXPECT_TRUE(Answers(window));
    Sleep(200);
}

Place PlaceOf(HWND window) {
    RECT place = {};
    GetWindowRect(window, &place);
    return {place.left, place.top, place.right, place.bottom};
}

DWORD ProcessOf(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process;
}

std::string TextOf(HWND window) {
    char text[1024] = "";
    GetWindowTextA(window, text, sizeof text);
    return text;
}

HWND TipStrip() {
    return FindVisible(0, "w_ToolTip", nullptr);
}

HWND OpenedMenu() {
    return FindVisible(0, "#32768", nullptr);
}

std::string Stored(const std::string& key) {
    char text[8192] = "";
    GetPrivateProfileStringA("Quorl", key.c_str(), "", text, sizeof text, SettingsFile().c_str());
    return text;
}

void Store(const std::string& key, const std::string& value) {
    EXPECT_TRUE(WritePrivateProfileStringA("Quorl", key.c_str(), value.c_str(), SettingsFile().c_str()));
}

void ExpectSaved(const std::string& key, const std::string& wanted) {
    DoRow(SAVE);
    EXPECT_SOON(Stored(key), wanted) << key;
}

HWND WaitForBox(const char* caption) {
    const HWND box = WaitForVisible(0, "#32770", caption);
    Insist(box != nullptr, caption);
    return box;
}

std::string AnswerBox(const char* caption, WORD key) {
    constexpr int TEXT_ID = 0xffff; // of the text in every message box
    const HWND box = WaitForBox(caption);
    const std::string text = TextOf(GetDlgItem(box, TEXT_ID));
    Until([box] { return !IsWindow(box); },
          [box, key] {
              Activate(box);
              PressKeys({key});
          });
    Insist(WaitForEnd(box), std::string("an end of ") + caption);
    return text;
}

void AnswerYesToQuit() {
    AnswerBox("QUIT?", 'Y');
    Insist(WaitForExit(Quorl) == 0, "an end of Quorl with exit code 0");
}

void Quit() {
    PostMessageA(QuorlWindow(), WM_CLOSE, 0, 0);
    AnswerYesToQuit();
}

bool WaitForEnd(HWND window) {
    return !Soon([window] { return IsWindow(window) != 0; }, false);
}

DWORD WaitForExit(HANDLE process) {
    DWORD code = STILL_ACTIVE;
    WaitForSingleObject(process, PATIENCE);
    GetExitCodeProcess(process, &code);
    return code;
}
