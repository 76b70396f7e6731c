#include "actions/dispatch.h"

#include "core/state.h"

static int ShowNotImplemented() {
    MessageBoxA(nullptr, "Actually, I don't handle that one yet.", "Sorry.", MB_OK);
    return 0;
}

static int RunAction(HWND window, int id, ActionPoint point, int region) {
    const ActionDef& def = ActionDefs[id];
    return def.handler ? def.handler({window, id, def.argument, point, region}) : ShowNotImplemented();
}

int DoAction(HWND window, int id, ActionPoint point) {
    if (bQuitting)
        return 0; // the windows are already back on the screen
    if (id > NUM_ACTIONS)
        return RunAction(window, ACTION_VIEW_TO_REGION, point, id - FIRST_REGION_ID);
    if (id < 0 || id == NUM_ACTIONS)
        return ShowNotImplemented();
    return RunAction(window, id, point, NO_REGION);
}
