// The regions, as they lie in the settings file.
#include "settings/regions_file.h"

#include "core/state.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

static const char COUNT_KEY[] = "num_regions";
static const char LINE_KEY[] = "Region%d";

static const int NUMBERS = 5;   // in a line, behind the name
static const char FOR_MARK = 1; // in the file, a mark that belongs to a name; nobody can type it

static void Replace(char* text, char from, char to) {
    std::replace(text, text + std::strlen(text), from, to);
}

static int NumbersOf(const RegionRow& row, char* text, std::size_t room) {
    return std::snprintf(text, room, "|%d|%d|%d|%d|%d", row.left, row.top, row.right, row.bottom,
                         static_cast<int>(row.color));
}

// The profile functions take blanks from the start of a value.
static int NeedsQuotes(const char* name) {
    return *name == ' ';
}

// In quotes one character less is sure to be seen.
static int NameRoom(const RegionRow& row) {
    const int room = LINE_ROOM - NumbersOf(row, nullptr, 0) - NeedsQuotes(row.name);
    return std::min(REGION_NAME_ROOM, room); // 3 at least: the numbers take 60 at most
}

void MakeStorable(RegionRow* row) {
    row->name[REGION_NAME_ROOM - 1] = 0;
    for (char* letter = row->name; *letter; ++letter)
        if (*letter > 0 && *letter < ' ')
            *letter = ' ';
    row->name[NameRoom(*row) - 1] = 0;
}

void WrittenRegion(const RegionRow& row, char (&line)[WRITTEN_ROOM]) {
    char name[REGION_NAME_ROOM];
    char numbers[LINE_ROOM];
    std::memcpy(name, row.name, sizeof name);
    Replace(name, FIELD_MARK, FOR_MARK);
    NumbersOf(row, numbers, sizeof numbers);
    std::snprintf(line, sizeof line, NeedsQuotes(name) ? "\"%s%s\"" : "%s%s", name, numbers);
}

// A region without a name leaves its place empty: a mark in front, and only the numbers.
static int IsNameless(const char* line) {
    int numbers[NUMBERS + 1];
    return *line == FIELD_MARK && NumbersIn(line, numbers, NUMBERS + 1) == NUMBERS;
}

static int WithinDesktop(int coordinate) {
    return std::clamp(coordinate, -LARGEST_DESKTOP, LARGEST_DESKTOP);
}

static void ReadName(const char* field, RegionRow* row) {
    const std::size_t length = std::min<std::size_t>(FieldLength(field), REGION_NAME_ROOM - 1);
    std::memcpy(row->name, field, length);
    row->name[length] = 0;
    Replace(row->name, FOR_MARK, FIELD_MARK);
}

void ReadRegion(const char* line, RegionRow* row) {
    const char* name = IsNameless(line) ? line : FirstField(line);
    int numbers[NUMBERS] = {};
    NumbersIn(name + FieldLength(name), numbers, NUMBERS);
    ReadName(name, row);
    row->left = WithinDesktop(numbers[0]);
    row->top = WithinDesktop(numbers[1]);
    row->right = WithinDesktop(numbers[2]);
    row->bottom = WithinDesktop(numbers[3]);
    row->color = static_cast<COLORREF>(numbers[4]);
}

static void LoadRegion(LPCSTR file, int index) {
    char line[LINE_ROOM];
    if (!ReadIniLine(file, LINE_KEY, index, line))
        return;
    RegionTable[index].id = index;
    ReadRegion(line, &RegionTable[index]);
}

static void SaveRegion(LPCSTR file, int index) {
    char line[WRITTEN_ROOM];
    MakeStorable(&RegionTable[index]);
    WrittenRegion(RegionTable[index], line);
    WriteIniLine(file, LINE_KEY, index, line);
}

int LoadRegions(HWND window, LPCSTR file) {
    for (RegionRow& row : RegionTable) {
        row.id = -1;
        row.name[0] = 0;
    }
    num_regions = std::clamp(ReadIniInt(file, COUNT_KEY, nullptr), 0, MAX_REGIONS);
    for (int index = 0; index < num_regions; ++index)
        LoadRegion(file, index);
    RegisterRegionKeys(MainWnd);
    InvalidateRect(window, nullptr, TRUE);
    return 1;
}

int SaveRegions(HWND, LPCSTR file) {
    num_regions = std::max(num_regions, 0);
    WriteIniInt(file, COUNT_KEY, num_regions);
    for (int index = 0; index < num_regions; ++index)
        SaveRegion(file, index);
    return 1;
}
