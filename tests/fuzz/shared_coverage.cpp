// Each input of a fuzzer runs in a process of its own, since Quorl's state lives for a whole process.
#include "fuzz/shared_coverage.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

// Where the linker puts the counters of all instrumented code.
extern "C" {
extern std::uint8_t __start___sancov_cntrs; // NOLINT(bugprone-reserved-identifier)
extern std::uint8_t __stop___sancov_cntrs;  // NOLINT(bugprone-reserved-identifier)
}

// Whole pages only: what else lies in the first and the last one is each process's own.
void ShareCoverage() {
    const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const std::uintptr_t from =
        (reinterpret_cast<std::uintptr_t>(&__start___sancov_cntrs) + page - 1) / page * page;
    const std::uintptr_t to = reinterpret_cast<std::uintptr_t>(&__stop___sancov_cntrs) / page * page;
    auto* const counters = reinterpret_cast<std::uint8_t*>(from);
    const std::vector<std::uint8_t> kept(counters, counters + (to - from));
    if (mmap(counters, to - from, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS | MAP_FIXED, -1, 0) !=
        counters)
        std::abort();
    std::memcpy(counters, kept.data(), kept.size());
}
