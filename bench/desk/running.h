// A running Quorl on the in-memory desktop, as the benchmarks need it.
#pragma once

// Starts Quorl, once for the whole process; the in-memory desktop writes nothing down.
void RunQuorl();

// Has so many windows of other programs stand on the desktop, the first of them active. Starts Quorl if need
// be.
void RunWithWindows(int count);

// The benchmarks of the other files join the list.
void EnrollMapMouse();
void EnrollSettings();
