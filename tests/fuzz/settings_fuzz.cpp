// The fuzzer of the settings file.
#include "fuzz/settings_input.h"
#include "fuzz/shared_coverage.h"

void (*const Fuzzed)(std::string_view input) = TrySettings;
