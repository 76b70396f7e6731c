#include "regions/region_table.h"

#include "actions/dispatch.h"
#include "core/state.h"

#include <algorithm>

RegionRow RegionTable[MAX_REGIONS];
int num_regions;

static const UINT REGION_KEY_MODIFIERS = MOD_ALT | MOD_CONTROL | MOD_SHIFT;

static bool Contains(const RegionRow& region, int x, int y) {
    return region.left <= x && x <= region.right && region.top <= y && y <= region.bottom;
}

static UINT FirstDigit(int number) {
    while (number > 9)
        number /= 10;
    return static_cast<UINT>('0' + number);
}

int FindRegionAt(int x, int y) {
    int index = num_regions - 1;
    while (index >= 0 && !Contains(RegionTable[index], x, y))
        --index;
    return index;
}

int RegionAtCorner(int left, int top) {
    int index = 0;
    while (index < num_regions && (RegionTable[index].left != left || RegionTable[index].top != top))
        ++index;
    return index;
}

void SetRegion(int index, const RegionRow& region) {
    RegionTable[index] = region;
    num_regions = std::max(num_regions, index + 1);
}

void ResetRegions(int count) {
    for (RegionRow& region : RegionTable)
        region.name[0] = 0;
    num_regions = std::clamp(count, 0, MAX_REGIONS);
}

void RegisterRegionKeys() {
    for (int index = 0; index < MAX_REGIONS; ++index)
        UnregisterHotKey(MainWnd, FIRST_REGION_ID + index);
    for (int index = 0; index < num_regions; ++index)
        if (!RegisterHotKey(MainWnd, FIRST_REGION_ID + index, REGION_KEY_MODIFIERS, FirstDigit(index)))
            MessageBeep(0);
}

// Also moves the first unused row up, because its hotkey still leads to it.
void RemoveRegion() {
    const int index = RegionAtCorner(VDesk.left, VDesk.top);
    if (index >= num_regions)
        return;
    const int end = std::min(num_regions + 1, MAX_REGIONS);
    std::copy(RegionTable + index + 1, RegionTable + end, RegionTable + index);
    --num_regions;
}

void ClearRegions() {
    for (int index = 0; index < num_regions; ++index) {
        RegionRow& region = RegionTable[index];
        region.left = region.top = region.right = region.bottom = -1;
        region.name[0] = 0;
    }
    num_regions = 0;
}
