// The user's hands and eyes, made of plain Win32 calls from outside of Quorl.
#include "user.h"

#include "settings_file.h"

#include <algorithm>

namespace {

HANDLE Programs; // a job: closing it ends every program in it

HANDLE NewJob() {
    const HANDLE job = CreateJobObjectA(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limit = {};
    limit.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limit, sizeof limit);
    return job;
}

HANDLE Launch(const std::string& command, const std::string& folder, DWORD* id) {
    STARTUPINFOA how = {};
    how.cb = sizeof how;
    PROCESS_INFORMATION program = {};
    std::string line = command;
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr,
                        folder.empty() ? nullptr : folder.c_str(), &how, &program))
        return nullptr;
    AssignProcessToJobObject(Programs, program.hProcess);
    ResumeThread(program.hThread);
    CloseHandle(program.hThread);
    *id = program.dwProcessId;
    return program.hProcess;
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
    Programs = NewJob();
    EXPECT_SOON(QuorlWindow(), HWND{});
    DeleteFileA(SettingsFile().c_str());
    SetCursorPos(SCREEN_W - 1, SCREEN_H - 1); // out of the way of the windows
}

std::string ProgramFolder() {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string name = path;
    return name.substr(0, name.rfind('\\'));
}

HWND QuorlWindow() {
    return FindWindowA("Quorltop", "Quorltop");
}

HANDLE LaunchQuorl(const std::string& folder) {
    const std::string home = folder.empty() ? ProgramFolder() : folder;
    DWORD id = 0;
    return Launch("\"" + home + "\\quorl.exe\"", home, &id);
}

// It shows its window before it reads messages; answering one says that it is ready for keys.
HWND StartQuorl(const std::string& folder) {
    Insist(LaunchQuorl(folder) && Soon(IsMapShown, true) && Answers(QuorlWindow()), "Quorl on the screen");
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
    char command[512];
    snprintf(command, sizeof command, "\"%s\\e2e_tests.exe\" --play %s \"%s\" %d %d %d %d",
             ProgramFolder().c_str(), part, title, place.left, place.top, place.right - place.left,
             place.bottom - place.top);
    DWORD id = 0;
    Launch(command, "", &id);
    const HWND window = WaitForVisible(id, "Player", title);
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
    return window;
}

HWND OpenProgram(const char* command, const char* windowClass) {
    DWORD id = 0;
    Launch(command, "", &id);
    return WaitForVisible(id, windowClass, nullptr);
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

void PressInTurn(std::initializer_list<WORD> keys) {
    for (const WORD key : keys)
        PressKeys({key});
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

HWND WaitForBox(const char* caption) {
    const HWND box = WaitForVisible(0, "#32770", caption);
    Insist(box != nullptr, caption);
    return box;
}

void AnswerBox(const char* caption, WORD key) {
    const HWND box = WaitForBox(caption);
    Until([box] { return !IsWindow(box); },
          [box, key] {
              Activate(box);
              PressKeys({key});
          });
    Insist(WaitForEnd(box), std::string("an end of ") + caption);
}

std::string BoxText(HWND box) {
    constexpr int TEXT_ID = 0xffff; // of the text in every message box
    char text[1024] = "";
    GetDlgItemTextA(box, TEXT_ID, text, sizeof text);
    return text;
}

void AnswerYesToQuit() {
    const HANDLE quorl =
        OpenProcess(SYNCHRONIZE | PROCESS_QUERY_INFORMATION, FALSE, ProcessOf(QuorlWindow()));
    AnswerBox("QUIT?", 'Y');
    Insist(WaitForExit(quorl) == 0, "an end of Quorl with exit code 0");
    CloseHandle(quorl);
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
