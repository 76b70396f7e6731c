// Acting as a user in one dialog.
#pragma once

#include "resources/control_ids.h"
#include "support/quorl_test.h"

using Numbers = std::vector<int>;

class DialogTest : public RunningQuorl {
  protected:
    HWND dialog = nullptr;

    // Runs the action that opens the dialog, which may be open already.
    void Open(ActionId id) {
        RunAction(id);
        dialog = Desk.foreground;
        ASSERT_NE(WindowOf(dialog).dialog, nullptr);
    }

    HWND Item(int id) const { return FindControl(dialog, id); }
    DeskControl& Control(int id) const { return WindowOf(Item(id)).control; }
    const std::string& Text(int id) const { return WindowOf(Item(id)).title; }
    // The ids of the checked buttons, in the order of the template.
    Numbers Checked() const {
        Numbers checked;
        for (const HWND control : WindowOf(dialog).children)
            if (WindowOf(control).control.checked)
                checked.push_back(static_cast<int>(WindowOf(control).id));
        return checked;
    }

    template <typename... Ids>
    void Click(Ids... ids) const {
        (ClickControl(Item(ids)), ...);
    }
    void Choose(int id, int index) const { SelectItem(Item(id), index); }
    void Type(int id, const char* text) const { TypeText(Item(id), text); }

    static void Press(int key) {
        PressKey(key);
        HandleMessages();
    }
};
