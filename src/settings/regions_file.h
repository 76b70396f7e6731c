// The regions, as they lie in the settings file.
#pragma once

#include "core/platform.h"
#include "regions/region_table.h"
#include "settings/ini.h"

// Fills the table from the file, at most its 200 rows, registers the regions' hotkeys on MainWnd and has
// `window` repainted. A row without a line has no name and still counts; numbers that a line lacks are 0.
// Always 1.
int LoadRegions(HWND window, LPCSTR file);

// Writes the count and the rows in use. A name that cannot be stored as it is changes in the table too
// (MakeStorable), so that what is shown, what is stored and what is read again are the same. Always 1.
int SaveRegions(HWND window, LPCSTR file);

// Pure: makes the row's name one that reads back: control characters become blanks, and what would not fit
// into the characters that are seen of a line is cut off at the name's end.
void MakeStorable(RegionRow* row);

// Room for a written line: what is seen of it, and quotes.
constexpr int WRITTEN_ROOM = 2 * LINE_ROOM;

// Pure: the line of a row whose name is storable. A mark in the name is written as the character 1, and a
// name with a blank in front has its line in quotes, which the profile functions take off again.
void WrittenRegion(const RegionRow& row, char (&line)[WRITTEN_ROOM]);

// Pure: name, rectangle and colour from a line. Coordinates are held to what a desktop can have.
void ReadRegion(const char* line, RegionRow* row);
