// libFuzzer's door to whole days with Quorl.
#include "fuzz/shared_coverage.h"

#include "lives/life.h"
#include "support/faults.h"
#include "support/quorl_test.h"

#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    ShareCoverage();
    PrepareDesk();
    Desk.bTrace = 0;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (!HoldsInItsOwnProcess([data, size] { Live(data, size); }))
        std::abort();
    return 0;
}
