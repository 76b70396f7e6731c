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

RECT RectAfterMoving(HWND window, POINT to) {
    MoveMouse(to.x - 1, to.y);
    MoveMouse(to.x, to.y);
    return WindowRect(window);
}

POINT MousePosition() {
    POINT position{};
    GetCursorPos(&position);
    return position;
}

std::string TextOf(HWND window) {
    char text[1024] = "";
    GetWindowTextA(window, text, sizeof text);
    return text;
}

HWND OpenedMenu() {
    return FindVisible(0, "#32768", nullptr);
}

std::string Stored(const std::string& key) {
    char text[8192] = "";
    GetPrivateProfileStringA("Quorl", key.c_str(), "", text, sizeof text, SettingsFile().c_str());
    return text;
}

void StoreSettings(const char* lines) {
    EXPECT_TRUE(WritePrivateProfileSectionA("Quorl", lines, SettingsFile().c_str()));
}

void ExpectSaved(const std::string& key, const std::string& wanted) {
    RunActions({ACTION_SAVE_SETTINGS});
    EXPECT_EVENTUALLY(Stored(key), wanted) << key;
}

HWND WaitForBox(const char* caption) {
    const HWND box = WaitForVisible(0, "#32770", caption);
    Require(box != nullptr, caption);
    return box;
}

void AnswerYesToQuit() {
    const HWND box = WaitForBox("QUIT?");
    Retry([box] { return !IsWindow(box); },
          [box] {
              Activate(box);
              PressKeys({'Y'});
          });
    Require(WaitForExit(Quorl) == 0, "Quorl's exit with code 0");
}

void Quit() {
    PostMessageA(QuorlWindow(), WM_CLOSE, 0, 0);
    PostMessageA(WaitForBox("QUIT?"), WM_COMMAND, IDYES, 0);
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

static int Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    DWORD_PTR result = 0;
    SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, TIMEOUT, &result);
    return static_cast<int>(result);
}

// Texts of other processes arrive as UTF-16 even from an ANSI window.
static std::string AskText(HWND window, UINT message, WPARAM wParam) {
    wchar_t text[1024] = L"";
    Ask(window, message, wParam, reinterpret_cast<LPARAM>(text));
    return {text, text + wcslen(text)};
}

// Makes sure that the click does not happen at the previous position.
static void ClickAt(POINT screen) {
    const auto isThere = [screen] { return MousePosition().x == screen.x && MousePosition().y == screen.y; };
    for (int tries = 0; tries < 5 && !isThere(); ++tries)
        MoveMouse(screen.x, screen.y);
    Click(VK_LBUTTON);
}

HWND OpenDialog(int action, const char* title) {
    RunAction(action);
    return WaitForBox(title);
}

HWND OpenByButton(HWND dialog, int button, const char* title) {
    Retry([title] { return FindWindowA(nullptr, title) != nullptr; },
          [&] { PressOnly(Control(dialog, button)); });
    CloseBy(dialog, IDOK);
    return WaitForBox(title);
}

HWND Control(HWND dialog, int id) {
    EXPECT_EVENTUALLY(GetDlgItem(dialog, id) != nullptr, true) << "control " << id;
    return GetDlgItem(dialog, id);
}

int Focused(HWND dialog) {
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    GetGUIThreadInfo(GetWindowThreadProcessId(dialog, nullptr), &state);
    return GetParent(state.hwndFocus) == dialog ? GetDlgCtrlID(state.hwndFocus) : 0;
}

void PressOnly(HWND window) {
    const RECT rect = WindowRect(window);
    ClickAt({(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2});
}

void PressAt(HWND window, POINT at) {
    ClientToScreen(window, &at);
    ClickAt(at);
    Sleep(60);
    Responds(window); // its queue has been worked through
}

void Press(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    PressAt(window, {area.right / 2, area.bottom / 2});
}

void CloseBy(HWND dialog, int id) {
    Retry([dialog] { return !IsWindow(dialog); },
          [dialog, id] {
              SetForegroundWindow(dialog); // another one may cover the button
              Press(GetDlgItem(dialog, id));
          });
    Require(WaitForEnd(dialog), "the end of the dialog");
}

void CloseByKey(HWND dialog, WORD key) {
    PressKeys({key});
    Require(WaitForEnd(dialog), "the end of the dialog");
}

void TypeOver(HWND edit, const std::string& text) {
    Retry([edit] { return Focused(GetParent(edit)) == GetDlgCtrlID(edit); }, [edit] { Press(edit); });
    PressKeys({VK_HOME});
    PressKeys({VK_SHIFT, VK_END});
    for (const char letter : text) {
        const SHORT key = VkKeyScanA(letter);
        HIBYTE(key) ? PressKeys({VK_SHIFT, LOBYTE(key)}) : PressKeys({LOBYTE(key)});
    }
    Responds(edit);
}

std::string ControlText(HWND dialog, int id) {
    return AskText(Control(dialog, id), WM_GETTEXT, 1024);
}

std::vector<std::string> ListTexts(HWND list) {
    std::vector<std::string> texts(static_cast<std::size_t>(Ask(list, LB_GETCOUNT)));
    for (std::size_t item = 0; item < texts.size(); ++item)
        texts[item] = AskText(list, LB_GETTEXT, item);
    return texts;
}

// The selection may activate another window.
void PressItem(HWND list, const std::string& text) {
    const std::vector<std::string> texts = ListTexts(list);
    const int item = static_cast<int>(std::find(texts.begin(), texts.end(), text) - texts.begin());
    Require(item < static_cast<int>(texts.size()), text);
    Ask(list, LB_SETTOPINDEX, static_cast<WPARAM>(item));
    const int height = Ask(list, LB_GETITEMHEIGHT);
    const int middle = (item - Ask(list, LB_GETTOPINDEX)) * height + height / 2;
    const HWND dialog = GetAncestor(list, GA_ROOT);
    Retry([&] { return Ask(list, LB_GETCURSEL) == item || GetForegroundWindow() != dialog; },
          [&] {
              PressAt(list, {20, middle});
          });
}
