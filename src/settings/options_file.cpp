// Options, the desktop's size, the Toolwin's place and the menu, as they lie in the settings file.
#include "settings/options_file.h"

#include "actions/action_table.h"
#include "core/coordinates.h"
#include "core/main_window.h"
#include "core/state.h"
#include "menus/menu_list.h"
#include "regions/region_table.h"
#include "settings/ini.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstring>

namespace {

// A key that holds one number of four bytes: int, LONG or DWORD, which are different types on Windows.
struct PlainKey {
    const char* key;
    void* where;
    int most; // a larger number is read as this one
    int kept; // bits that are written
};

} // namespace

static const int WIDEST_BORDER = 100; // pixels; with the screen's middle in the band every move would scroll
static const int ALL_BITS = -1;
static const int LOW_BYTE = 255;
static const int MENU_READ_ROOM = 4048;
static const int MENU_WRITE_ROOM = 2048;
static const int ENTRY_ROOM = 12; // of one number with its mark

static RECT StoredPlace; // of the Toolwin, in screen pixels

// Pixels above the largest desktop would carry windows to where sums of 32 bits wrap, and nobody would find
// them again. Types and delays mean something whatever they hold. The rows stand in the order of the file.
static const PlainKey OptionKeys[] = {
  // key                       where                            most             kept
    {"border",                 &Options.border,                 WIDEST_BORDER,   ALL_BITS},
    {"maxscroll",              &Options.maxscroll,              LARGEST_DESKTOP, ALL_BITS},
    {"minscroll",              &Options.minscroll,              LARGEST_DESKTOP, ALL_BITS},
    {"mousescroll",            &Options.mousescroll,            LARGEST_DESKTOP, ALL_BITS},
    {"alpha",                  &Options.alpha,                  INT_MAX,         LOW_BYTE},
    {"mousescroll_type",       &Options.mousescroll_type,       INT_MAX,         ALL_BITS},
    {"mousescroll_delay",      &Options.mousescroll_delay,      INT_MAX,         ALL_BITS},
    {"mousescroll_delay_time", &Options.mousescroll_delay_time, INT_MAX,         ALL_BITS},
    {"Quorl.left",             &Quorl.left,                     LARGEST_DESKTOP, ALL_BITS},
    {"Quorl.top",              &Quorl.top,                      LARGEST_DESKTOP, ALL_BITS},
    {"Quorl.right",            &Quorl.right,                    LARGEST_DESKTOP, ALL_BITS},
    {"Quorl.bottom",           &Quorl.bottom,                   LARGEST_DESKTOP, ALL_BITS},
};

static const PlainKey PlaceKeys[] = {
    {"quorl_pos.left",   &StoredPlace.left,   INT_MAX, ALL_BITS},
    {"quorl_pos.top",    &StoredPlace.top,    INT_MAX, ALL_BITS},
    {"quorl_pos.right",  &StoredPlace.right,  INT_MAX, ALL_BITS},
    {"quorl_pos.bottom", &StoredPlace.bottom, INT_MAX, ALL_BITS},
};

static const PlainKey MenuKeys[] = {
    {"quorl_menu_count", &quorl_menu_count, MAX_MENU_ENTRIES, ALL_BITS},
};

template <int COUNT>
static void ReadKeys(LPCSTR file, const PlainKey (&keys)[COUNT]) {
    for (const PlainKey& row : keys) {
        int number = 0;
        if (ReadIniInt(file, row.key, &number) < 0)
            continue;
        number = std::min(number, row.most);
        std::memcpy(row.where, &number, sizeof number);
    }
}

template <int COUNT>
static void WriteKeys(LPCSTR file, const PlainKey (&keys)[COUNT]) {
    for (const PlainKey& row : keys) {
        int number = 0;
        std::memcpy(&number, row.where, sizeof number);
        WriteIniInt(file, row.key, number & row.kept);
    }
}

// Not so is a place on a display that was taken away. The map is never smaller than its least size.
static int IsInSight(const RECT& place) {
    const RECT map{place.left, place.top, std::max(place.right, place.left + LEAST_TOOLWIN.cx),
                   std::max(place.bottom, place.top + LEAST_TOOLWIN.cy)};
    RECT shared{};
    return IntersectRect(&shared, &map, &ScreenRect);
}

static void ReadPlace(HWND window, LPCSTR file) {
    StoredPlace = {-1, -1, -1, -1}; // what an absent key gives
    ReadKeys(file, PlaceKeys);
    if (StoredPlace.left > 0 && IsInSight(StoredPlace))
        MoveWindow(window, StoredPlace.left, StoredPlace.top, StoredPlace.right - StoredPlace.left,
                   StoredPlace.bottom - StoredPlace.top, TRUE);
}

// Without a rectangle the stored place is better than none.
static void WritePlace(HWND window, LPCSTR file) {
    if (GetWindowRect(window, &StoredPlace))
        WriteKeys(file, PlaceKeys);
}

// Numbers are stored from the front; entries behind the last one stay.
static void ReadMenu(LPCSTR file) {
    char text[MENU_READ_ROOM];
    ReadKeys(file, MenuKeys);
    if (!ReadIniText(file, "quorl_menu", text, sizeof text))
        return;
    const int count = NumbersIn(text, MenuList, MAX_MENU_ENTRIES);
    for (int place = 0; place < count; ++place)
        if (MenuList[place] >= NUM_ACTIONS)
            MenuList[place] = MENU_SEPARATOR;
}

// A full list fits, unless somebody wrote separators of many digits into the file. Then its end goes, and out
// of the list too: a count without its entries would bring up others at the next start.
static void WriteMenu(LPCSTR file) {
    char text[MENU_WRITE_ROOM] = "";
    int length = 0;
    int place = 0;
    for (; place < quorl_menu_count && length < MENU_WRITE_ROOM - ENTRY_ROOM; ++place)
        length += std::snprintf(text + length, ENTRY_ROOM + 1, place ? "|%d" : "%d", MenuList[place]);
    quorl_menu_count = place;
    WriteKeys(file, MenuKeys);
    WriteIniText(file, "quorl_menu", text);
}

int LoadOptions(HWND window, LPCSTR file) {
    num_regions = 0;
    ReadKeys(file, OptionKeys);
    MeasureScreen();
    ReadPlace(window, file);
    ReadMenu(file);
    return 1;
}

int SaveOptions(HWND window, LPCSTR file) {
    WriteKeys(file, OptionKeys);
    WritePlace(window, file);
    WriteMenu(file);
    return 1;
}
