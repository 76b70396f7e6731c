// libFuzzer's entry point for the test function FUZZED.
#include "fuzz/inputs.h"
#include "support/reset.h"

#include "desk/desk.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    ResetProgram();
    Desk.recording = false;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t length) {
    FUZZED({reinterpret_cast<const char*>(data), length});
    if (testing::Test::HasFailure())
        std::abort();
    ResetProgram();
    return 0;
}
