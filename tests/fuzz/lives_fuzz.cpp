// libFuzzer's door to whole days with Quorl.
#include "fuzz/shared_coverage.h"
#include "lives/life.h"
#include "support/quorl_test.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Desk.bTrace = 0;
    TryInput([=] { Live({reinterpret_cast<const char*>(data), size}); });
    return 0;
}
