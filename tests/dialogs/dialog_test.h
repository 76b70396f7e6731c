// The words of a user who works in one dialog.
#pragma once

#include "support/quorl_test.h"

using Rows = std::vector<DeskRow>;
using Numbers = std::vector<int>;

inline bool operator==(const DeskRow& a, const DeskRow& b) {
    return a.text == b.text && a.data == b.data;
}

class DialogTest : public RunningQuorl {
  protected:
    HWND dialog = nullptr;

    // By the row of its command, also when it stands there already.
    void Open(int row) {
        Command(row);
        dialog = Desk.foreground;
        ASSERT_NE(RowOf(dialog).dialog, nullptr);
        Desk.beeps.clear();
    }

    int IsOpen() const { return RowOf(dialog).handle != nullptr; }
    HWND At(int id) const { return ControlOf(dialog, id); }
    DeskControl& Kept(int id) const { return RowOf(At(id)).control; }
    const std::string& TextOf(int id) const { return RowOf(At(id)).title; }
    // What is checked, in the order of the template.
    Numbers Checked() const {
        Numbers checked;
        for (const HWND control : RowOf(dialog).children)
            if (RowOf(control).control.bChecked)
                checked.push_back(static_cast<int>(RowOf(control).id));
        return checked;
    }

    template <typename... Buttons>
    void Click(Buttons... inTurn) const {
        (ClickControl(At(inTurn)), ...);
    }
    void Choose(int id, int row) const { ChooseRow(At(id), row); }
    void Type(int id, const char* text) const { TypeInto(At(id), text); }

    // From a program: the user cannot reach every button.
    void Send(int id) const { SendMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(id), 0); }

    static void Press(int key) {
        PressKey(key);
        Settle();
    }
};
