#include "settings/regions_file.h"

#include "core/letters.h"
#include "core/state.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

static const char COUNT_KEY[] = "num_regions";
static const char LINE_KEY[] = "Region%d";

static const int NUMBERS = 5;           // in a line, after the name
static const char STORED_DELIMITER = 1; // in the file, a delimiter in a name; it cannot be typed

// Does not replace the second byte of a letter. The text ends with a whole letter.
static void Replace(char* text, char from, char to) {
    for (char* letter = text; *letter; letter += LetterSize(*letter))
        if (*letter == from)
            *letter = to;
}

static int FormatNumbers(const RegionRow& row, char* text, std::size_t size) {
    return std::snprintf(text, size, "|%d|%d|%d|%d|%d", row.left, row.top, row.right, row.bottom,
                         static_cast<int>(row.color));
}

// The profile functions strip leading spaces from a value.
static bool NeedsQuotes(const char* name) {
    return *name == ' ';
}

// Bytes for the name, the terminator included. Quotes cost one character of the line.
static int NameSize(const RegionRow& row) {
    const int size = LINE_SIZE - FormatNumbers(row, nullptr, 0) - NeedsQuotes(row.name);
    return std::min(REGION_NAME_SIZE, size); // at least 3: the numbers take at most 60
}

void MakeStorable(RegionRow* row) {
    row->name[REGION_NAME_SIZE - 1] = 0;
    for (char* letter = row->name; *letter; ++letter)
        if (*letter > 0 && *letter < ' ')
            *letter = ' ';
    row->name[WholeLetters(row->name, static_cast<std::size_t>(NameSize(*row)) - 1)] = 0;
}

void FormatRegion(const RegionRow& row, char (&line)[WRITTEN_SIZE]) {
    char name[REGION_NAME_SIZE];
    char numbers[LINE_SIZE];
    std::memcpy(name, row.name, sizeof name);
    Replace(name, DELIMITER, STORED_DELIMITER);
    FormatNumbers(row, numbers, sizeof numbers);
    std::snprintf(line, sizeof line, NeedsQuotes(name) ? "\"%s%s\"" : "%s%s", name, numbers);
}

// The line of a region without a name starts with a delimiter and has only the numbers.
static bool IsNameless(const char* line) {
    int numbers[NUMBERS + 1];
    return *line == DELIMITER && ParseNumbers(line, numbers, NUMBERS + 1) == NUMBERS;
}

static int ClampEdge(int coordinate) {
    return std::clamp(coordinate, -LARGEST_DESKTOP, LARGEST_DESKTOP);
}

static void ReadName(const char* field, RegionRow* row) {
    const std::size_t length =
        WholeLetters(field, std::min<std::size_t>(FieldLength(field), REGION_NAME_SIZE - 1));
    std::memcpy(row->name, field, length);
    row->name[length] = 0;
    Replace(row->name, STORED_DELIMITER, DELIMITER);
}

void ParseRegion(const char* line, RegionRow* row) {
    const char* name = IsNameless(line) ? line : FirstField(line);
    int numbers[NUMBERS] = {};
    ParseNumbers(name + FieldLength(name), numbers, NUMBERS);
    ReadName(name, row);
    row->left = ClampEdge(numbers[0]);
    row->top = ClampEdge(numbers[1]);
    row->right = ClampEdge(numbers[2]);
    row->bottom = ClampEdge(numbers[3]);
    row->color = static_cast<COLORREF>(numbers[4]);
}

static void LoadRegion(LPCSTR file, int index) {
    char line[LINE_SIZE];
    if (!ReadIniLine(file, LINE_KEY, index, line))
        return;
    RegionRow region{};
    ParseRegion(line, &region);
    SetRegion(index, region);
}

void LoadRegions(LPCSTR file) {
    ResetRegions(ReadIniInt(file, COUNT_KEY, nullptr));
    for (int index = 0; index < num_regions; ++index)
        LoadRegion(file, index);
    RegisterRegionKeys();
    InvalidateRect(MainWnd, nullptr, TRUE);
}

static void SaveRegion(LPCSTR file, int index) {
    RegionRow region = RegionTable[index];
    MakeStorable(&region);
    SetRegion(index, region);
    char line[WRITTEN_SIZE];
    FormatRegion(region, line);
    WriteIniLine(file, LINE_KEY, index, line);
}

void SaveRegions(LPCSTR file) {
    WriteIniInt(file, COUNT_KEY, num_regions);
    for (int index = 0; index < num_regions; ++index)
        SaveRegion(file, index);
}
