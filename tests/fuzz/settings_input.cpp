// Any bytes as the settings file: loaded, saved, loaded and saved again.
#include "fuzz/settings_input.h"

#include "core/create.h"
#include "menus/menu_list.h"
#include "regions/region_table.h"
#include "settings/ini.h"
#include "settings/settings.h"
#include "support/quorl_test.h"

#include <cstring>

static const char FOREIGN[] = "[Other]\r\nkept=1\r\n[Quorl]\r\nforeign=2\r\n";

static void ExpectWithinLimits() {
    EXPECT_TRUE(num_regions >= 0 && num_regions <= MAX_REGIONS) << num_regions;
    EXPECT_TRUE(quorl_menu_count >= 0 && quorl_menu_count <= MAX_MENU_ENTRIES) << quorl_menu_count;
    EXPECT_TRUE(Quorl.right <= LARGEST_DESKTOP && Quorl.bottom <= LARGEST_DESKTOP);
    for (const RegionRow& row : RegionTable)
        EXPECT_NE(std::memchr(row.name, 0, sizeof row.name), nullptr) << "a name has no end";
}

// A key that is not its own conversion becomes another one at each load, and may then be had or not: all are
// forgotten.
static std::string Saved() {
    for (ActionRow& row : ActionTable)
        row.vk = 0;
    SaveSettings(MainWnd);
    ExpectWithinLimits();
    return Desk.files[SETTINGS_FILE];
}

void TrySettings(std::string_view input) {
    if (input.empty())
        return;
    const int flags = static_cast<unsigned char>(input[0]);
    Desk.bTrace = 0;
    Desk.answers.assign(std::size_t{6} * NUM_ACTIONS, IDOK); // boxes of refused hotkeys
    StartQuorl();
    Desk.files[SETTINGS_FILE] = (flags & 2 ? FOREIGN : "") + std::string(input.substr(1));
    if (flags & 1)
        OnCreate(MainWnd);
    else
        LoadSettings(MainWnd);
    const std::string saved = Saved();
    EXPECT_TRUE(!(flags & 2) || saved.starts_with(FOREIGN));
    LoadSettings(MainWnd);
    EXPECT_EQ(Saved(), saved);
}
