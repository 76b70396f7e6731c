// libFuzzer's door to the settings file.
#include "fuzz/settings_input.h"
#include "fuzz/shared_coverage.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    TryInput([=] { TrySettings({reinterpret_cast<const char*>(data), size}); });
    return 0;
}
