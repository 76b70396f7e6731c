// Each input of a fuzzer runs in a process of its own, since Quorl's state lives for a whole process.
#include "fuzz/shared_coverage.h"

#include "support/faults.h"

#include <sys/mman.h>

#include <cstdlib>
#include <cstring>

// Where the linker puts the counters of all instrumented code.
extern "C" {
extern char __start___sancov_cntrs; // NOLINT(bugprone-reserved-identifier)
extern char __stop___sancov_cntrs;  // NOLINT(bugprone-reserved-identifier)
}

void TryInput(const std::function<void()>& input) {
    char* const counters = &__start___sancov_cntrs;
    const auto size = static_cast<std::size_t>(&__stop___sancov_cntrs - counters);
    static void* const shared =
        mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    const auto counted = [&] {
        input();
        std::memcpy(shared, counters, size);
    };
    if (shared == MAP_FAILED || !HoldsInItsOwnProcess(counted))
        std::abort();
    std::memcpy(counters, shared, size);
}
