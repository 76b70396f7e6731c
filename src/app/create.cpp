#include "app/create.h"

#include "core/state.h"
#include "menus/menu_list.h"
#include "scroll/desktop_size.h"
#include "scroll/display_change.h"
#include "scroll/refresh.h"
#include "scroll/scroll_view.h"
#include "settings/settings.h"
#include "toolwin/placement.h"
#include "windows/window_table.h"

void OnCreate(HWND window) {
    MainWnd = window;
    UseCurrentDisplays();
    ResetDesktop();
    SetView({0, 0});
    ResetOptions();
    SetTimer(window, REFRESH_TIMER, REFRESH_PERIOD, RefreshTimer);
    SetDefaultMenu();
    RebuildWindowTable();
    ScaleToolwin(); // the settings contain a size that is scaled already
    LoadSettingsAtStart();
}
