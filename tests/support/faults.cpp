// Each platform call of a story fails once.
#include "support/faults.h"

#include "support/quorl_test.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

enum Outcome { HELD, BROKEN, NOTHING_FAILED }; // the exit code of a story's process

constexpr unsigned PATIENCE = 30; // seconds

static int InItsOwnProcess(const std::function<Outcome()>& story) {
    const pid_t process = fork();
    if (process == 0) {
        alarm(PATIENCE);
        const Outcome outcome = story();
        std::fflush(stdout);
        _exit(testing::Test::HasFailure() ? BROKEN : outcome);
    }
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : BROKEN;
}

int FailEachCall(const std::function<void()>& story) {
    int nth = 0, outcome = HELD;
    while (outcome == HELD) {
        ++nth;
        outcome = InItsOwnProcess([&] {
            Desk.fault = {"", nth, 0, 87, 0};
            story();
            return Desk.fault.hits ? HELD : NOTHING_FAILED;
        });
    }
    EXPECT_EQ(outcome, NOTHING_FAILED) << "with call " << nth << " failing";
    return nth - 1;
}

bool HoldsInItsOwnProcess(const std::function<void()>& story) {
    return InItsOwnProcess([&] { return story(), HELD; }) == HELD;
}
