#include "actions/dispatch.h"

#include "core/state.h"

static void ShowNotImplemented() {
    MessageBoxA(nullptr, "Actually, I don't handle that one yet.", "Sorry.", MB_OK);
}

static void RunAction(const ActionCall& call) {
    const auto handler = ActionDefs[call.id].handler;
    handler ? handler(call) : ShowNotImplemented();
}

void DoAction(HWND window, int id, HWND target, ActionPoint point) {
    if (bQuitting)
        return; // the windows are already back on the screen
    if (id > NUM_ACTIONS)
        RunAction({window, ACTION_VIEW_TO_REGION, 0, target, point, id - FIRST_REGION_ID});
    else if (id < 0 || id == NUM_ACTIONS)
        ShowNotImplemented();
    else
        RunAction({window, id, ActionDefs[id].argument, target, point, NO_REGION});
}
