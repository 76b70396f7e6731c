// Parses the dialog templates of the resource script. Supports what that script uses, nothing more.
#include "templates.h"

#include "controls.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

namespace {

// The script as tokens: names, numbers, texts (which begin with a quotation mark) and "|".
struct Script {
    std::vector<std::string> tokens;
    std::size_t next = 0;
    std::map<std::string, int> numbers = {{"IDOK", IDOK}, {"IDCANCEL", IDCANCEL}}; // and of included headers
};

} // namespace

// clang-format off
static const std::map<std::string, DWORD> Styles = {
    {"BS_AUTOCHECKBOX",      BS_AUTOCHECKBOX},
    {"BS_AUTORADIOBUTTON",   BS_AUTORADIOBUTTON},
    {"BS_BITMAP",            0x80},
    {"BS_CENTER",            0x300},
    {"BS_DEFPUSHBUTTON",     BS_DEFPUSHBUTTON},
    {"BS_GROUPBOX",          BS_GROUPBOX},
    {"BS_ICON",              0x40},
    {"BS_LEFTTEXT",          0x20},
    {"BS_PUSHBUTTON",        0},
    {"BS_VCENTER",           0xC00},
    {"CBS_DROPDOWNLIST",     3},
    {"DS_CENTER",            DS_CENTER},
    {"DS_MODALFRAME",        DS_MODALFRAME},
    {"DS_SETFONT",           0x40},
    {"DS_SHELLFONT",         0x48},
    {"ES_AUTOHSCROLL",       0x80},
    {"ES_AUTOVSCROLL",       0x40},
    {"ES_CENTER",            1},
    {"ES_MULTILINE",         ES_MULTILINE},
    {"ES_NUMBER",            ES_NUMBER},
    {"ES_READONLY",          ES_READONLY},
    {"LBS_NOINTEGRALHEIGHT", 0x100},
    {"LBS_NOTIFY",           LBS_NOTIFY},
    {"LBS_SORT",             LBS_SORT},
    {"LVS_NOSORTHEADER",     0x8000},
    {"LVS_OWNERDATA",        0x1000},
    {"LVS_REPORT",           1},
    {"LVS_SHOWSELALWAYS",    8},
    {"LVS_SINGLESEL",        4},
    {"SS_BITMAP",            14},
    {"SS_CENTER",            1},
    {"SS_LEFT",              0},
    {"SS_LEFTNOWORDWRAP",    12},
    {"SS_NOPREFIX",          0x80},
    {"SS_RIGHT",             2},
    {"TBS_HORZ",             0},
    {"TBS_NOTICKS",          16},
    {"TCS_HOTTRACK",         64},
    {"WS_BORDER",            WS_BORDER},
    {"WS_CAPTION",           WS_CAPTION},
    {"WS_CHILD",             WS_CHILD},
    {"WS_CLIPSIBLINGS",      0x04000000},
    {"WS_DISABLED",          WS_DISABLED},
    {"WS_EX_TOOLWINDOW",     WS_EX_TOOLWINDOW},
    {"WS_GROUP",             WS_GROUP},
    {"WS_HSCROLL",           0x00100000},
    {"WS_POPUP",             WS_POPUP},
    {"WS_SYSMENU",           0x00080000},
    {"WS_TABSTOP",           WS_TABSTOP},
    {"WS_THICKFRAME",        WS_THICKFRAME},
    {"WS_VISIBLE",           WS_VISIBLE},
    {"WS_VSCROLL",           0x00200000},
};
// clang-format on

static bool ParseInteger(const std::string& text, int* number) {
    char* end = nullptr;
    *number = static_cast<int>(std::strtol(text.c_str(), &end, 0));
    return !text.empty() && !*end;
}

[[noreturn]] static void FailToParse(const char* reason, const std::string& found) {
    std::fprintf(stderr, "%s: %s \"%s\"\n", DIALOG_TEMPLATES, reason, found.c_str());
    std::abort();
}

static std::string ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        FailToParse("cannot read", path);
    return {std::istreambuf_iterator<char>(file), {}};
}

// Of an included header only the lines `#define NAME NUMBER` are read.
static void ReadDefines(const std::string& path, std::map<std::string, int>& numbers) {
    std::istringstream header(ReadFile(path));
    for (std::string line; std::getline(header, line);) {
        std::istringstream words(line);
        std::string directive, name, value;
        words >> directive >> name >> value;
        int number = 0;
        if (directive == "#define" && ParseInteger(value, &number))
            numbers[name] = number;
    }
}

// The path of an include line is relative to the script.
static void ReadDirective(const std::string& line, std::map<std::string, int>& numbers) {
    const std::size_t open = line.find('"');
    if (!line.starts_with("#include") || open == std::string::npos)
        return;
    const std::string script = DIALOG_TEMPLATES;
    const std::string name = line.substr(open + 1, line.find('"', open + 1) - open - 1);
    ReadDefines(script.substr(0, script.rfind('/') + 1) + name, numbers);
}

// Quotation marks inside a text are doubled; \n is the only other escape.
static std::string TextAt(const std::string& script, std::size_t& at) {
    std::string text = "\"";
    for (++at; at < script.size(); ++at) {
        if (script[at] == '"' && script[++at] != '"')
            return text;
        const bool isNewLine = script.compare(at, 2, "\\n") == 0;
        text += isNewLine ? '\n' : script[at];
        at += isNewLine;
    }
    FailToParse("unterminated text", text);
}

static std::string WordAt(const std::string& script, std::size_t& at) {
    const std::size_t start = at;
    while (at < script.size() &&
           (std::isalnum(static_cast<unsigned char>(script[at])) || script[at] == '_' || script[at] == '-'))
        ++at;
    if (at == start)
        FailToParse("unexpected characters", script.substr(start, 20));
    return script.substr(start, at - start);
}

static bool IsIgnored(char letter) {
    return letter == ',' || std::isspace(static_cast<unsigned char>(letter));
}

static Script Tokenize() {
    const std::string text = ReadFile(DIALOG_TEMPLATES);
    Script script;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t lineEnd = std::min(text.find('\n', at), text.size());
        if (IsIgnored(text[at])) {
            ++at;
        } else if (text.compare(at, 2, "//") == 0 || text[at] == '#') {
            ReadDirective(text.substr(at, lineEnd - at), script.numbers);
            at = lineEnd;
        } else if (text[at] == '|') {
            script.tokens.emplace_back(1, text[at++]);
        } else {
            script.tokens.push_back(text[at] == '"' ? TextAt(text, at) : WordAt(text, at));
        }
    }
    return script;
}

static const std::string& Peek(const Script& script) {
    static const std::string end;
    return script.next < script.tokens.size() ? script.tokens[script.next] : end;
}

static std::string Next(Script& script) {
    if (script.next >= script.tokens.size())
        FailToParse("ends too early", "");
    return script.tokens[script.next++];
}

static int NextNumber(Script& script) {
    const std::string token = Next(script);
    int number = 0;
    if (ParseInteger(token, &number))
        return number;
    const auto found = script.numbers.find(token);
    if (found == script.numbers.end())
        FailToParse("expected a number, found", token);
    return found->second;
}

// Empty for the number of a picture, which may stand in place of a text.
static std::string NextText(Script& script) {
    const std::string token = Next(script);
    return token.starts_with('"') ? token.substr(1) : "";
}

static DWORD NextStyles(Script& script, DWORD styles) {
    for (;;) {
        const bool negated = Peek(script) == "NOT";
        script.next += static_cast<std::size_t>(negated);
        const std::string name = Next(script);
        const auto found = Styles.find(name);
        if (found == Styles.end())
            FailToParse("unknown style", name);
        styles = negated ? styles & ~found->second : styles | found->second;
        if (Peek(script) != "|")
            return styles;
        ++script.next;
    }
}

static DialogRect NextRect(Script& script) {
    const int x = NextNumber(script);
    const int y = NextNumber(script);
    const int width = NextNumber(script);
    return {x, y, width, NextNumber(script)};
}

// Controls are visible unless their line says NOT WS_VISIBLE. Extended styles are optional.
static ControlTemplate NextControl(Script& script) {
    ControlTemplate control{};
    control.text = NextText(script);
    control.id = NextNumber(script);
    control.className = NextText(script);
    control.style = NextStyles(script, WS_CHILD | WS_VISIBLE);
    control.rect = NextRect(script);
    if (Peek(script).starts_with("WS_EX_"))
        control.exStyle = NextStyles(script, 0);
    return control;
}

static void ReadControls(Script& script, DialogTemplate& dialog) {
    for (std::string token = Next(script); token != "END"; token = Next(script)) {
        if (token != "CONTROL")
            FailToParse("expected CONTROL, found", token);
        dialog.controls.push_back(NextControl(script));
    }
}

// The only font whose dialog units are known here; see BASE_WIDTH in dialogs.cpp.
static void CheckFont(Script& script) {
    const int points = NextNumber(script);
    const std::string face = NextText(script);
    if (points != 8 || face != "MS Shell Dlg")
        FailToParse("unknown font", std::to_string(points) + " " + face);
}

static DialogTemplate NextDialog(Script& script) {
    DialogTemplate dialog;
    dialog.rect = NextRect(script);
    for (std::string token = Next(script); token != "BEGIN"; token = Next(script)) {
        if (token == "STYLE")
            dialog.style = NextStyles(script, 0);
        else if (token == "EXSTYLE")
            dialog.exStyle = NextStyles(script, 0);
        else if (token == "CAPTION")
            dialog.title = NextText(script);
        else if (token == "FONT")
            CheckFont(script);
        else
            FailToParse("unknown dialog statement", token);
    }
    ReadControls(script, dialog);
    return dialog;
}

static std::map<int, DialogTemplate> ReadTemplates() {
    std::map<int, DialogTemplate> templates;
    for (Script script = Tokenize(); script.next < script.tokens.size();) {
        const int id = NextNumber(script);
        if (Next(script) != "DIALOGEX")
            FailToParse("expected DIALOGEX at number", std::to_string(id));
        templates[id] = NextDialog(script);
    }
    return templates;
}

const DialogTemplate* FindTemplate(int id) {
    static const std::map<int, DialogTemplate> templates = ReadTemplates();
    const auto found = templates.find(id);
    return found == templates.end() ? nullptr : &found->second;
}
