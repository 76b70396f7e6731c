// The dialogs as a user works them.
#include "dialogs.h"

namespace {

int Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, PATIENCE, &answer);
    return static_cast<int>(answer);
}

// From another program texts come as UTF-16 whichever way they are asked for.
std::string AskText(HWND window, UINT message, WPARAM wParam) {
    wchar_t text[1024] = L"";
    Ask(window, message, wParam, reinterpret_cast<LPARAM>(text));
    return {text, text + wcslen(text)};
}

// A click must not land where the mouse was before.
void ClickAt(POINT screen) {
    for (int tries = 0; tries < 5 && (MousePlace().x != screen.x || MousePlace().y != screen.y); ++tries)
        MoveMouse(screen);
    Click(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
}

} // namespace

HWND OpenByRow(int row, const char* title) {
    DoRow(row);
    return WaitForBox(title);
}

HWND OpenByButton(HWND dialog, int button, const char* title) {
    Until([title] { return FindWindowA(nullptr, title) != nullptr; },
          [&] { PressOnly(Control(dialog, button)); });
    CloseBy(dialog, IDOK);
    return WaitForBox(title);
}

HWND Control(HWND dialog, int id) {
    EXPECT_SOON(GetDlgItem(dialog, id) != nullptr, true) << "control " << id;
    return GetDlgItem(dialog, id);
}

int Focused(HWND dialog) {
    GUITHREADINFO state = {};
    state.cbSize = sizeof state;
    GetGUIThreadInfo(GetWindowThreadProcessId(dialog, nullptr), &state);
    return GetParent(state.hwndFocus) == dialog ? GetDlgCtrlID(state.hwndFocus) : 0;
}

void PressOnly(HWND window) {
    const Place place = PlaceOf(window);
    ClickAt({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

// What the user did has reached the window's thread only when its queue is through.
void Press(HWND window) {
    PressOnly(window);
    Sleep(60);
    Answers(window);
}

void PressAt(HWND window, POINT at) {
    ClientToScreen(window, &at);
    ClickAt(at);
    Sleep(60);
    Answers(window);
}

void CloseBy(HWND dialog, int id) {
    Until([dialog] { return !IsWindow(dialog); }, [dialog, id] { Press(GetDlgItem(dialog, id)); });
    Insist(WaitForEnd(dialog), "an end of the dialog");
}

void CloseByKey(HWND dialog, WORD key) {
    PressKeys({key});
    Insist(WaitForEnd(dialog), "an end of the dialog");
}

void TypeOver(HWND edit, const std::string& text) {
    Until([edit] { return Focused(GetParent(edit)) == GetDlgCtrlID(edit); }, [edit] { Press(edit); });
    PressKeys({VK_HOME});
    PressKeys({VK_SHIFT, VK_END});
    for (const char letter : text) {
        const SHORT key = VkKeyScanA(letter);
        if (HIBYTE(key))
            PressKeys({VK_SHIFT, LOBYTE(key)});
        else
            PressKeys({LOBYTE(key)});
    }
    Answers(edit);
}

std::string ControlText(HWND dialog, int id) {
    return AskText(Control(dialog, id), WM_GETTEXT, 1024);
}

std::vector<std::string> ListTexts(HWND list) {
    const int rows = Ask(list, LB_GETCOUNT);
    std::vector<std::string> texts;
    for (int row = 0; row < rows; ++row)
        texts.push_back(AskText(list, LB_GETTEXT, static_cast<WPARAM>(row)));
    return texts;
}

// The choice may take the foreground to another window.
void PressRow(HWND list, const std::string& text) {
    const std::vector<std::string> texts = ListTexts(list);
    const int row = static_cast<int>(std::find(texts.begin(), texts.end(), text) - texts.begin());
    Insist(row < static_cast<int>(texts.size()), text);
    Ask(list, LB_SETTOPINDEX, static_cast<WPARAM>(row));
    const int height = Ask(list, LB_GETITEMHEIGHT);
    const int middle = (row - Ask(list, LB_GETTOPINDEX)) * height + height / 2;
    const HWND dialog = GetAncestor(list, GA_ROOT);
    Until([&] { return Ask(list, LB_GETCURSEL) == row || GetForegroundWindow() != dialog; },
          [&] {
              PressAt(list, {20, middle});
          });
}
