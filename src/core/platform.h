// Windows, as every file of Quorl includes it.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif

#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>
#include <shellapi.h>
