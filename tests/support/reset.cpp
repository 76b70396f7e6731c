#include "support/reset.h"

#include "support/quorl_test.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>

// Where the linker puts the variables of src/.
extern "C" {
extern unsigned char __start_quorl_data; // NOLINT(bugprone-reserved-identifier)
extern unsigned char __stop_quorl_data;  // NOLINT(bugprone-reserved-identifier)
extern unsigned char __start_quorl_bss;  // NOLINT(bugprone-reserved-identifier)
extern unsigned char __stop_quorl_bss;   // NOLINT(bugprone-reserved-identifier)
}

constexpr std::size_t PAGE = 4096;

// Byte by byte, because AddressSanitizer's memcpy would report its red zones between the
// variables. Most of the memory is unused rows of tables: until they are written, all their pages are the
// same page of zeros, which stays in the cache.
__attribute__((no_sanitize("address", "undefined"))) static void
CopyChanges(const unsigned char* from, unsigned char* to, std::size_t count) {
    for (std::size_t start = 0; start < count; start += PAGE) {
        const std::size_t end = std::min(start + PAGE, count);
        unsigned char difference = 0;
        for (std::size_t at = start; at < end; ++at)
            difference |= static_cast<unsigned char>(from[at] ^ to[at]);
        for (std::size_t at = start; difference && at < end; ++at)
            if (to[at] != from[at])
                to[at] = from[at];
    }
}

// Saves the range at the first call, restores it at later ones.
static void SaveOrRestore(unsigned char** saved, unsigned char* start, const unsigned char* stop) {
    const auto size = static_cast<std::size_t>(stop - start);
    if (*saved)
        return CopyChanges(*saved, start, size);
    void* const zeros = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (zeros == MAP_FAILED)
        std::abort();
    *saved = static_cast<unsigned char*>(zeros);
    CopyChanges(start, *saved, size);
}

void ResetProgram() {
    static unsigned char *data, *bss;
    FreeControls();
    SaveOrRestore(&data, &__start_quorl_data, &__stop_quorl_data);
    SaveOrRestore(&bss, &__start_quorl_bss, &__stop_quorl_bss);
    const bool recording = Desk.recording;
    Desk = {};
    Desk.recording = recording;
    Hook = {};
}
