// A day with Quorl, made of bytes: what the user, the other programs and the system do, one act after the
// other.
#pragma once

#include <string_view>

// Lives the day in this process, which must be fresh, and expects after each act and at the end what must
// hold whatever happens. The same bytes are the same day.
void Live(std::string_view bytes);
