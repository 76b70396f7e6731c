// The fuzzers' test functions. Each call needs a new process or ResetProgram.
#pragma once

#include <string_view>

// Any bytes as the settings file: loads, saves, loads and saves again. Bit 0 of the first byte: the file is
// there at startup rather than loaded later. Bit 1: the rest follows foreign lines in Quorl's own section.
void TestSettings(std::string_view input);

// Bytes as a sequence of random steps of the user, of other programs and of the system, with exit or log-off
// as the end. Checks after each step and at the end what must always hold.
void TestSession(std::string_view input);

// The same; if the first byte asks for it, also that the next start finds what was saved.
void TestRun(std::string_view input);
