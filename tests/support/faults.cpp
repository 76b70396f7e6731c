#include "support/faults.h"

#include "fuzz/reset.h"
#include "support/quorl_test.h"

#include <string>

int FailEachCall(void (*prepare)(), void (*scenario)()) {
    int nth = 0;
    bool hit = true;
    while (hit && !testing::Test::HasFailure()) {
        ++nth;
        SCOPED_TRACE("call " + std::to_string(nth) + " fails");
        ResetProgram();
        prepare();
        Desk.fault = {"", nth, 0, 87, 0};
        scenario();
        hit = Desk.fault.hits;
        FreeControls();
    }
    return nth - 1;
}
