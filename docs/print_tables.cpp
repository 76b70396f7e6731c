// Prints the tables that the help shows, one row per line with tabs between the columns: make_help.py puts
// them into the pages.
#include "actions/action_table.h"
#include "actions/key_names.h"
#include "core/options.h"

#include <climits>
#include <cstdio>
#include <string>

static std::string Modifiers(int mods) {
    std::string text;
    for (const auto& [flag, name] :
         {std::pair{KEY_CTRL, "Ctrl+"}, {KEY_ALT, "Alt+"}, {KEY_SHIFT, "Shift+"}, {KEY_WIN, "Win+"}})
        text += mods & flag ? name : "";
    return text;
}

static std::string KeyCombination(const KeyBinding& key) {
    for (const KeyName& name : KeyNames)
        if (key.mods >= 0 && name.vk == key.vk)
            return Modifiers(key.mods) + name.name;
    return "";
}

static std::string MouseCombination(const MouseBinding& mouse) {
    switch (mouse.button) {
    case LBUTTON: return Modifiers(mouse.mods) + "left button";
    case MBUTTON: return Modifiers(mouse.mods) + "middle button";
    case RBUTTON: return Modifiers(mouse.mods) + "right button";
    default: return ""; // no button: never matches a press
    }
}

// ACTION_SHOW_MENU cannot be put into the menu.
static const char* Offered(const ActionDef& def) {
    if (def.flags == ACTION_OFF)
        return "nowhere";
    if (def.id == ACTION_SHOW_MENU)
        return "key, mouse";
    if (!(def.flags & ACTION_KEY))
        return "mouse";
    return def.flags & ACTION_MOUSE ? "key, menu, mouse" : "key, menu";
}

static std::string Interval(int min, int max) {
    return std::to_string(min) + (max == INT_MAX ? " or more" : " to " + std::to_string(max));
}

// The Options dialog shows the border as one less than it is.
static std::string UserRange(const OptionDef& def) {
    const std::string range = Interval(def.userMin, def.userMax);
    if (def.field == &OptionsRecord::border)
        return "; " + range + " from actions 68 and 69, " + Interval(def.userMin + 1, def.userMax + 1) +
               " from Options";
    return "; " + range + " from dialogs";
}

static std::string Range(const OptionDef& def) {
    const int max = def.storedBits > 0 ? def.storedBits : def.max;
    const bool bLimited = def.userMin > 0 || def.userMax < max;
    return Interval(0, max) + (bLimited ? UserRange(def) : "");
}

int main() {
    for (const ActionDef& def : ActionDefs)
        std::printf("action\t%d\t%s\t%s\t%s\t%s\n", def.id, def.text, KeyCombination(def.key).c_str(),
                    MouseCombination(def.mouse).c_str(), Offered(def));
    for (const OptionDef& def : OptionDefs)
        std::printf("option\t%s\t%s\t%d\n", def.key, Range(def).c_str(), def.start);
}
