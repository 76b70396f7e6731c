#include "actions/dispatch.h"

#include "core/state.h"

static int ShowNotImplemented() {
    MessageBoxA(nullptr, "Actually, I don't handle that one yet.", "Sorry.", MB_OK);
    return 0;
}

static int RunAction(ActionCall call) {
    const ActionDef& def = ActionDefs[call.id];
    call.argument = def.argument;
    return def.handler ? def.handler(call) : ShowNotImplemented();
}

int DoAction(HWND window, int id, HWND target, ActionPoint point) {
    if (bQuitting)
        return 0; // the windows are already back on the screen
    if (id > NUM_ACTIONS)
        return RunAction({window, ACTION_VIEW_TO_REGION, 0, target, point, id - FIRST_REGION_ID});
    if (id < 0 || id == NUM_ACTIONS)
        return ShowNotImplemented();
    return RunAction({window, id, 0, target, point, NO_REGION});
}
