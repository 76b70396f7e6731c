// User actions on controls, for tests.
#include "controls.h"

#include <algorithm>

void FocusControl(HWND control) {
    if (!IsUsable(control))
        return;
    Desk.ownsLastInput = true;
    FocusWindow(control);
}

void ClickControl(HWND button) {
    if (!IsUsable(button))
        return;
    FocusControl(button);
    PressButton(WindowOf(button));
}

void TypeText(HWND edit, const char* text) {
    if (!IsUsable(edit))
        return;
    FocusControl(edit);
    const DeskWindow& window = WindowOf(edit);
    if (window.style & ES_READONLY)
        return;
    std::string typed = text;
    if (window.style & ES_NUMBER)
        std::erase_if(typed, [](char letter) { return letter < '0' || letter > '9'; });
    CallWndProc(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(typed.c_str()));
}

static const struct {
    WNDPROC procedure;
    void (*select)(DeskWindow& control, int index);
} Selectors[] = {
    {ListBoxProc, SelectInListBox},
    {ComboBoxProc, SelectInComboBox},
    {TabProc, SelectTab},
    {ListViewProc, SelectInListView},
};

void SelectItem(HWND control, int index) {
    if (!IsUsable(control))
        return;
    FocusControl(control);
    for (const auto& selector : Selectors)
        if (selector.procedure == WindowOf(control).procedure)
            selector.select(WindowOf(control), index);
}

void PressKey(int key) {
    for (const UINT message : {WM_KEYDOWN, WM_KEYUP})
        Desk.queue.push_back({Desk.focus, message, static_cast<WPARAM>(key), 0, Desk.now, Desk.cursor});
}
