// Shared by the benchmarks on the in-memory desktop.
#pragma once

// Starts Quorl once per process, with recording off.
void RunQuorl();

// Starts Quorl if necessary and opens or closes other programs' windows until there are `count`; the first is
// active.
void RunWithWindows(int count);

// Register the benchmarks of the other files.
void RegisterMapMouse();
void RegisterSettings();
