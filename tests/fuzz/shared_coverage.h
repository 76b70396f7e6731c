#pragma once

#include <string_view>

// What the fuzzer does with an input; each fuzzer has one. It aborts when an expectation does not hold.
extern void (*const Fuzzed)(std::string_view input);
