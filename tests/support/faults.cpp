// Runs scenarios in child processes, because Quorl can start only once in each.
#include "support/faults.h"

#include "support/quorl_test.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <queue>
#include <thread>

enum Outcome { PASSED, FAILED, NO_CALL_FAILED }; // exit code of the child

constexpr unsigned TIMEOUT = 30; // seconds

// Starts the scenario in a child process, with its nth platform call failing.
static pid_t StartChild(int nth, const std::function<void()>& scenario) {
    const pid_t process = fork();
    if (process == 0) {
        alarm(TIMEOUT);
        Desk.fault = {"", nth, 0, 87, 0};
        scenario();
        std::fflush(stdout);
        _exit(testing::Test::HasFailure() ? FAILED : Desk.fault.hits ? PASSED : NO_CALL_FAILED);
    }
    return process;
}

static int OutcomeOf(pid_t process) {
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : FAILED;
}

int FailEachCall(const std::function<void()>& scenario) {
    const unsigned cores = std::thread::hardware_concurrency();
    std::queue<pid_t> children;
    int nth = 0, last = 0, outcome = PASSED;
    for (; outcome == PASSED; ++nth) {
        while (children.size() <= cores)
            children.push(StartChild(++last, scenario));
        outcome = OutcomeOf(children.front());
        children.pop();
    }
    EXPECT_EQ(outcome, NO_CALL_FAILED) << "with call " << nth << " failing";
    return nth - 1;
}
