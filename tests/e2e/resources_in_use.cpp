// What a program holds of the system, as seen from outside.
#include "resources_in_use.h"

#include "user.h"

#include <psapi.h>
#include <winternl.h>

#include <cstdio>
#include <memory>

namespace {

// Wine counts no graphics objects, but it keeps them, as Windows does, in a table in the program's memory.
// Its place in the process environment block, and what an entry is.
constexpr SIZE_T TABLE_POINTER = sizeof(void*) == 8 ? 0xf8 : 0x94;
constexpr int NUM_ENTRIES = 65536;
constexpr BYTE BITMAP_TYPE = 9; // not counted: under Wine a picture in a dialog template stays for good

struct GdiEntry {
    UINT64 object;
    WORD owner[2];
    WORD unique;
    BYTE type; // 0: free
    BYTE flags;
    UINT64 user;
};

template <typename Value>
bool Read(HANDLE process, const void* from, Value& value) {
    return ReadProcessMemory(process, from, &value, sizeof value, nullptr);
}

int GdiObjectsOf(HANDLE process) {
    struct Table {
        GdiEntry entries[NUM_ENTRIES];
    };
    PROCESS_BASIC_INFORMATION basics = {};
    NtQueryInformationProcess(process, ProcessBasicInformation, &basics, sizeof basics, nullptr);
    const char* const block = reinterpret_cast<const char*>(basics.PebBaseAddress);
    const void* place = nullptr;
    const auto table = std::make_unique<Table>();
    if (!Read(process, block + TABLE_POINTER, place) || !Read(process, place, *table))
        return -1;
    int count = 0;
    for (const GdiEntry& entry : table->entries)
        count += entry.type != 0 && entry.type != BITMAP_TYPE;
    return count;
}

struct WindowCount {
    DWORD process;
    int windows;
};

BOOL CALLBACK CountWindow(HWND window, LPARAM parameter) {
    auto& count = *reinterpret_cast<WindowCount*>(parameter);
    count.windows += ProcessOf(window) == count.process;
    return TRUE;
}

BOOL CALLBACK CountWithChildren(HWND window, LPARAM count) {
    CountWindow(window, count);
    EnumChildWindows(window, CountWindow, count);
    return TRUE;
}

} // namespace

ResourcesInUse ResourcesOf(HANDLE process) {
    WindowCount count = {GetProcessId(process), 0};
    EnumWindows(CountWithChildren, reinterpret_cast<LPARAM>(&count));
    ResourcesInUse resources = {count.windows, GdiObjectsOf(process), 0};
    PROCESS_MEMORY_COUNTERS memory = {};
    memory.cb = sizeof memory;
    K32GetProcessMemoryInfo(process, &memory, sizeof memory);
    resources.memory = memory.WorkingSetSize;
    return resources;
}

std::string Told(const ResourcesInUse& resources) {
    char text[160];
    std::snprintf(text, sizeof text, "%d windows, %d graphics objects, %lu KB", resources.windows,
                  resources.gdi, static_cast<unsigned long>(resources.memory / 1024));
    return text;
}
