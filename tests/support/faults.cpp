// Each platform call of a story fails once.
#include "support/faults.h"

#include "support/quorl_test.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

namespace {

enum Outcome { HELD, BROKEN, NOTHING_FAILED }; // the exit code of a story's process

} // namespace

constexpr unsigned PATIENCE = 30; // seconds

static Outcome Tell(const std::function<void()>& story, int nth) {
    alarm(PATIENCE);
    Desk.fault = {"", nth, 0, 87, 0};
    const std::size_t before = Desk.trace.size();
    story();
    if (!testing::Test::HasFailure())
        return Desk.fault.hits ? HELD : NOTHING_FAILED;
    if (Desk.fault.hits)
        std::printf("The call that failed was %s.\n", Desk.trace[before + static_cast<std::size_t>(nth) - 1]);
    std::fflush(stdout);
    return BROKEN;
}

static int Outlive(pid_t process) {
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : BROKEN;
}

int FailEachCall(const std::function<void()>& story) {
    for (int nth = 1;; ++nth) {
        const pid_t process = fork();
        if (process == 0)
            _exit(Tell(story, nth));
        const int outcome = Outlive(process);
        if (outcome == NOTHING_FAILED)
            return nth - 1;
        EXPECT_EQ(outcome, HELD) << "with call " << nth << " failing";
        if (outcome != HELD)
            return nth;
    }
}

bool HoldsInItsOwnProcess(const std::function<void()>& story) {
    const pid_t process = fork();
    if (process == 0) {
        alarm(PATIENCE);
        story();
        std::fflush(stdout);
        _exit(testing::Test::HasFailure() ? BROKEN : HELD);
    }
    return Outlive(process) == HELD;
}
