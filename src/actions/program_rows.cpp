// The rows that change a setting or leave the view alone.
#include "actions/program_rows.h"

#include "core/quit.h"
#include "core/state.h"

#include <algorithm>

int ToggleValue(const ActionCall& call) {
    int& value = ActionTable[call.row].value;
    value = !value;
    return 0;
}

int DoNothing(const ActionCall& call) {
    return call.with;
}

int ChangeBorder(const ActionCall& call) {
    const int border = Options.border + call.with;
    Options.border = call.with > 0 ? std::min(border, 10) : std::max(border, 1);
    return 1;
}

int LockStation(const ActionCall&) {
    return pLockWorkStation ? pLockWorkStation() : 0;
}

int StartScreenSaver(const ActionCall&) {
    DWORD_PTR result = 0;
    return static_cast<int>(
        SendMessageTimeoutA(HWND_BROADCAST, WM_SYSCOMMAND, SC_SCREENSAVE, 0, SMTO_ABORTIFHUNG, 100, &result));
}

int Quit(const ActionCall& call) {
    return ConfirmQuit(call.window);
}
