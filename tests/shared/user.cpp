#include "shared/user.h"

#include <fstream>

static HANDLE Quorl; // the process started last

static std::string OwnFolder() {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    *(strrchr(path, '\\') + 1) = 0;
    return path;
}

// In portable mode, which the kit uses, the file is beside the programs.
static std::string SettingsFile(bool portable) {
    char folder[MAX_PATH] = "";
    GetWindowsDirectoryA(folder, sizeof folder);
    return (portable ? OwnFolder() : std::string(folder) + "\\") + "quorl.ini";
}

static const bool Portable = GetFileAttributesA(SettingsFile(true).c_str()) != INVALID_FILE_ATTRIBUTES;

static std::string SettingsFile() {
    return SettingsFile(Portable);
}

static void ClearSettings() {
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, SettingsFile().c_str()); // not from the cache later
    DeleteFileA(SettingsFile().c_str());
    if (Portable)
        std::ofstream(SettingsFile(), std::ios::binary); // an empty one keeps portable mode
}

void Require(bool happened, const std::string& wanted) {
    if (happened)
        return;
    printf("This did not happen: %s\n", wanted.c_str());
    CleanDesktop();
    exit(1);
}

void CleanDesktop() {
    EndPrograms();
    EXPECT_EVENTUALLY(QuorlWindow(), HWND{});
    ClearSettings();
    SetCursorPos(SCREEN_W - 1, SCREEN_H - 1); // away from the windows
}

HWND QuorlWindow() {
    return FindWindowA("Quorltop", "Quorltop");
}

HANDLE LaunchQuorl() {
    return Quorl = Launch("\"" + OwnFolder() + "quorl.exe\"");
}

// The window is visible before the message loop runs; responding means ready for keys.
HWND StartQuorl() {
    Require(LaunchQuorl() && Eventually(IsMapShown, true) && Responds(QuorlWindow()), "Quorl on the screen");
    return QuorlWindow();
}

bool IsMapShown() {
    return IsWindowVisible(QuorlWindow());
}

bool Responds(HWND window) {
    DWORD_PTR result = 0;
    return SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, TIMEOUT, &result) != 0;
}

// Under Wine a window that moves under the pointer, or takes the focus late, releases keys that no real
// keyboard holds. So check that they are held before the last one goes down.
bool PressKeys(std::initializer_list<WORD> keys) {
    const WORD* const last = keys.end() - 1;
    bool held = false;
    for (int i = 0; i < 20 && !held; ++i) {
        for (const WORD* key = keys.begin(); key != last; ++key)
            HoldKey(*key, true);
        Sleep(60); // older states are cached
        held = std::all_of(keys.begin(), last, [](WORD key) { return GetAsyncKeyState(key) < 0; });
        if (held)
            HoldKey(*last, true);
        for (auto key = std::rbegin(keys); key != std::rend(keys); ++key)
            HoldKey(*key, false);
    }
    return held;
}

void PressInTurn(const std::vector<WORD>& keys) {
    for (const WORD key : keys)
        PressKeys({key});
}

void Click(int button) {
    PressMouse(button, true);
    PressMouse(button, false);
}

void RunAction(int action) {
    PostMessageA(QuorlWindow(), WM_HOTKEY, static_cast<WPARAM>(action), 0);
}

void RunActions(std::initializer_list<int> actions) {
    for (const int action : actions)
        RunAction(action);
}

void Activate(HWND window) {
    const auto isActive = [window] { return GetForegroundWindow() == window; };
    Retry(isActive, [&] {
        SetForegroundWindow(window);
        Eventually(isActive, true);
        Settle(window);
    });
    EXPECT_TRUE(isActive()) << TextOf(window);
}

// Under Wine a second activation before the first one is fully handled is undone.
void Settle(HWND window) {
    EXPECT_TRUE(Responds(QuorlWindow()) || !QuorlWindow());
    EXPECT_TRUE(Responds(window));
    Sleep(200);
}

std::string TextOf(HWND window) {
    char text[1024] = "";
    GetWindowTextA(window, text, sizeof text);
    return text;
}

std::string Stored(const std::string& key) {
    char text[8192] = "";
    GetPrivateProfileStringA("Quorl", key.c_str(), "", text, sizeof text, SettingsFile().c_str());
    return text;
}

void StoreSettings(const char* lines) {
    EXPECT_TRUE(WritePrivateProfileSectionA("Quorl", lines, SettingsFile().c_str()));
}

HWND WaitForBox(const char* caption) {
    const HWND box = WaitForVisible(0, "#32770", caption);
    Require(box != nullptr, caption);
    return box;
}

void Quit() {
    PostMessageA(QuorlWindow(), WM_CLOSE, 0, 0);
    PostMessageA(WaitForBox("QUIT?"), WM_COMMAND, IDYES, 0);
    RequireExit();
}

void RequireExit() {
    Require(WaitForExit(Quorl) == 0, "Quorl's exit with code 0");
}

bool WaitForEnd(HWND window) {
    return !Eventually([window] { return IsWindow(window); }, FALSE);
}

DWORD WaitForExit(HANDLE process) {
    DWORD code = STILL_ACTIVE;
    WaitForSingleObject(process, TIMEOUT);
    GetExitCodeProcess(process, &code);
    return code;
}
