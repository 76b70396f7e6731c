// libFuzzer's door to the settings file.
#include "fuzz/shared_coverage.h"

#include "fuzz/settings_input.h"
#include "support/faults.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    ShareCoverage();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input{reinterpret_cast<const char*>(data), size};
    if (!HoldsInItsOwnProcess([input] { EXPECT_STREQ(TrySettings(input), nullptr); }))
        std::abort();
    return 0;
}
