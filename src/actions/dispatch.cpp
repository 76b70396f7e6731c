#include "actions/dispatch.h"

#include "core/state.h"

static void ShowNotImplemented() {
    MessageBoxA(nullptr, "Actually, I don't handle that one yet.", "Sorry.", MB_OK);
}

static void RunAction(ActionCall call) {
    const ActionDef& def = ActionDefs[call.id];
    if (!def.handler)
        return ShowNotImplemented();
    call.argument = def.argument;
    def.handler(call);
}

void DoAction(HWND window, int id, HWND target, ActionPoint point) {
    if (bQuitting)
        return; // the windows are already back on the screen
    if (id > NUM_ACTIONS)
        return RunAction({window, ACTION_VIEW_TO_REGION, 0, target, point, id - FIRST_REGION_ID});
    if (id < 0 || id == NUM_ACTIONS)
        return ShowNotImplemented();
    RunAction({window, id, 0, target, point, NO_REGION});
}
