// The Windows calls that Quorl makes, declared for a desktop held in memory (see desk/desk.h).
#pragma once

#include "win/types.h"

#include "win/dialogs.h"
#include "win/drawing.h"
#include "win/input.h"
#include "win/menus.h"
#include "win/messages.h"
#include "win/system.h"
#include "win/windows.h"
