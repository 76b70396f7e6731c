// The dialogs as a user works them.
#include "dialogs.h"

#include "asker/asker.h"
#include "mouse.h"

#include <cctype>

namespace {

LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    DWORD_PTR answer = 0;
    SendMessageTimeoutA(window, message, wParam, lParam, SMTO_NORMAL, PATIENCE, &answer);
    return static_cast<LRESULT>(answer);
}

void ClickAt(POINT screen) {
    MoveMouse(screen);
    Click(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
}

// What the user did has reached the window's thread only when its queue is through.
void WaitUntilDone(HWND window) {
    Sleep(60);
    Ask(window, WM_NULL);
}

POINT MiddleOf(HWND window) {
    const Place place = PlaceOf(window);
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
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

bool HasFocus(HWND control) {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetWindowThreadProcessId(control, nullptr), &info) && info.hwndFocus == control;
}

// Under Wine on a busy machine a click is lost now and then: it is made again until it has come.
template <typename Came, typename Act>
void Until(Came came, Act act) {
    act();
    for (int tries = 0; tries < 4 && !came(); ++tries)
        act();
}

struct Asker {
    Question* question; // in memory that the other program can open too
    HMODULE library;
    HOOKPROC goes;
    UINT ask;
};

Asker MakeAsker() {
    const HANDLE memory =
        CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(Question), QUESTION_NAME);
    const HMODULE library = LoadLibraryA("asker.dll");
    void* const view = MapViewOfFile(memory, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(Question));
    const auto goes =
        reinterpret_cast<HOOKPROC>(reinterpret_cast<void*>(GetProcAddress(library, "OnMessage")));
    return {static_cast<Question*>(view), library, goes, RegisterWindowMessageA(ASK_NAME)};
}

// The answer stands in the record of what is given.
Question Asked(HWND control, const Question& question) {
    static const Asker asker = MakeAsker();
    *asker.question = question;
    const HHOOK hook = SetWindowsHookExA(WH_CALLWNDPROC, asker.goes, asker.library,
                                         GetWindowThreadProcessId(control, nullptr));
    Ask(control, asker.ask);
    UnhookWindowsHookEx(hook);
    EXPECT_TRUE(asker.question->bAnswered);
    return *asker.question;
}

RECT PlaceOfPart(HWND control, UINT message, int part, LONG kind) {
    Question question = {};
    question.message = message;
    question.wParam = static_cast<WPARAM>(part);
    question.place.left = kind;
    return Asked(control, question).place;
}

} // namespace

HWND OpenByRow(int row, const char* title) {
    DoRow(row);
    return WaitForBox(title);
}

HWND Control(HWND dialog, int id) {
    EXPECT_SOON(GetDlgItem(dialog, id) != nullptr, true) << "control " << id;
    return GetDlgItem(dialog, id);
}

void PressOnly(HWND window) {
    ClickAt(MiddleOf(window));
}

void Press(HWND window) {
    PressOnly(window);
    WaitUntilDone(window);
}

void CloseBy(HWND dialog, int id) {
    Until([dialog] { return !IsWindow(dialog); }, [dialog, id] { Press(GetDlgItem(dialog, id)); });
    EXPECT_TRUE(WaitForEnd(dialog));
}

void PressAt(HWND window, POINT at) {
    ClientToScreen(window, &at);
    ClickAt(at);
    WaitUntilDone(window);
}

void TypeOver(HWND edit, const std::string& text) {
    Until([edit] { return HasFocus(edit); }, [edit] { Press(edit); });
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

void PressInTurn(std::initializer_list<WORD> keys) {
    for (const WORD key : keys)
        PressKeys({key});
}

void AnswerBox(const char* caption, WORD key) {
    const HWND box = WaitForBox(caption);
    ASSERT_TRUE(box) << caption;
    Until([box] { return !IsWindow(box); },
          [box, key] {
              Activate(box);
              PressKeys({key});
              Sleep(60);
          });
    EXPECT_TRUE(WaitForEnd(box));
}

std::string ControlText(HWND dialog, int id) {
    char text[1024] = "";
    Ask(Control(dialog, id), WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

bool IsChecked(HWND dialog, int id) {
    return Ask(Control(dialog, id), BM_GETCHECK) == BST_CHECKED;
}

bool IsOn(HWND dialog, int id) {
    return IsWindowEnabled(Control(dialog, id));
}

bool IsShown(HWND dialog, int id) {
    return IsWindowVisible(Control(dialog, id));
}

std::vector<std::string> ListTexts(HWND list) {
    const LRESULT rows = Ask(list, LB_GETCOUNT);
    std::vector<std::string> texts;
    for (LRESULT row = 0; row < rows; ++row) {
        texts.push_back(RowText(list, static_cast<WPARAM>(row)));
    }
    return texts;
}

int SelectedRow(HWND list) {
    return static_cast<int>(Ask(list, LB_GETCURSEL));
}

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

std::string ItemText(HWND list, int item, int column) {
    Question question = {};
    question.message = LVM_GETITEMTEXTA;
    question.wParam = static_cast<WPARAM>(item);
    question.item.iSubItem = column;
    return Asked(list, question).text;
}

void PressItem(HWND list, int item) {
    SendMessageA(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(item), FALSE);
    const RECT place = PlaceOfPart(list, LVM_GETITEMRECT, item, LVIR_BOUNDS);
    PressAt(list, {place.left + 30, (place.top + place.bottom) / 2});
}

void PressTab(HWND tabs, int tab) {
    const RECT place = PlaceOfPart(tabs, TCM_GETITEMRECT, tab, 0);
    PressAt(tabs, {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

void ChooseLetter(HWND combo, char letter) {
    Press(combo);
    Press(combo);
    PressKeys({static_cast<WORD>(letter)});
    EXPECT_SOON(ControlText(GetParent(combo), GetDlgCtrlID(combo)), std::string(1, letter));
}
