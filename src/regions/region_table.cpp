// The regions: named, coloured places of the view on the desktop.
#include "regions/region_table.h"

#include "actions/dispatch.h"
#include "core/state.h"

#include <algorithm>
#include <cstdio>

RegionRow RegionTable[MAX_REGIONS];
int num_regions;

static const int NAME_GIVEN = 33; // bytes of a name that FindRegionAt hands out, the zero included
static const UINT REGION_KEY_MODIFIERS = MOD_ALT | MOD_CONTROL | MOD_SHIFT;

static int Holds(const RegionRow& region, int x, int y) {
    return region.left <= x && x <= region.right && region.top <= y && y <= region.bottom;
}

static UINT FirstDigit(int number) {
    while (number > 9)
        number /= 10;
    return static_cast<UINT>('0' + number);
}

int FindRegionAt(int x, int y, char* name, int* index, RECT* rect) {
    int row = num_regions - 1;
    while (row >= 0 && !Holds(RegionTable[row], x, y))
        --row;
    if (row < 0)
        return 0;
    const RegionRow& region = RegionTable[row];
    if (name)
        std::snprintf(name, NAME_GIVEN, "%.*s", NAME_GIVEN - 1, region.name);
    if (index)
        *index = row;
    if (rect)
        *rect = {region.left, region.top, region.right, region.bottom};
    return 1;
}

int RegionAtCorner(int left, int top) {
    int row = 0;
    while (row < num_regions && (RegionTable[row].left != left || RegionTable[row].top != top))
        ++row;
    return row;
}

int RegisterRegionKeys(HWND window) {
    for (int row = 0; row < MAX_REGIONS; ++row)
        UnregisterHotKey(window, FIRST_REGION_ID + row);
    int bAll = 1;
    for (int row = 0; row < num_regions; ++row) {
        if (RegisterHotKey(window, FIRST_REGION_ID + row, REGION_KEY_MODIFIERS, FirstDigit(row)))
            continue;
        MessageBeep(0);
        bAll = 0;
    }
    return bAll;
}

// The rows in use stay contiguous; the last of them takes what lies behind it, where the table goes on.
static int RemoveAtCorner(int left, int top) {
    const int row = RegionAtCorner(left, top);
    if (row >= num_regions)
        return 0;
    const int end = std::min(num_regions + 1, MAX_REGIONS);
    std::copy(RegionTable + row + 1, RegionTable + end, RegionTable + row);
    --num_regions;
    return 1;
}

int RemoveRegion(HWND window, int index) {
    int bRemoved = 0;
    if (index < 0)
        bRemoved = RemoveAtCorner(VDesk.left, VDesk.top);
    else if (index < MAX_REGIONS)
        bRemoved = RemoveAtCorner(RegionTable[index].left, RegionTable[index].top);
    Repaint(window);
    return bRemoved;
}

int ClearRegions(HWND window) {
    for (int row = 0; row < num_regions; ++row) {
        RegionRow& region = RegionTable[row];
        region.left = region.top = region.right = region.bottom = -1;
        region.name[0] = 0;
    }
    num_regions = 0;
    Repaint(window);
    return 1;
}
