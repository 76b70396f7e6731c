// libFuzzer's entry point for the test function FUZZED. Each input runs in a process of its own, whose
// coverage counters libFuzzer sees afterwards.
#include "fuzz/inputs.h"

#include "desk/desk.h"
#include "support/faults.h"

#include <sys/mman.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

// Where the linker puts the counters of all instrumented code.
extern "C" {
extern char __start___sancov_cntrs; // NOLINT(bugprone-reserved-identifier)
extern char __stop___sancov_cntrs;  // NOLINT(bugprone-reserved-identifier)
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t length) {
    char* const counters = &__start___sancov_cntrs;
    const auto size = static_cast<std::size_t>(&__stop___sancov_cntrs - counters);
    static void* const shared =
        mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    const auto run = [&] {
        Desk.recording = false;
        FUZZED({reinterpret_cast<const char*>(data), length});
        std::memcpy(shared, counters, size);
    };
    if (shared == MAP_FAILED || !PassesInOwnProcess(run))
        std::abort();
    std::memcpy(counters, shared, size);
    return 0;
}
