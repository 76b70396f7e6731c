// Each input of a fuzzer runs in a process of its own, since Quorl's state lives for a whole process.
#pragma once

// What those processes count of covered code is seen by libFuzzer here. Once, before the first of them.
void ShareCoverage();
