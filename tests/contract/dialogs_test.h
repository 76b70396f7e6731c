// Dialogs that keep what arrives, for the contract tests.
#pragma once

#include "contract/contract_test.h"

// What a dialog's procedure has got; `code` is that of a notification, `control` the number of who sent it.
struct Heard {
    UINT message;
    int control;
    UINT code;
};

bool operator==(const Heard& a, const Heard& b);
void PrintTo(const Heard& heard, std::ostream* out);

class Dialogs : public Contract {
  protected:
    void TearDown() override;
};

// What the dialogs have got of WM_COMMAND, WM_NOTIFY, WM_HSCROLL and WM_LBUTTONUP, in order.
extern std::vector<Heard> News;

// What a dialog does about a message before it is kept, and gives back.
extern std::map<UINT, std::function<INT_PTR(const MSG&)>> DialogReplies;

// A dialog of the program by its number, not shown; `owner` may be null.
HWND OpenTemplate(int id, HWND owner = nullptr);

// The same in sight and in front, when all that comes of it is over and `News` is empty.
HWND ShowTemplate(int id);

// Those of `News` that the given control has sent.
std::vector<Heard> NewsOf(int control);

LRESULT Ask(HWND dialog, int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
LRESULT Ask(HWND dialog, int id, UINT message, WPARAM wParam, const char* text);
std::string TextOf(HWND dialog, int id);
