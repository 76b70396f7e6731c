// The cost of loading and saving settings without the disk, by the number of regions.
#include "running.h"

#include "core/state.h"
#include "regions/region_table.h"
#include "settings/settings.h"

#include "desk/desk.h"

#include <benchmark/benchmark.h>

namespace {

// A running Quorl with a saved file.
void SaveWithRegions(int count) {
    RunQuorl();
    for (int index = 0; index < count; ++index)
        RegionTable[index] = {"some region", 1024, 768, 2048, 1536, 0x00ff00};
    num_regions = count;
    SaveSettings();
}

void Load(benchmark::State& state) {
    SaveWithRegions(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] const auto& round : state) {
        LoadSettingsAction({});
        Desk.beeps.clear(); // one for each region that gets no digit
    }
}

void Save(benchmark::State& state) {
    SaveWithRegions(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] const auto& round : state)
        SaveSettings();
}

} // namespace

void RegisterSettings() {
    benchmark::RegisterBenchmark("load", Load)->Arg(0)->Arg(10)->Arg(MAX_REGIONS);
    benchmark::RegisterBenchmark("save", Save)->Arg(0)->Arg(10)->Arg(MAX_REGIONS);
}
