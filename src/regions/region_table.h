// The regions: named, coloured positions of the view on the desktop.
#pragma once

#include "core/platform.h"

constexpr int MAX_REGIONS = 200;
constexpr int REGION_NAME_SIZE = 36; // bytes, the terminator included

struct RegionRow {
    char name[REGION_NAME_SIZE];
    int left, top, right, bottom; // desktop pixels; one screen in size if the user made it
    COLORREF color;               // its fill on the map
};

extern RegionRow RegionTable[MAX_REGIONS];

// Regions 0 to num_regions - 1 are in use; from 0 to MAX_REGIONS.
extern int num_regions;

// The index of the region that contains a desktop point, edges included; of overlapping ones the last. -1 if
// there is none.
int FindRegionAt(int x, int y);

// The index of the first region whose corner is exactly this desktop point; num_regions if there is none.
int RegionAtCorner(int left, int top);

// Stores a region at an index from 0 to MAX_REGIONS - 1; regions up to it are then in use.
void SetRegion(int index, const RegionRow& region);

// Clears the names of all regions and sets how many are in use, at most MAX_REGIONS.
void ResetRegions(int count);

// Releases all region hotkeys, then registers Ctrl+Alt+Shift and the first digit of the index for each region
// in use. From the eleventh region on, the digit is taken and registering fails with a beep.
void RegisterRegionKeys();

// Removes the region whose corner is the view's; later ones move up. Hotkeys stay.
void RemoveRegion();

// Removes all regions. Hotkeys stay.
void ClearRegions();
