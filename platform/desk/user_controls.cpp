// What a user does with controls, for tests.
#include "controls.h"

#include <algorithm>

void GoToControl(HWND control) {
    if (IsUsable(control))
        GoTo(control);
}

void ClickControl(HWND button) {
    if (!IsUsable(button))
        return;
    GoTo(button);
    PressButton(RowOf(button));
}

void TypeInto(HWND edit, const char* text) {
    if (!IsUsable(edit))
        return;
    GoTo(edit);
    const DeskWindow& row = RowOf(edit);
    if (row.style & ES_READONLY)
        return;
    std::string typed = text;
    if (row.style & ES_NUMBER)
        std::erase_if(typed, [](char letter) { return letter < '0' || letter > '9'; });
    CallProcedure(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(typed.c_str()));
}

static const struct {
    WNDPROC kind;
    void (*choose)(DeskWindow& control, int row);
} Choices[] = {
    {ListBoxProc,  ChooseInListBox },
    {ComboBoxProc, ChooseInComboBox},
    {TabProc,      ChooseTab       },
    {ListViewProc, ChooseInListView},
};

void ChooseRow(HWND control, int row) {
    if (!IsUsable(control))
        return;
    GoTo(control);
    for (const auto& choice : Choices)
        if (choice.kind == RowOf(control).procedure)
            choice.choose(RowOf(control), row);
}

void PressKey(int key) {
    for (const UINT message : {WM_KEYDOWN, WM_KEYUP})
        Desk.queue.push_back({Desk.focus, message, static_cast<WPARAM>(key), 0, Desk.now, Desk.cursor});
}
