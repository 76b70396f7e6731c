// What happens inside the creation of the Toolwin.
#include "core/create.h"

#include "actions/action_table.h"
#include "actions/default_bindings.h"
#include "core/coordinates.h"
#include "core/quit.h"
#include "core/state.h"
#include "menus/menu_list.h"
#include "regions/region_table.h"
#include "scroll/locked_windows.h"
#include "scroll/refresh.h"
#include "scroll/window_table.h"
#include "settings/actions_file.h"
#include "settings/ini.h"
#include "settings/settings.h"

#include <algorithm>

namespace {

struct StartValue {
    ActionId row;
    int value;
};

} // namespace

static const StartValue StartValues[] = {
    {58, 1},
    {79, 0},
    {73, 1},
    {70, 1},
    {82, 0},
    {83, 0},
    {72, 1},
    {71, 1},
    {77, 1},
};

static void SetRectangles() {
    MonitorUnion(&ScreenRect);
    Quorl = {ScreenRect.left, ScreenRect.top, std::min(4 * ScreenW(), LARGEST_DESKTOP),
             std::min(2 * ScreenH(), LARGEST_DESKTOP)};
    VDesk = ScreenRect;
}

static void SetOptions() {
    Options = {
        .border = 5,
        .maxscroll = 100,
        .minscroll = 5,
        .mousescroll = 800,
        .mousescroll_delay_time = 100,
        .alpha = 255,
        .mousescroll_type = 3,
        .mousescroll_delay = 0,
        .hook_present = 0,
    };
}

int OnCreate(HWND window) {
    MainWnd = window;
    SetRectangles();
    SetOptions();
    for (const StartValue& start : StartValues)
        ActionTable[start.row].value = start.value;
    TipWnd = nullptr;
    num_regions = 0;
    SetTimer(window, REFRESH_TIMER, REFRESH_PERIOD, RefreshTimer);
    SetDefaultMenu();
    RebuildWindowTable();
    SetDefaultBindings(window);
    if (LoadLoadSetting(window, SETTINGS_FILE))
        LoadSettings(window);
    ClearLockedWindows();
    SavingMakesSense();
    return 1;
}
