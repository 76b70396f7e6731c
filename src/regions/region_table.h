// The regions: named, coloured places of the view on the desktop.
#pragma once

#include "core/platform.h"

constexpr int MAX_REGIONS = 200;
constexpr int REGION_NAME_ROOM = 36; // bytes, the zero included

struct RegionRow {
    int id; // the row's index, or -1; nothing decides on it
    char name[REGION_NAME_ROOM];
    int left, top, right, bottom; // desktop pixels; made by the user it is one screen in size
    COLORREF color;               // its fill on the map
};

extern RegionRow RegionTable[MAX_REGIONS];

// Rows 0 to num_regions - 1 are in use. Between 0 and MAX_REGIONS: whoever sets it holds it there.
extern int num_regions;

// The region that holds a desktop point, both ends counting as inside; of overlapping ones that with the
// highest row. Each output may be null and is written only when there is one: `name` has room for 33 bytes
// (a longer name is cut), `index` receives the row. 1 if found, else 0.
int FindRegionAt(int x, int y, char* name, int* index, RECT* rect);

// The first row in use whose corner is exactly this desktop point; num_regions if there is none.
int RegionAtCorner(int left, int top);

// Releases the hotkeys of all 200 rows and registers Ctrl+Alt+Shift and the first digit of its index for each
// row in use, on `window`. Only rows 0 to 9 can get one: each other row costs a beep. 1 if none was refused.
int RegisterRegionKeys(HWND window);

// Removes the first region whose corner is exactly that of row `index`, or, for a negative index, that of the
// view; later rows move up. Repaints `window` in any case. The hotkeys stay as they are. 1 if one went.
int RemoveRegion(HWND window, int index);

// Removes all regions and repaints `window`. The hotkeys stay as they are. Always 1.
int ClearRegions(HWND window);
