// Saving and loading all that is kept between runs.
#include "settings/settings.h"

#include "settings/actions_file.h"
#include "settings/ini.h"
#include "settings/options_file.h"
#include "settings/regions_file.h"
#include "settings/whole_file.h"

void LoadSettings(HWND window) {
    LoadOptions(window, SETTINGS_FILE);
    LoadRegions(window, SETTINGS_FILE);
    LoadActions(window, SETTINGS_FILE);
}

static void SaveTo(HWND window, LPCSTR file) {
    SaveOptions(window, file);
    SaveRegions(window, file);
    SaveActions(window, file);
}

void SaveSettings(HWND window) {
    SaveWhole(window, SETTINGS_FILE, SaveTo);
}

int OnSaveSettings(const ActionCall& call) {
    SaveSettings(call.window);
    return 0;
}

int OnLoadSettings(const ActionCall& call) {
    LoadSettings(call.window);
    return 0;
}
