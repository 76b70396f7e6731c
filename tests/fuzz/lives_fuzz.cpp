// The fuzzer of whole days with Quorl.
#include "fuzz/shared_coverage.h"
#include "lives/life.h"

void (*const Fuzzed)(std::string_view input) = Live;
