// The dialogs as a user works them.
#include "dialogs.h"

#include "mouse.h"

#include <commctrl.h>

#include <cctype>

namespace {

LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    DWORD_PTR answer = 0;
    SendMessageTimeoutA(window, message, wParam, lParam, SMTO_NORMAL, PATIENCE, &answer);
    return static_cast<LRESULT>(answer);
}

// A click must not land where the mouse was before.
void ClickAt(POINT screen) {
    for (int tries = 0; tries < 5 && (MousePlace().x != screen.x || MousePlace().y != screen.y); ++tries)
        MoveMouse(screen);
    Click(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
}

// What the user did has reached the window's thread only when its queue is through.
void WaitUntilDone(HWND window) {
    Sleep(60);
    Answers(window);
}

// From another program rows come as UTF-16 whichever way they are asked for.
std::string RowText(HWND list, WPARAM row) {
    wchar_t wide[1024] = L"";
    char text[1024] = "";
    DWORD_PTR length = 0;
    SendMessageTimeoutW(list, LB_GETTEXT, row, reinterpret_cast<LPARAM>(wide), SMTO_NORMAL, PATIENCE,
                        &length);
    WideCharToMultiByte(CP_ACP, 0, wide, -1, text, sizeof text, nullptr, nullptr);
    return text;
}

} // namespace

HWND OpenByRow(int row, const char* title) {
    DoRow(row);
    return WaitForBox(title);
}

HWND OpenByButton(HWND dialog, int button, const char* title) {
    Until([title] { return FindWindowA(nullptr, title) != nullptr; },
          [&] { PressOnly(Control(dialog, button)); });
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
    return state.hwndFocus && GetParent(state.hwndFocus) == dialog ? GetDlgCtrlID(state.hwndFocus) : 0;
}

void PressOnly(HWND window) {
    const Place place = PlaceOf(window);
    ClickAt({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

void Press(HWND window) {
    PressOnly(window);
    WaitUntilDone(window);
}

void PressAt(HWND window, POINT at) {
    ClientToScreen(window, &at);
    ClickAt(at);
    WaitUntilDone(window);
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
    PressKeys({VK_DELETE});
    for (const char letter : text) {
        const WORD key = static_cast<WORD>(std::toupper(static_cast<unsigned char>(letter)));
        if (std::isupper(static_cast<unsigned char>(letter)))
            PressKeys({VK_SHIFT, key});
        else
            PressKeys({key});
    }
    WaitUntilDone(edit);
}

std::string ControlText(HWND dialog, int id) {
    char text[1024] = "";
    Ask(Control(dialog, id), WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

bool IsChecked(HWND dialog, int id) {
    return Ask(Control(dialog, id), BM_GETCHECK) == BST_CHECKED;
}

std::vector<std::string> ListTexts(HWND list) {
    const LRESULT rows = Ask(list, LB_GETCOUNT);
    std::vector<std::string> texts;
    for (LRESULT row = 0; row < rows; ++row)
        texts.push_back(RowText(list, static_cast<WPARAM>(row)));
    return texts;
}

int SelectedRow(HWND list) {
    return static_cast<int>(Ask(list, LB_GETCURSEL));
}

// The choice may take the foreground to another window.
void PressRow(HWND list, int row) {
    Ask(list, LB_SETTOPINDEX, static_cast<WPARAM>(row));
    const int top = static_cast<int>(Ask(list, LB_GETTOPINDEX));
    const int height = static_cast<int>(Ask(list, LB_GETITEMHEIGHT));
    const HWND dialog = GetAncestor(list, GA_ROOT);
    Until([&] { return SelectedRow(list) == row || GetForegroundWindow() != dialog; },
          [&] {
              PressAt(list, {20, (row - top) * height + height / 2});
          });
}

void PressRow(HWND list, const std::string& text) {
    const std::vector<std::string> texts = ListTexts(list);
    const auto found = std::find(texts.begin(), texts.end(), text);
    Insist(found != texts.end(), text);
    PressRow(list, static_cast<int>(found - texts.begin()));
}

// The list tells where a row is only in memory of its own program, so it is worked out from what it answers.
void PressItem(HWND list, int item) {
    const auto heightOf = [list](WPARAM items) {
        return HIWORD(Ask(list, LVM_APPROXIMATEVIEWRECT, items, -1));
    };
    Ask(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(item), FALSE);
    const Place header = PlaceOf(reinterpret_cast<HWND>(Ask(list, LVM_GETHEADER)));
    const int height = heightOf(2) - heightOf(1);
    const int row = item - static_cast<int>(Ask(list, LVM_GETTOPINDEX));
    PressAt(list, {30, header.bottom - header.top + row * height + height / 2});
}

void ChooseLetter(HWND combo, char letter) {
    Press(combo);
    Press(combo);
    PressKeys({static_cast<WORD>(letter)});
    WaitUntilDone(combo);
}
