// Each input of a fuzzer runs in a process of its own, since Quorl's state lives for a whole process.
#pragma once

#include <functional>

// Runs it so, and lets libFuzzer see what that process counts of covered code. Aborts if it does not hold.
void TryInput(const std::function<void()>& input);
