// Failing platform calls one by one.
#pragma once

// Runs the scenario repeatedly, from the first state and after `prepare`: once with its first platform call
// failing, once with its second, until no call is left or an expectation fails. Returns the number of calls
// that failed.
int FailEachCall(void (*prepare)(), void (*scenario)());
