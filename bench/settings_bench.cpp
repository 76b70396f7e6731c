// What loading and saving the settings costs beyond the disk, by the number of regions.
#include "core/main.h"
#include "core/state.h"
#include "regions/region_table.h"
#include "settings/settings.h"

#include "desk/desk.h"

#include <benchmark/benchmark.h>

namespace {

// A running Quorl with a saved file. The process is shared, so it starts once.
void SaveWithRegions(int count) {
    Desk.bTrace = 0;
    if (!MainWnd)
        StartUp(reinterpret_cast<HINSTANCE>(0x400000));
    for (int index = 0; index < count; ++index)
        RegionTable[index] = {index, "some region", 1024, 768, 2048, 1536, 0x00ff00};
    num_regions = count;
    SaveSettings(MainWnd);
}

void Load(benchmark::State& state) {
    SaveWithRegions(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] const auto& round : state) {
        LoadSettings(MainWnd);
        Desk.beeps.clear(); // one for each region that gets no digit
    }
}

void Save(benchmark::State& state) {
    SaveWithRegions(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] const auto& round : state)
        SaveSettings(MainWnd);
}

BENCHMARK(Load)->Arg(0)->Arg(10)->Arg(MAX_REGIONS)->Unit(benchmark::kMicrosecond);
BENCHMARK(Save)->Arg(0)->Arg(10)->Arg(MAX_REGIONS)->Unit(benchmark::kMicrosecond);

} // namespace
