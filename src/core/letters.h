// Letters of a text in the ANSI code page. In those of East Asia a letter may have two bytes, and the second
// one may be '|'.
#pragma once

#include <cstddef>

// Bytes of the letter that starts with this byte: 1 or 2. The text may end within it.
std::size_t LetterSize(char first);

// Bytes of the letters at the start of a text that fit whole into `limit` bytes.
std::size_t WholeLetters(const char* text, std::size_t limit);
