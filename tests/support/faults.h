// Failing platform calls one by one.
#pragma once

#include <functional>

// Runs the scenario repeatedly, each time in a child process and on all cores: once with its first platform
// call failing, once with its second, until no call is left. The test fails, naming the call, if an
// expectation of the scenario fails, or if it crashes or runs longer than 30 seconds. Returns the number of
// calls that failed.
int FailEachCall(const std::function<void()>& scenario);
