#include "settings/settings.h"

#include "actions/hotkeys.h"
#include "regions/region_table.h"
#include "settings/actions_file.h"
#include "settings/atomic_save.h"
#include "settings/ini.h"
#include "settings/options_file.h"
#include "settings/regions_file.h"
#include "settings/settings_path.h"

static bool bMaySave; // false until all hotkeys are registered: others would be saved as unbound

static void ReadSettings(bool (&bStored)[NUM_ACTIONS]) {
    ResetRegions(0); // LoadOptions may repaint the map; do not draw the old regions
    LoadOptions(SettingsFile());
    LoadRegions(SettingsFile());
    ReadActions(SettingsFile(), bStored);
}

void LoadSettingsAtStart() {
    ChooseSettingsFile();
    bool bStored[NUM_ACTIONS] = {};
    bStored[ACTION_LOAD_AT_START] = ReadAction(SettingsFile(), ACTION_LOAD_AT_START);
    if (IsOn(ACTION_LOAD_AT_START))
        ReadSettings(bStored);
    for (int id = 0; id < NUM_ACTIONS; ++id)
        if (bStored[id])
            RegisterRecordedKey(id);
        else
            RegisterDefaultKey(id);
    bMaySave = true;
}

static void SaveTo(LPCSTR file) {
    SaveOptions(file);
    SaveRegions(file);
    SaveActions(file);
}

static bool IsComplete(LPCSTR file) {
    return HasFirstOption(file) && HasLastAction(file);
}

void SaveSettings() {
    if (bMaySave)
        SaveAtomically(SettingsFile(), SaveTo, IsComplete);
}

void SaveSettingsAction(const ActionCall&) {
    SaveSettings();
}

void LoadSettingsAction(const ActionCall&) {
    bool bStored[NUM_ACTIONS] = {};
    ReadSettings(bStored);
    for (int id = 0; id < NUM_ACTIONS; ++id)
        if (bStored[id])
            RegisterRecordedKey(id);
}
