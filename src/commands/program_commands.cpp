#include "commands/program_commands.h"

#include "core/state.h"
#include "windows/other_window.h"

#include <algorithm>

void ToggleValue(const ActionCall& call) {
    int& value = ActionTable[call.id].value;
    value = !value;
}

void DoNothing(const ActionCall&) {}

void ChangeBorder(const ActionCall& call) {
    // Each action clamps to its own limit; the settings file may hold a border outside both.
    const OptionDef& def = OptionDefs[OPTION_BORDER];
    const int border = Options.border + call.argument;
    Options.border = call.argument > 0 ? std::min(border, def.userMax) : std::max(border, def.userMin);
}

void LockStation(const ActionCall&) {
    if (pLockWorkStation)
        pLockWorkStation();
}

void StartScreenSaver(const ActionCall&) {
    BroadcastScreenSaver();
}
