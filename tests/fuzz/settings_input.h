// One input of the fuzzer of settings files, also tried by the tests.
#pragma once

#include <string_view>

// Bit 0 of the first byte: the file is there at the start, rather than loaded while Quorl runs. Bit 1: the
// rest stands behind foreign lines, in Quorl's own section. All else is the file. Loads, saves, loads and
// saves again, and expects what must hold then. Once in a process: Quorl is started for it.
void TrySettings(std::string_view input);
