#include "settings/options_file.h"

#include "actions/action_table.h"
#include "core/displays.h"
#include "core/rect.h"
#include "core/state.h"
#include "menus/menu_list.h"
#include "scroll/desktop_size.h"
#include "settings/ini.h"
#include "toolwin/placement.h"
#include "windows/other_window.h"

#include <algorithm>
#include <climits>
#include <cstdio>

namespace {

struct RectKey {
    const char* key;
    LONG RECT::*side;
};

} // namespace

static const RectKey DesktopKeys[] = {
    {"Quorl.left", &RECT::left},
    {"Quorl.top", &RECT::top},
    {"Quorl.right", &RECT::right},
    {"Quorl.bottom", &RECT::bottom},
};

static const RectKey MapKeys[] = {
    {"quorl_pos.left", &RECT::left},
    {"quorl_pos.top", &RECT::top},
    {"quorl_pos.right", &RECT::right},
    {"quorl_pos.bottom", &RECT::bottom},
};

static const char MENU_COUNT_KEY[] = "quorl_menu_count";
static const char MENU_KEY[] = "quorl_menu";
static const int MENU_READ_SIZE = 4048;
static const int MENU_WRITE_SIZE = 2048;
static const int ENTRY_SIZE = 12; // of one number with its delimiter

template <int COUNT>
static void ReadRect(LPCSTR file, const RectKey (&keys)[COUNT], RECT* rect, int max) {
    for (const RectKey& row : keys) {
        int number = 0;
        if (ReadIniInt(file, row.key, &number) >= 0)
            rect->*row.side = std::min(number, max);
    }
}

template <int COUNT>
static void WriteRect(LPCSTR file, const RectKey (&keys)[COUNT], const RECT& rect) {
    for (const RectKey& row : keys)
        WriteIniInt(file, row.key, static_cast<int>(rect.*row.side));
}

static void ReadNumbers(LPCSTR file) {
    for (const OptionDef& def : OptionDefs) {
        int number = 0;
        if (ReadIniInt(file, def.key, &number) >= 0)
            Options.*def.field = std::min(number, def.max);
    }
}

static void WriteNumbers(LPCSTR file) {
    for (const OptionDef& def : OptionDefs)
        WriteIniInt(file, def.key, Options.*def.field & def.storedBits);
}

// A larger desktop would overflow the coordinates of windows.
static void ReadDesktop(LPCSTR file) {
    RECT desktop = Quorl;
    ReadRect(file, DesktopKeys, &desktop, LARGEST_DESKTOP);
    SetDesktop(desktop);
}

// The map is never smaller than its minimum.
static RECT WithMinimumSize(const RECT& rect) {
    return {rect.left, rect.top, std::max<LONG>(rect.right, Wrap(0LL + rect.left + MIN_TOOLWIN.cx)),
            std::max<LONG>(rect.bottom, Wrap(0LL + rect.top + MIN_TOOLWIN.cy))};
}

// A position on a display that is gone is ignored; one that only a taskbar or the gap between displays hides
// is corrected.
static void ReadMapRect(LPCSTR file) {
    RECT rect{-1, -1, -1, -1}; // absent keys
    ReadRect(file, MapKeys, &rect, INT_MAX);
    const RECT map = WithMinimumSize(rect);
    if (rect.left <= 0 || !IsOnDisplay(map))
        return;
    const RECT reachable = KeepInReach(map);
    const RECT moved =
        ToSystem(Offset(rect, Wrap(0LL + reachable.left - map.left), Wrap(0LL + reachable.top - map.top)));
    MoveWindow(MainWnd, moved.left, moved.top, Width(moved), Height(moved), TRUE);
}

// The rectangle of GetWindowRect: when it is loaded, the map is hidden and has no invisible frame yet.
// Loading ignores a left edge of 0 or less, so if only the frame is left of the screen, 1 is stored. If the
// rectangle cannot be read, the stored one stays.
static void WriteMapRect(LPCSTR file) {
    RECT rect{};
    WindowFrame frame{};
    if (!GetWindowRect(MainWnd, &rect) || !ReadWindowFrame(MainWnd, &frame))
        return;
    rect = FromSystem(rect);
    const int correction = frame.visible.left > 0 && rect.left <= 0 ? 1 - rect.left : 0;
    WriteRect(file, MapKeys, Offset(rect, correction, 0));
}

static void ReadMenu(LPCSTR file) {
    const int stored = ReadIniInt(file, MENU_COUNT_KEY, nullptr);
    if (stored >= 0)
        SetMenuCount(stored);
    char text[MENU_READ_SIZE];
    if (!ReadIniText(file, MENU_KEY, text, sizeof text))
        return;
    int entries[MAX_MENU_ENTRIES];
    const int count = ParseNumbers(text, entries, MAX_MENU_ENTRIES);
    for (int i = 0; i < count; ++i)
        if (entries[i] >= NUM_ACTIONS)
            entries[i] = MENU_SEPARATOR;
    SetMenuEntries(entries, count);
}

// A full list fits unless the file contained separators with many digits. Then the list is truncated too,
// because a count larger than the stored entries would show stale ones at the next start.
static void WriteMenu(LPCSTR file) {
    char text[MENU_WRITE_SIZE] = "";
    int length = 0;
    int count = 0;
    for (; count < quorl_menu_count && length < MENU_WRITE_SIZE - ENTRY_SIZE; ++count)
        length += std::snprintf(text + length, ENTRY_SIZE + 1, count ? "|%d" : "%d", MenuList[count]);
    SetMenuCount(count);
    WriteIniInt(file, MENU_COUNT_KEY, count);
    WriteIniText(file, MENU_KEY, text);
}

void LoadOptions(LPCSTR file) {
    ReadNumbers(file);
    ReadDesktop(file);
    ReadMapRect(file);
    ReadMenu(file);
}

void SaveOptions(LPCSTR file) {
    WriteNumbers(file);
    WriteRect(file, DesktopKeys, ChosenDesktop);
    WriteMapRect(file);
    WriteMenu(file);
}

bool HasFirstOption(LPCSTR file) {
    return ReadIniInt(file, OptionDefs[0].key, nullptr) >= 0;
}
