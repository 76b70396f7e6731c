// Dialogs that keep what arrives, for the contract tests.
#pragma once

#include "contract/contract_test.h"

// What a control has told its dialog by WM_COMMAND or WM_NOTIFY.
struct Told {
    int control;
    UINT code;
};

class Dialogs : public Contract {
  protected:
    void TearDown() override;
};

// In order.
extern std::vector<Told> News;

// What a dialog does about a message after it is kept, and gives back.
extern std::map<UINT, std::function<INT_PTR(const MSG&)>> DialogReplies;

// A dialog of the program by its number, not shown; `owner` may be null.
HWND OpenTemplate(int id, HWND owner = nullptr);

// The same in sight and in front, when all that comes of it is over and `News` is empty.
HWND ShowTemplate(int id);

// The codes that the given control has told since the last call for any; who has told BN_CLICKED likewise.
using Codes = std::vector<UINT>;
Codes CodesOf(int control);
using Ids = std::vector<int>;
Ids Clicked();

LRESULT Ask(HWND dialog, int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
LRESULT Ask(HWND dialog, int id, UINT message, WPARAM wParam, const char* text);
std::string TextOf(HWND dialog, int id);
