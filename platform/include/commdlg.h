// The common dialogs that Quorl uses.
#pragma once

#include "windows.h"
