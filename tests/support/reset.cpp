#include "support/reset.h"

#include "support/quorl_test.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

// Where the linker puts the variables of src/.
extern "C" {
extern unsigned char __start_quorl_data; // NOLINT(bugprone-reserved-identifier)
extern unsigned char __stop_quorl_data;  // NOLINT(bugprone-reserved-identifier)
extern unsigned char __start_quorl_bss;  // NOLINT(bugprone-reserved-identifier)
extern unsigned char __stop_quorl_bss;   // NOLINT(bugprone-reserved-identifier)
}

constexpr std::size_t PAGE = 4096;

// Byte by byte, because AddressSanitizer's memcpy would report its red zones between the variables.
__attribute__((no_sanitize("address", "undefined"))) static void
CopyChanges(const unsigned char* from, unsigned char* to, std::size_t count) {
    unsigned char difference = 0;
    for (std::size_t at = 0; at < count; ++at)
        difference |= static_cast<unsigned char>(from[at] ^ to[at]);
    for (std::size_t at = 0; difference && at < count; ++at)
        if (to[at] != from[at])
            to[at] = from[at];
}

// Saves the range at the first call, restores it at later ones.
static void SaveOrRestore(unsigned char** saved, unsigned char* start, const unsigned char* stop) {
    const auto size = static_cast<std::size_t>(stop - start);
    if (*saved)
        return CopyChanges(*saved, start, size);
    *saved = new unsigned char[size];
    CopyChanges(start, *saved, size);
}

// Zeros the range, which may start within a page. Most of it is unused rows of tables: their pages do not
// exist until they are touched.
static void Clear(unsigned char* start, unsigned char* stop) {
    static const unsigned char zeros[PAGE] = {};
    static std::vector<unsigned char> exists;
    unsigned char* const first = start - reinterpret_cast<std::uintptr_t>(start) % PAGE;
    const auto size = static_cast<std::size_t>(stop - first);
    exists.resize(size / PAGE + 1);
    if (mincore(first, size, exists.data()))
        std::abort();
    for (std::size_t page = 0; page * PAGE < size; ++page) {
        unsigned char* const from = std::max(start, first + page * PAGE);
        unsigned char* const to = std::min(stop, first + (page + 1) * PAGE);
        if (exists[page] & 1)
            CopyChanges(zeros, from, static_cast<std::size_t>(to - from));
    }
}

void ResetProgram() {
    static unsigned char* data;
    FreeControls();
    SaveOrRestore(&data, &__start_quorl_data, &__stop_quorl_data);
    Clear(&__start_quorl_bss, &__stop_quorl_bss);
    const bool recording = Desk.recording;
    Desk = {};
    Desk.recording = recording;
    Hook = {};
}
