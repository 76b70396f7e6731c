// Saving and loading all that is kept between runs.
#include "settings/settings.h"

#include "settings/actions_file.h"
#include "settings/ini.h"
#include "settings/options_file.h"
#include "settings/regions_file.h"

void LoadSettings(HWND window) {
    LoadOptions(window, SETTINGS_FILE);
    LoadRegions(window, SETTINGS_FILE);
    LoadActions(window, SETTINGS_FILE);
}

void SaveSettings(HWND window) {
    SaveOptions(window, SETTINGS_FILE);
    SaveRegions(window, SETTINGS_FILE);
    SaveActions(window, SETTINGS_FILE);
}

int OnSaveSettings(const ActionCall& call) {
    SaveSettings(call.window);
    return 0;
}

int OnLoadSettings(const ActionCall& call) {
    LoadSettings(call.window);
    return 0;
}
