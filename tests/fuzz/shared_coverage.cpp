// Each input of a fuzzer runs in a process of its own, since Quorl's state lives for a whole process. What
// those count of covered code is seen by libFuzzer here.
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>

// Where the linker puts the counters of all instrumented code.
extern "C" {
extern char __start___sancov_cntrs; // NOLINT(bugprone-reserved-identifier)
extern char __stop___sancov_cntrs;  // NOLINT(bugprone-reserved-identifier)
}

// Whole pages only: what else lies in the first and the last one is each process's own.
extern "C" int LLVMFuzzerInitialize(int*, char***) {
    const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const auto from = (reinterpret_cast<std::uintptr_t>(&__start___sancov_cntrs) + page - 1) / page * page;
    const auto size = reinterpret_cast<std::uintptr_t>(&__stop___sancov_cntrs) / page * page - from;
    auto* const counters = reinterpret_cast<char*>(from);
    const std::string kept(counters, size);
    if (mmap(counters, size, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS | MAP_FIXED, -1, 0) !=
        counters)
        std::abort();
    kept.copy(counters, size);
    return 0;
}
