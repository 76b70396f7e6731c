#include "fuzz/inputs.h"

#include "app/create.h"
#include "menus/menu_list.h"
#include "regions/region_table.h"
#include "settings/ini.h"
#include "settings/settings.h"
#include "support/quorl_test.h"

#include <cstring>

static const char FOREIGN[] = "[Other]\r\nkept=1\r\n[Quorl]\r\nforeign=2\r\n";

// A key code that does not survive the conversion to a character and back changes with each load, and may be
// refused or not. So no keys are compared.
static std::string Saved() {
    for (ActionRow& row : ActionTable)
        row.vk = 0;
    SaveSettings();
    EXPECT_TRUE(num_regions >= 0 && num_regions <= MAX_REGIONS) << num_regions;
    EXPECT_TRUE(quorl_menu_count >= 0 && quorl_menu_count <= MAX_MENU_ENTRIES) << quorl_menu_count;
    EXPECT_TRUE(Quorl.right <= LARGEST_DESKTOP && Quorl.bottom <= LARGEST_DESKTOP);
    for (const RegionRow& region : RegionTable)
        EXPECT_NE(std::memchr(region.name, 0, sizeof region.name), nullptr) << "a name without an end";
    return Desk.files[SETTINGS_FILE];
}

void TestSettings(std::string_view input) {
    if (input.empty())
        return;
    const int flags = static_cast<unsigned char>(input[0]);
    PrepareDesk();
    Desk.boxAnswers.assign(std::size_t{6} * NUM_ACTIONS, IDOK); // boxes of refused hotkeys
    StartQuorl();
    Desk.files[SETTINGS_FILE] = (flags & 2 ? FOREIGN : "") + std::string(input.substr(1));
    if (flags & 1)
        OnCreate(MainWnd);
    else
        LoadSettingsAction({});
    const std::string saved = Saved();
    EXPECT_TRUE(!(flags & 2) || saved.starts_with(FOREIGN));
    LoadSettingsAction({});
    EXPECT_EQ(Saved(), saved);
}
