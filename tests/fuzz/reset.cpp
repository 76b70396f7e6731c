#include "fuzz/reset.h"

#include "support/quorl_test.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

// Where the linker puts the variables of src/.
extern "C" {
extern char __start_quorl_data; // NOLINT(bugprone-reserved-identifier)
extern char __stop_quorl_data;  // NOLINT(bugprone-reserved-identifier)
extern char __start_quorl_bss;  // NOLINT(bugprone-reserved-identifier)
extern char __stop_quorl_bss;   // NOLINT(bugprone-reserved-identifier)
}

namespace {

// Memory with the contents that it had when it was saved.
struct SavedRange {
    char* start;
    std::size_t size;
    std::vector<char> contents; // empty: a mapping of saved contents
};

} // namespace

// Byte by byte, because AddressSanitizer's memcpy would report its red zones between the variables.
__attribute__((no_sanitize("address"))) static void Copy(const char* from, char* to, std::size_t size) {
    for (std::size_t at = 0; at < size; ++at)
        *static_cast<volatile char*>(to + at) = from[at];
}

static SavedRange SaveCopy(char* start, const char* stop) {
    SavedRange range{start, static_cast<std::size_t>(stop - start), {}};
    range.contents.resize(range.size);
    Copy(start, range.contents.data(), range.size);
    return range;
}

// Replaces whole pages by a private mapping of a file with their contents: dropping the pages restores them,
// at the cost of those that have changed.
static SavedRange SavePages(char* start, const char* stop) {
    const auto size = static_cast<std::size_t>(stop - start);
    const int file = memfd_create("saved", 0);
    void* view = MAP_FAILED;
    if (file >= 0 && ftruncate(file, static_cast<off_t>(size)) == 0)
        view = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (view == MAP_FAILED)
        std::abort();
    Copy(start, static_cast<char*>(view), size);
    if (mmap(start, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_FIXED, file, 0) != start)
        std::abort();
    munmap(view, size);
    close(file);
    return {start, size, {}};
}

static void Save(char* start, char* stop, std::vector<SavedRange>* ranges) {
    const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const std::uintptr_t head = (0 - reinterpret_cast<std::uintptr_t>(start)) % page;
    const std::uintptr_t tail = reinterpret_cast<std::uintptr_t>(stop) % page;
    if (static_cast<std::uintptr_t>(stop - start) < head + page + tail)
        return ranges->push_back(SaveCopy(start, stop));
    ranges->push_back(SaveCopy(start, start + head));
    ranges->push_back(SavePages(start + head, stop - tail));
    ranges->push_back(SaveCopy(stop - tail, stop));
}

static void Restore(const SavedRange& range) {
    if (range.contents.empty())
        madvise(range.start, range.size, MADV_DONTNEED);
    else
        Copy(range.contents.data(), range.start, range.size);
}

void ResetProgram() {
    static std::vector<SavedRange> ranges;
    FreeControls();
    if (ranges.empty()) {
        Save(&__start_quorl_data, &__stop_quorl_data, &ranges);
        Save(&__start_quorl_bss, &__stop_quorl_bss, &ranges);
    }
    for (const SavedRange& range : ranges)
        Restore(range);
    const bool recording = Desk.recording;
    Desk = {};
    Desk.recording = recording;
    Hook = {};
}
