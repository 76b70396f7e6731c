// Private profile files, stored as text and searched line by line as Windows does.
#include "internal.h"

#include <algorithm>
#include <string_view>

namespace {

struct Line {
    std::size_t start; // offset in the text
    std::size_t end;   // after the last character, without the line break
};

struct Entry {
    Line line;
    std::string value;
};

} // namespace

static Line LineAt(const std::string& text, std::size_t start) {
    const std::size_t end = text.find('\n', start);
    Line line{start, end == std::string::npos ? text.size() : end};
    if (end != std::string::npos && line.end > line.start && text[line.end - 1] == '\r')
        --line.end;
    return line;
}

static std::size_t NextLine(const std::string& text, std::size_t start) {
    const std::size_t end = text.find('\n', start);
    return end == std::string::npos ? text.size() : end + 1;
}

// A carriage return inside a line is blank.
static bool IsBlank(char letter) {
    return letter == ' ' || letter == '\t' || letter == '\r';
}

static std::string_view Trimmed(const std::string& text, std::size_t from, std::size_t to) {
    while (from < to && IsBlank(text[from]))
        ++from;
    while (to > from && IsBlank(text[to - 1]))
        --to;
    return std::string_view(text).substr(from, to - from);
}

// Case-insensitive. Compares in place because lines can be long.
static bool IsSame(std::string_view text, std::string_view name) {
    const auto lower = [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? letter + ('a' - 'A') : letter;
    };
    return std::ranges::equal(text, name, {}, lower, lower);
}

static bool IsHeading(const std::string& text, const Line& line) {
    return Trimmed(text, line.start, line.end).starts_with('[');
}

// Offset of the first line after the heading, or npos. The first section of that name counts.
static std::size_t SectionStart(const std::string& text, const std::string& section) {
    const std::string heading = "[" + section + "]";
    for (std::size_t at = 0; at < text.size(); at = NextLine(text, at)) {
        const Line line = LineAt(text, at);
        if (IsSame(Trimmed(text, line.start, line.end), heading))
            return NextLine(text, at);
    }
    return std::string::npos;
}

// Offset after the last non-blank line of the section that begins at `at`.
static std::size_t SectionEnd(const std::string& text, std::size_t at) {
    std::size_t end = at;
    for (; at < text.size(); at = NextLine(text, at)) {
        const Line line = LineAt(text, at);
        if (IsHeading(text, line))
            break;
        if (!Trimmed(text, line.start, line.end).empty())
            end = NextLine(text, at);
    }
    return end;
}

// Quotes around the whole value are not part of it.
static std::string_view WithoutQuotes(std::string_view value) {
    const bool quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

static bool FindEntry(const std::string& text, const std::string& section, const std::string& key,
                      Entry* found) {
    for (std::size_t at = SectionStart(text, section); at < text.size(); at = NextLine(text, at)) {
        const Line line = LineAt(text, at);
        if (IsHeading(text, line))
            return false;
        const std::size_t equals = std::min(text.find('=', line.start), line.end);
        if (equals == line.end || !IsSame(Trimmed(text, line.start, equals), key))
            continue;
        *found = {line, std::string(WithoutQuotes(Trimmed(text, equals + 1, line.end)))};
        return true;
    }
    return false; // also without such a section
}

static bool FindStored(LPCSTR section, LPCSTR key, LPCSTR file, Entry* found) {
    const auto content = Desk.files.find(FileKey(file));
    return content != Desk.files.end() && FindEntry(content->second, section, key, found);
}

DWORD GetPrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR absent, LPSTR text, DWORD size,
                               LPCSTR file) {
    Entry entry;
    if (CallFails("GetPrivateProfileStringA") || !FindStored(section, key, file, &entry))
        entry.value = absent;
    return static_cast<DWORD>(CopyText(entry.value, text, static_cast<int>(size)));
}

// Digits after an optional sign; numbers above 32 bits wrap around.
static UINT NumberIn(const std::string& value) {
    const bool negative = !value.empty() && value[0] == '-';
    const bool isSigned = negative || value.starts_with('+');
    UINT number = 0;
    for (std::size_t at = isSigned; at < value.size() && value[at] >= '0' && value[at] <= '9'; ++at)
        number = number * 10 + static_cast<UINT>(value[at] - '0');
    return negative ? 0 - number : number;
}

UINT GetPrivateProfileIntA(LPCSTR section, LPCSTR key, int absent, LPCSTR file) {
    Entry entry;
    if (CallFails("GetPrivateProfileIntA") || !FindStored(section, key, file, &entry) || entry.value.empty())
        return static_cast<UINT>(absent);
    return NumberIn(entry.value);
}

BOOL WritePrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR text, LPCSTR file) {
    if (CallFails("WritePrivateProfileStringA") || Desk.protectedFiles.contains(FileKey(file)))
        return FALSE;
    std::string& content = Desk.files[FileKey(file)];
    const std::string line = std::string(key) + "=" + text;
    Entry entry;
    if (FindEntry(content, section, key, &entry)) {
        content.replace(entry.line.start, entry.line.end - entry.line.start, line);
        return TRUE;
    }
    if (!content.empty() && content.back() != '\n')
        content += "\r\n";
    if (SectionStart(content, section) == std::string::npos)
        content += "[" + std::string(section) + "]\r\n";
    content.insert(SectionEnd(content, SectionStart(content, section)), line + "\r\n");
    return TRUE;
}
