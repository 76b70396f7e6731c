// The common controls that Quorl uses.
#pragma once

#include "windows.h"

void WINAPI InitCommonControls();

constexpr UINT LVM_FIRST = 0x1000;
constexpr UINT LVM_SCROLL = LVM_FIRST + 20;
