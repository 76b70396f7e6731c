// Last error, message boxes, sounds.
#include "internal.h"

#include <commctrl.h>

#include <utility>

DWORD GetLastError() {
    return Desk.lastError;
}

void SetLastError(DWORD error) {
    Desk.lastError = error;
}

LPTOP_LEVEL_EXCEPTION_FILTER SetUnhandledExceptionFilter(LPTOP_LEVEL_EXCEPTION_FILTER filter) {
    return CallFails("SetUnhandledExceptionFilter") ? nullptr : std::exchange(Desk.crashFilter, filter);
}

LONG InterlockedExchange(volatile LONG* target, LONG value) {
    const LONG before = *target;
    *target = value;
    return before;
}

BOOL LockWorkStation() {
    if (CallFails("LockWorkStation"))
        return FALSE;
    ++Desk.locks;
    return TRUE;
}

int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type) {
    if (CallFails("MessageBoxA"))
        return 0;
    if (Desk.duringBox)
        std::function<void()>(Desk.duringBox)();
    int answer = type == MB_YESNO ? IDNO : IDOK;
    if (Desk.boxAnswers.empty()) {
        ++Desk.unexpected;
    } else {
        answer = Desk.boxAnswers.front();
        Desk.boxAnswers.pop_front();
    }
    Desk.boxes.push_back({owner, text, caption, type, answer});
    return answer;
}

BOOL MessageBeep(UINT type) {
    if (CallFails("MessageBeep"))
        return FALSE;
    Desk.beeps.push_back(type);
    return TRUE;
}

// Blocks until the tone ends.
BOOL Beep(DWORD hertz, DWORD milliseconds) {
    if (CallFails("Beep"))
        return FALSE;
    Desk.tones.push_back(hertz);
    Desk.now += milliseconds;
    return TRUE;
}

void InitCommonControls() {
    CallFails("InitCommonControls");
}
