// Declares the Windows calls Quorl uses, implemented by the in-memory desktop (see desk/desk.h).
#pragma once

#include "win/types.h"

#include "win/dialogs.h"
#include "win/drawing.h"
#include "win/input.h"
#include "win/menus.h"
#include "win/messages.h"
#include "win/system.h"
#include "win/windows.h"
