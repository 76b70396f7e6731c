// Any bytes as the settings file: loaded, saved, loaded and saved again.
#include "fuzz/settings_input.h"

#include "actions/hotkeys.h"
#include "core/create.h"
#include "core/main.h"
#include "core/state.h"
#include "desk/desk.h"
#include "menus/menu_list.h"
#include "regions/region_table.h"
#include "settings/ini.h"
#include "settings/settings.h"

#include <cstring>
#include <sstream>
#include <string>

static const char FOREIGN[] = "[Other]\r\nkept=1\r\n[Quorl]\r\nforeign=2\r\n";

static void Load(int bAtStart) {
    Desk.answers.assign(std::size_t{2} * NUM_ACTIONS, IDOK); // to the boxes of refused hotkeys
    if (bAtStart)
        OnCreate(MainWnd);
    else
        LoadSettings(MainWnd);
}

static int IsStored(const char* section, const char* key, const char* value) {
    char text[8];
    GetPrivateProfileStringA(section, key, "", text, sizeof text, SETTINGS_FILE);
    return !std::strcmp(text, value);
}

static const char* BrokenLimit() {
    if (num_regions < 0 || num_regions > MAX_REGIONS)
        return "the count of regions";
    if (quorl_menu_count < 0 || quorl_menu_count > MAX_MENU_ENTRIES)
        return "the count of menu entries";
    if (Quorl.right > LARGEST_DESKTOP || Quorl.bottom > LARGEST_DESKTOP)
        return "the size of the desktop";
    for (const RegionRow& row : RegionTable)
        if (!std::memchr(row.name, 0, sizeof row.name))
            return "a region's name has no end";
    return nullptr;
}

// A key that is not its own conversion becomes another one at each load, and may then be had or not.
static std::string WithoutKeys(const std::string& file) {
    std::string kept;
    std::istringstream lines(file);
    for (std::string line; std::getline(lines, line);) {
        std::size_t mark = 0;
        if (line.starts_with("Action"))
            for (int field = 0; field < 3 && mark != std::string::npos; ++field)
                mark = line.find(FIELD_MARK, mark + 1);
        if (mark && mark != std::string::npos)
            line.erase(mark, line.find(FIELD_MARK, mark + 1) - mark);
        kept += line + '\n';
    }
    return kept;
}

const char* TrySettings(std::string_view input) {
    if (input.empty())
        return nullptr;
    Desk.bTrace = 0;
    Desk.answers.assign(NUM_ACTIONS, IDOK);
    StartUp(reinterpret_cast<HINSTANCE>(0x400000));
    std::string& file = Desk.files[SETTINGS_FILE];
    const int flags = static_cast<unsigned char>(input[0]);
    file = flags & 2 ? FOREIGN : "";
    file += input.substr(1);
    Load(flags & 1);
    if (const char* broken = BrokenLimit())
        return broken;
    SaveSettings(MainWnd);
    if (flags & 2 && !(IsStored("Other", "kept", "1") && IsStored("Quorl", "foreign", "2")))
        return "a foreign line is lost";
    const std::string saved = file;
    Load(0);
    SaveSettings(MainWnd);
    return WithoutKeys(file) == WithoutKeys(saved) ? BrokenLimit()
                                                   : "what was saved does not load back equal";
}
