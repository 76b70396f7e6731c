#include "dialog_user.h"

#include <algorithm>

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

HWND OpenedMenu() {
    return FindVisible(0, "#32768", nullptr);
}

void AnswerYesToQuit() {
    const HWND box = WaitForBox("QUIT?");
    Retry([box] { return !IsWindow(box); },
          [box] {
              Activate(box);
              PressKeys({'Y'});
          });
    RequireExit();
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
    Retry([dialog] { return !IsWindow(dialog); }, [key] { PressKeys({key}); });
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
