// Private profile files, stored as text and searched line by line as Windows does.
#include "internal.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <unordered_map>

namespace {

struct Line {
    std::size_t start; // offset in the text
    std::size_t end;   // after the last character, without the line break
};

// The text of a file and the lines of one of its sections.
struct Section {
    std::string text;
    std::string name;
    std::size_t start;                             // offset after its heading, or npos
    std::size_t end;                               // offset after its last non-blank line
    std::unordered_map<std::string, Line> entries; // by lower-case key; the first of that name
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

// Quotes around the whole value are not part of it.
static std::string_view WithoutQuotes(std::string_view value) {
    const bool quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

static std::size_t EqualsSign(const std::string& text, const Line& line) {
    return std::min(text.find('=', line.start), line.end);
}

static void ReadSection(Section* section) {
    const std::string& text = section->text;
    section->entries.clear();
    section->start = section->end = SectionStart(text, section->name);
    for (std::size_t at = section->start; at < text.size(); at = NextLine(text, at)) {
        const Line line = LineAt(text, at);
        if (IsHeading(text, line))
            break;
        if (!Trimmed(text, line.start, line.end).empty())
            section->end = NextLine(text, at);
        if (const std::size_t equals = EqualsSign(text, line); equals != line.end)
            section->entries.emplace(LowerCase(std::string(Trimmed(text, line.start, equals))), line);
    }
}

// The section read last is kept: a program reads and writes many keys of the same one.
static Section& SectionOf(const std::string& text, const std::string& name) {
    static Section kept;
    if (kept.text != text || kept.name != name) {
        kept.text = text;
        kept.name = name;
        ReadSection(&kept);
    }
    return kept;
}

// Empty without such an entry.
static std::optional<std::string> FindValue(LPCSTR name, LPCSTR key, LPCSTR file) {
    const auto content = Desk.files.find(FileKey(file));
    if (content == Desk.files.end())
        return {};
    const Section& section = SectionOf(content->second, name);
    const auto found = section.entries.find(LowerCase(key));
    if (found == section.entries.end())
        return {};
    const Line& line = found->second;
    const std::string& text = section.text;
    return std::string(WithoutQuotes(Trimmed(text, EqualsSign(text, line) + 1, line.end)));
}

DWORD GetPrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR absent, LPSTR text, DWORD size,
                               LPCSTR file) {
    std::optional<std::string> value;
    if (!CallFails("GetPrivateProfileStringA"))
        value = FindValue(section, key, file);
    return static_cast<DWORD>(CopyText(value.value_or(absent), text, static_cast<int>(size)));
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
    std::optional<std::string> value;
    if (!CallFails("GetPrivateProfileIntA"))
        value = FindValue(section, key, file);
    return value.value_or("").empty() ? static_cast<UINT>(absent) : NumberIn(*value);
}

// Replaces a line of the section, or adds one where `line` is empty.
static void PutLine(Section* section, const std::string& lowerKey, const Line& line,
                    const std::string& replacement) {
    const std::size_t before = section->text.size();
    section->text.replace(line.start, line.end - line.start, replacement);
    if (replacement.find('\n') < replacement.size() - 2)
        return ReadSection(section);                         // the value has several lines
    const std::size_t added = section->text.size() - before; // modulo 2^64, as all offsets
    if (added && section->end != line.start)
        for (auto& [name, later] : section->entries)
            if (later.start > line.start)
                later = {later.start + added, later.end + added};
    section->end += added;
    section->entries[lowerKey] = LineAt(section->text, line.start);
}

// Text is converted to Unicode on its way to the file: two bytes that are no letter become another character,
// and half a letter at the end is dropped.
static std::string WithoutHalfLetters(std::string text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (!IsDBCSLeadByte(static_cast<BYTE>(text[at])))
            continue;
        const bool isLast = at + 1 == text.size();
        if (isLast || static_cast<BYTE>(text[at + 1]) < 0x40)
            text.replace(at, 2, isLast ? "" : "?");
        else
            ++at;
    }
    return text;
}

BOOL WritePrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR text, LPCSTR file) {
    if (CallFails("WritePrivateProfileStringA"))
        return FALSE;
    const std::string& path = FileKey(file);
    if (Desk.protectedFiles.contains(path)) {
        SetLastError(ERROR_ACCESS_DENIED);
        return FALSE;
    }
    const std::string value = WithoutHalfLetters(text);
    std::string& content = Desk.files[path];
    const std::string lowerKey = LowerCase(key);
    Section& stored = SectionOf(content, section);
    const auto found = stored.entries.find(lowerKey);
    const bool isNew = found == stored.entries.end();
    if (isNew && !content.empty() && content.back() != '\n')
        content += "\r\n";
    if (isNew && stored.start == std::string::npos)
        content += "[" + std::string(section) + "]\r\n";
    Section& extended = isNew ? SectionOf(content, section) : stored;
    const Line target = isNew ? Line{extended.end, extended.end} : found->second;
    std::string line = key;
    line += '=';
    line += value;
    line += isNew ? "\r\n" : "";
    content.replace(target.start, target.end - target.start, line);
    PutLine(&extended, lowerKey, target, line);
    return TRUE;
}
