#include "commands/region_commands.h"

#include "core/state.h"
#include "regions/region_table.h"
#include "scroll/scroll_view.h"
#include "toolwin/map_coordinates.h"

// Pure: the index `step` (1 or -1) away in a ring of `count`.
static int NextIndex(int index, int step, int count) {
    const int next = index + step;
    if (next >= count)
        return 0;
    return next < 0 ? count - 1 : next;
}

static int RegionUnder(ActionPoint map) {
    const ActionPoint desktop = MapToDesktop(map);
    return FindRegionAt(desktop.x, desktop.y);
}

// A region that is no longer in use is not refused: its hotkey works until the hotkeys are registered again.
void GoToRegion(const ActionCall& call) {
    const int index = call.region == NO_REGION ? RegionUnder(call.point) : call.region;
    if (index < 0 || index >= MAX_REGIONS)
        return;
    ScrollView(call.window, RegionTable[index].left, RegionTable[index].top, SV_ABSOLUTE, call.id);
}

void StepToRegion(const ActionCall& call) {
    if (num_regions == 0) {
        MessageBeep(0);
        return;
    }
    const int current = FindRegionAt(VDesk.left, VDesk.top);
    const int index = current < 0 ? 0 : NextIndex(current, call.argument, num_regions);
    ScrollView(call.window, RegionTable[index].left, RegionTable[index].top, SV_ABSOLUTE, call.id);
}

void UnmarkRegion(const ActionCall& call) {
    RemoveRegion();
    Repaint(call.window);
}

void UnmarkAllRegions(const ActionCall& call) {
    ClearRegions();
    Repaint(call.window);
}
