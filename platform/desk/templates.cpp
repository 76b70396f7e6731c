// Reads the dialogs' templates out of the resource script, as far as the script goes.
#include "templates.h"

#include "controls.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace {

// The script in pieces: names, numbers, texts (which begin with a quotation mark) and "|".
struct Script {
    std::vector<std::string> pieces;
    std::size_t at = 0;
};

} // namespace

static const std::map<std::string, DWORD> Styles = {
    {"BS_AUTOCHECKBOX",      BS_AUTOCHECKBOX   },
    {"BS_AUTORADIOBUTTON",   BS_AUTORADIOBUTTON},
    {"BS_BITMAP",            0x80              },
    {"BS_CENTER",            0x300             },
    {"BS_DEFPUSHBUTTON",     BS_DEFPUSHBUTTON  },
    {"BS_GROUPBOX",          BS_GROUPBOX       },
    {"BS_ICON",              0x40              },
    {"BS_LEFTTEXT",          0x20              },
    {"BS_PUSHBUTTON",        0                 },
    {"BS_VCENTER",           0xC00             },
    {"CBS_DROPDOWNLIST",     3                 },
    {"DS_CENTER",            DS_CENTER         },
    {"DS_MODALFRAME",        DS_MODALFRAME     },
    {"DS_SETFONT",           0x40              },
    {"DS_SHELLFONT",         0x48              },
    {"ES_AUTOHSCROLL",       0x80              },
    {"ES_AUTOVSCROLL",       0x40              },
    {"ES_CENTER",            1                 },
    {"ES_MULTILINE",         ES_MULTILINE      },
    {"ES_NUMBER",            ES_NUMBER         },
    {"ES_READONLY",          ES_READONLY       },
    {"LBS_NOINTEGRALHEIGHT", 0x100             },
    {"LBS_NOTIFY",           LBS_NOTIFY        },
    {"LBS_SORT",             LBS_SORT          },
    {"LVS_NOSORTHEADER",     0x8000            },
    {"LVS_OWNERDATA",        0x1000            },
    {"LVS_REPORT",           1                 },
    {"LVS_SHOWSELALWAYS",    8                 },
    {"LVS_SINGLESEL",        4                 },
    {"SS_BITMAP",            14                },
    {"SS_CENTER",            1                 },
    {"SS_LEFT",              0                 },
    {"SS_LEFTNOWORDWRAP",    12                },
    {"SS_NOPREFIX",          0x80              },
    {"SS_RIGHT",             2                 },
    {"TBS_HORZ",             0                 },
    {"TBS_NOTICKS",          16                },
    {"TCS_HOTTRACK",         64                },
    {"WS_BORDER",            WS_BORDER         },
    {"WS_CAPTION",           WS_CAPTION        },
    {"WS_CHILD",             WS_CHILD          },
    {"WS_CLIPSIBLINGS",      0x04000000        },
    {"WS_DISABLED",          WS_DISABLED       },
    {"WS_EX_TOOLWINDOW",     WS_EX_TOOLWINDOW  },
    {"WS_GROUP",             WS_GROUP          },
    {"WS_HSCROLL",           0x00100000        },
    {"WS_POPUP",             WS_POPUP          },
    {"WS_SYSMENU",           0x00080000        },
    {"WS_TABSTOP",           WS_TABSTOP        },
    {"WS_THICKFRAME",        WS_THICKFRAME     },
    {"WS_VISIBLE",           WS_VISIBLE        },
    {"WS_VSCROLL",           0x00200000        },
};

[[noreturn]] static void GiveUp(const char* why, const std::string& what) {
    std::fprintf(stderr, "%s: %s \"%s\"\n", DIALOG_TEMPLATES, why, what.c_str());
    std::abort();
}

static std::string WholeFile() {
    std::ifstream file(DIALOG_TEMPLATES, std::ios::binary);
    if (!file)
        GiveUp("cannot be read", "");
    return {std::istreambuf_iterator<char>(file), {}};
}

// A quotation mark inside a text is doubled; \n is the only other escape.
static std::string TextAt(const std::string& script, std::size_t& at) {
    std::string text = "\"";
    for (++at; at < script.size(); ++at) {
        if (script[at] == '"' && script[++at] != '"')
            return text;
        const bool bNewLine = script.compare(at, 2, "\\n") == 0;
        text += bNewLine ? '\n' : script[at];
        at += bNewLine;
    }
    GiveUp("a text does not end", text);
}

static std::string WordAt(const std::string& script, std::size_t& at) {
    const std::size_t start = at;
    while (at < script.size() &&
           (std::isalnum(static_cast<unsigned char>(script[at])) || script[at] == '_' || script[at] == '-'))
        ++at;
    if (at == start)
        GiveUp("cannot be understood", script.substr(start, 20));
    return script.substr(start, at - start);
}

static int IsIgnored(char letter) {
    return letter == ',' || std::isspace(static_cast<unsigned char>(letter));
}

static Script ReadPieces() {
    const std::string text = WholeFile();
    Script script;
    for (std::size_t at = 0; at < text.size();) {
        if (IsIgnored(text[at]))
            ++at;
        else if (text.compare(at, 2, "//") == 0 || text[at] == '#')
            at = std::min(text.find('\n', at), text.size());
        else if (text[at] == '|')
            script.pieces.emplace_back(1, text[at++]);
        else
            script.pieces.push_back(text[at] == '"' ? TextAt(text, at) : WordAt(text, at));
    }
    return script;
}

static const std::string& Peek(const Script& script) {
    static const std::string end;
    return script.at < script.pieces.size() ? script.pieces[script.at] : end;
}

static std::string Next(Script& script) {
    if (script.at >= script.pieces.size())
        GiveUp("ends too early", "");
    return script.pieces[script.at++];
}

static int NextNumber(Script& script) {
    const std::string piece = Next(script);
    char* end = nullptr;
    const long number = std::strtol(piece.c_str(), &end, 0);
    if (*end)
        GiveUp("is no number:", piece);
    return static_cast<int>(number);
}

// A text, or the number of a picture, which is no text here.
static std::string NextText(Script& script) {
    const std::string piece = Next(script);
    return piece.starts_with('"') ? piece.substr(1) : "";
}

static DWORD NextStyles(Script& script, DWORD styles) {
    for (;;) {
        const int bNot = Peek(script) == "NOT";
        script.at += static_cast<std::size_t>(bNot);
        const std::string name = Next(script);
        const auto found = Styles.find(name);
        if (found == Styles.end())
            GiveUp("has a style that nobody here knows:", name);
        styles = bNot ? styles & ~found->second : styles | found->second;
        if (Peek(script) != "|")
            return styles;
        ++script.at;
    }
}

static DeskUnits NextPlace(Script& script) {
    const int x = NextNumber(script);
    const int y = NextNumber(script);
    const int width = NextNumber(script);
    return {x, y, width, NextNumber(script)};
}

// A control is in sight unless its line says NOT WS_VISIBLE. Its extended styles may be left out.
static ControlTemplate NextControl(Script& script) {
    ControlTemplate control{};
    control.text = NextText(script);
    control.id = NextNumber(script);
    control.className = NextText(script);
    control.style = NextStyles(script, WS_CHILD | WS_VISIBLE);
    control.place = NextPlace(script);
    if (Peek(script).starts_with("WS_EX_"))
        control.exStyle = NextStyles(script, 0);
    return control;
}

static void ReadControls(Script& script, DialogTemplate& dialog) {
    for (std::string piece = Next(script); piece != "END"; piece = Next(script)) {
        if (piece != "CONTROL")
            GiveUp("is no control:", piece);
        dialog.controls.push_back(NextControl(script));
    }
}

static DialogTemplate NextDialog(Script& script) {
    DialogTemplate dialog;
    dialog.place = NextPlace(script);
    for (std::string piece = Next(script); piece != "BEGIN"; piece = Next(script)) {
        if (piece == "STYLE")
            dialog.style = NextStyles(script, 0);
        else if (piece == "EXSTYLE")
            dialog.exStyle = NextStyles(script, 0);
        else if (piece == "CAPTION")
            dialog.title = NextText(script);
        else if (piece == "FONT")
            script.at += 2;
        else
            GiveUp("is nothing that a dialog has:", piece);
    }
    ReadControls(script, dialog);
    return dialog;
}

static std::map<int, DialogTemplate> ReadTemplates() {
    std::map<int, DialogTemplate> templates;
    for (Script script = ReadPieces(); script.at < script.pieces.size();) {
        const int id = NextNumber(script);
        if (Next(script) != "DIALOGEX")
            GiveUp("has something else than a dialog at number", std::to_string(id));
        templates[id] = NextDialog(script);
    }
    return templates;
}

const DialogTemplate* TemplateOf(int id) {
    static const std::map<int, DialogTemplate> templates = ReadTemplates();
    const auto found = templates.find(id);
    return found == templates.end() ? nullptr : &found->second;
}
