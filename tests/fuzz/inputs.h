// The fuzzers' test functions. Quorl's state lasts as long as its process, so each call needs a new one.
#pragma once

#include <string_view>

// Any bytes as the settings file: loads, saves, loads and saves again. Bit 0 of the first byte: the file is
// there at startup rather than loaded later. Bit 1: the rest follows foreign lines in Quorl's own section.
void TestSettings(std::string_view input);

// Bytes as a sequence of random steps of the user, of other programs and of the system. Checks after each
// step and at the end what must always hold.
void TestRun(std::string_view input);
