// The regions in the settings file.
#pragma once

#include "core/platform.h"
#include "regions/region_table.h"
#include "settings/ini.h"

// Fills the region table, registers the regions' hotkeys and invalidates the map. A missing line leaves the
// region without a name but in use; missing numbers are 0.
void LoadRegions(LPCSTR file);

// Writes the count and the regions in use. A name that cannot be stored as it is changes in the table as
// well, so that what is shown, stored and read again is the same.
void SaveRegions(LPCSTR file);

// Pure: makes the name one that reads back: control characters become spaces, and the end that would not fit
// into a line is cut off, in whole letters.
void MakeStorable(RegionRow* region);

constexpr int WRITTEN_SIZE = LINE_SIZE + REGION_NAME_SIZE; // bytes of a written line, quotes included

// Pure: the line of a region whose name is storable. A delimiter in the name is written as the character 1,
// and a name with a leading space has its line in quotes, which the profile functions remove.
void FormatRegion(const RegionRow& region, char (&line)[WRITTEN_SIZE]);

// Pure: name, rectangle and colour from a line. Coordinates are clamped to those of a desktop.
void ParseRegion(const char* line, RegionRow* region);
