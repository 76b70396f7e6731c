// libFuzzer's door to the settings file.
#include "fuzz/settings_input.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (const char* broken = TrySettings({reinterpret_cast<const char*>(data), size})) {
        std::fprintf(stderr, "broken: %s\n", broken);
        std::abort();
    }
    return 0;
}
