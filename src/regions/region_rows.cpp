// The rows that work on regions.
#include "regions/region_rows.h"

#include "core/state.h"
#include "regions/region_table.h"
#include "scroll/scroll_view.h"

static const int AT_VIEW = -50; // to RemoveRegion: the region at the view's corner

int RegionAfter(int row, int step, int count) {
    const int next = row + step;
    if (next >= count)
        return 0;
    return next < 0 ? count - 1 : next;
}

// A row out of use is not refused: the hotkeys of regions outlive them until they are registered anew.
static int FindByNumber(int row, ActionPoint* corner) {
    if (row < 0 || row >= MAX_REGIONS)
        return 0;
    *corner = {RegionTable[row].left, RegionTable[row].top};
    return 1;
}

static int FindOnMap(ActionPoint* point) {
    RECT rect{};
    MapToDesktop(point);
    if (!FindRegionAt(point->x, point->y, nullptr, nullptr, &rect))
        return 0;
    *point = {rect.left, rect.top};
    return 1;
}

int GoToRegion(const ActionCall& call) {
    ActionPoint& point = *call.point;
    if (!(point.y == -1 ? FindByNumber(point.x, &point) : FindOnMap(&point)))
        return 0;
    return ScrollView(call.window, point.x, point.y, SV_ABSOLUTE, call.row);
}

int StepToRegion(const ActionCall& call) {
    int row = 0;
    if (FindRegionAt(VDesk.left, VDesk.top, nullptr, &row, nullptr)) {
        row = RegionAfter(row, call.with, num_regions);
    } else if (num_regions == 0) {
        MessageBeep(0);
        return 0;
    }
    return ScrollView(call.window, RegionTable[row].left, RegionTable[row].top, SV_ABSOLUTE, call.row);
}

int UnmarkRegion(const ActionCall& call) {
    return RemoveRegion(call.window, AT_VIEW);
}

int UnmarkAllRegions(const ActionCall& call) {
    return ClearRegions(call.window);
}
