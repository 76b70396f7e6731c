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

// Sends a message that answers in a record. Lists and tabs take it only in memory of their own program.
template <typename Record, typename Fill>
Record Asked(HWND window, UINT message, WPARAM wParam, Fill fill) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    const HANDLE program = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
    void* const there = VirtualAllocEx(program, nullptr, sizeof(Record), MEM_COMMIT, PAGE_READWRITE);
    Record record{};
    fill(record, static_cast<Record*>(there));
    EXPECT_TRUE(WriteProcessMemory(program, there, &record, sizeof record, nullptr));
    SendMessageA(window, message, wParam, reinterpret_cast<LPARAM>(there));
    EXPECT_TRUE(ReadProcessMemory(program, there, &record, sizeof record, nullptr));
    VirtualFreeEx(program, there, 0, MEM_RELEASE);
    CloseHandle(program);
    return record;
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
    struct Letter {
        LVITEMA item;
        char text[64];
    };
    return Asked<Letter>(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(item),
                         [column](Letter& letter, Letter* there) {
                             letter.item.iSubItem = column;
                             letter.item.pszText = there->text;
                             letter.item.cchTextMax = sizeof letter.text;
                         })
        .text;
}

void PressItem(HWND list, int item) {
    SendMessageA(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(item), FALSE);
    const RECT place = Asked<RECT>(list, LVM_GETITEMRECT, static_cast<WPARAM>(item),
                                   [](RECT& rect, RECT*) { rect.left = LVIR_BOUNDS; });
    PressAt(list, {place.left + 30, (place.top + place.bottom) / 2});
}

void PressTab(HWND tabs, int tab) {
    const RECT place = Asked<RECT>(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(tab), [](RECT&, RECT*) {});
    PressAt(tabs, {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

void ChooseLetter(HWND combo, char letter) {
    Press(combo);
    Press(combo);
    PressKeys({static_cast<WORD>(letter)});
    EXPECT_SOON(ControlText(GetParent(combo), GetDlgCtrlID(combo)), std::string(1, letter));
}
