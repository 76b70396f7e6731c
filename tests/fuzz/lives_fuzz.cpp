// libFuzzer's door to whole days with Quorl.
#include "lives/life.h"
#include "support/faults.h"
#include "support/quorl_test.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Desk.bTrace = 0;
    if (!HoldsInItsOwnProcess([=] { Live({reinterpret_cast<const char*>(data), size}); }))
        std::abort();
    return 0;
}
