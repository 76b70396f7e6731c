// libFuzzer's door to the settings file.
#include "fuzz/settings_input.h"
#include "support/faults.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (!HoldsInItsOwnProcess([=] { TrySettings({reinterpret_cast<const char*>(data), size}); }))
        std::abort();
    return 0;
}
