// Lists and tab strips answer some messages in a record, which must lie in memory of their own program. The
// asker goes there and asks.
#pragma once

#include <windows.h>

#include <commctrl.h>

// Shared by both programs under this name.
constexpr char QUESTION_NAME[] = "QuorlTestsQuestion";

struct Question {
    UINT message;
    WPARAM wParam;
    union {
        RECT place;
        LVITEMA item; // the asker sets the place of its text
    };
    char text[64];
    BOOL bAnswered; // set by the asker
};

// The registered message that a window gets when a question for it lies ready.
constexpr char ASK_NAME[] = "QuorlTestsAsk";
