// Runs scenarios in child processes, because Quorl can start only once in each.
#include "support/faults.h"

#include "support/quorl_test.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

enum Outcome { PASSED, FAILED, NO_CALL_FAILED }; // exit code of the child

constexpr unsigned TIMEOUT = 30; // seconds

static int RunInChild(const std::function<Outcome()>& scenario) {
    const pid_t process = fork();
    if (process == 0) {
        alarm(TIMEOUT);
        const Outcome outcome = scenario();
        std::fflush(stdout);
        _exit(testing::Test::HasFailure() ? FAILED : outcome);
    }
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : FAILED;
}

int FailEachCall(const std::function<void()>& scenario) {
    int nth = 0, outcome = PASSED;
    while (outcome == PASSED) {
        ++nth;
        outcome = RunInChild([&] {
            Desk.fault = {"", nth, 0, 87, 0};
            scenario();
            return Desk.fault.hits ? PASSED : NO_CALL_FAILED;
        });
    }
    EXPECT_EQ(outcome, NO_CALL_FAILED) << "with call " << nth << " failing";
    return nth - 1;
}

bool PassesInOwnProcess(const std::function<void()>& scenario) {
    return RunInChild([&] { return scenario(), PASSED; }) == PASSED;
}
