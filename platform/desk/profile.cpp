// Private profile files, kept as text and searched line by line, as Windows does.
#include "ground.h"

#include <algorithm>

namespace {

struct Line {
    std::size_t start; // in the file's text
    std::size_t end;   // behind the last character, before the line's end
};

struct Entry {
    Line line;
    std::string value;
};

} // namespace

static Line LineAt(const std::string& text, std::size_t start) {
    const std::size_t end = text.find('\n', start);
    Line line{start, end == std::string::npos ? text.size() : end};
    if (line.end > line.start && text[line.end - 1] == '\r')
        --line.end;
    return line;
}

static std::size_t NextLine(const std::string& text, std::size_t start) {
    const std::size_t end = text.find('\n', start);
    return end == std::string::npos ? text.size() : end + 1;
}

static std::string Trimmed(const std::string& text, std::size_t from, std::size_t to) {
    const auto blank = [&text](std::size_t at) { return text[at] == ' ' || text[at] == '\t'; };
    while (from < to && blank(from))
        ++from;
    while (to > from && blank(to - 1))
        --to;
    return text.substr(from, to - from);
}

// Where the lines of a section begin, or npos. The first section of that name counts.
static std::size_t SectionStart(const std::string& text, const std::string& section) {
    const std::string heading = "[" + LowerCase(section) + "]";
    for (std::size_t at = 0; at < text.size(); at = NextLine(text, at)) {
        const Line line = LineAt(text, at);
        if (LowerCase(Trimmed(text, line.start, line.end)) == heading)
            return NextLine(text, at);
    }
    return std::string::npos;
}

// Where the section that begins at `at` ends: behind its last line that is not blank.
static std::size_t SectionEnd(const std::string& text, std::size_t at) {
    std::size_t end = at;
    for (; at < text.size(); at = NextLine(text, at)) {
        const Line line = LineAt(text, at);
        const std::string content = Trimmed(text, line.start, line.end);
        if (!content.empty() && content.front() == '[')
            break;
        if (!content.empty())
            end = NextLine(text, at);
    }
    return end;
}

// Quotes round the whole value are not part of it.
static std::string Unquoted(const std::string& value) {
    const bool quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

static bool FindEntry(const std::string& text, const std::string& section, const std::string& key,
                      Entry* found) {
    std::size_t at = SectionStart(text, section);
    if (at == std::string::npos)
        return false;
    for (const std::size_t end = SectionEnd(text, at); at < end; at = NextLine(text, at)) {
        const Line line = LineAt(text, at);
        const std::size_t equals = std::min(text.find('=', line.start), line.end);
        if (equals == line.end || LowerCase(Trimmed(text, line.start, equals)) != LowerCase(key))
            continue;
        *found = {line, Unquoted(Trimmed(text, equals + 1, line.end))};
        return true;
    }
    return false;
}

static bool Stored(LPCSTR section, LPCSTR key, LPCSTR file, Entry* found) {
    const auto content = Desk.files.find(LowerCase(file));
    return content != Desk.files.end() && FindEntry(content->second, section, key, found);
}

DWORD GetPrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR absent, LPSTR text, DWORD size,
                               LPCSTR file) {
    Entry entry;
    if (Fails("GetPrivateProfileStringA") || !Stored(section, key, file, &entry))
        entry.value = absent;
    return static_cast<DWORD>(CopyText(entry.value, text, static_cast<int>(size)));
}

// Digits behind an optional sign; a number past 32 bits wraps.
static UINT NumberIn(const std::string& value) {
    const bool negative = !value.empty() && value[0] == '-';
    UINT number = 0;
    for (std::size_t at = negative; at < value.size() && value[at] >= '0' && value[at] <= '9'; ++at)
        number = number * 10 + static_cast<UINT>(value[at] - '0');
    return negative ? 0 - number : number;
}

UINT GetPrivateProfileIntA(LPCSTR section, LPCSTR key, int absent, LPCSTR file) {
    Entry entry;
    if (Fails("GetPrivateProfileIntA") || !Stored(section, key, file, &entry) || entry.value.empty())
        return static_cast<UINT>(absent);
    return NumberIn(entry.value);
}

BOOL WritePrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR text, LPCSTR file) {
    if (Fails("WritePrivateProfileStringA"))
        return FALSE;
    std::string& content = Desk.files[LowerCase(file)];
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
