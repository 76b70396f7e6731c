#include "core/letters.h"

#include "core/platform.h"

#include <algorithm>

std::size_t LetterSize(char first) {
    return IsDBCSLeadByte(static_cast<BYTE>(first)) ? 2 : 1;
}

std::size_t WholeLetters(const char* text, std::size_t limit) {
    const auto end = static_cast<std::size_t>(std::find(text, text + limit, '\0') - text);
    std::size_t length = 0;
    while (length < end && length + LetterSize(text[length]) <= end)
        length += LetterSize(text[length]);
    return length;
}
