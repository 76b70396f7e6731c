// Bad luck, tried at every place: each platform call of a story fails once.
#pragma once

#include <functional>

// Runs the story again and again, each time in a process of its own, with its first platform call failing,
// then its second, and so on until no call is left to fail. An expectation of the story that does not hold, a
// crash and a story that does not end within half a minute fail the test and tell which it was. Gives the
// number of calls after whose failure it held.
int FailEachCall(const std::function<void()>& story);

// Runs the story in a process of its own. False when an expectation does not hold, and after a crash or half
// a minute.
bool HoldsInItsOwnProcess(const std::function<void()>& story);
