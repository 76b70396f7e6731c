// The shell's calls that Quorl makes.
#pragma once

#include "windows.h"
