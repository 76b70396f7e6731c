#!/usr/bin/env python3
"""Breaks src/ in one place at a time and tells which breaks the native tests do not notice.

    tests/tools/mutate.py [COUNT] [SEED]     COUNT breaks (60), spread over the files; the same SEED, the same ones

Works on a copy of the tree in build/mutate/. A break that does not compile is replaced by another one. The last
line counts; the exit code is 1 when one survived that is not in SURVIVORS, with the reason why it may.
"""
import pathlib
import random
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
COPY = ROOT / "build/mutate/tree"
BUILD = COPY / "build/native"
SLOW = "BadLuck|Whichever"  # every call fails in turn; the quick cases come first
OTHERS = "NOT_BUILT"  # programs that have nothing of src/ in them

# pattern: what stands there instead
BREAKS = (
    (r"(?<![\w.])\d+(?![\w.])", lambda found: "0" if found[0] == "1" else str(int(found[0]) + 1)),
    (r" < (?!<)", lambda _: " <= "),
    (r" > ", lambda _: " >= "),
    (r" <= ", lambda _: " < "),
    (r" >= ", lambda _: " > "),
    (r" == ", lambda _: " != "),
    (r" != ", lambda _: " == "),
    (r" && ", lambda _: " || "),
    (r" \|\| ", lambda _: " && "),
    (r" \+ ", lambda _: " - "),
    (r" - ", lambda _: " + "),
    (r"(?<=if \()!", lambda _: ""),
    (r"^( +)(\w[^;{}=]*\([^;{}=]*;)\n\1(\w[^;{}=]*\([^;{}=]*;)$", lambda found: f"{found[1]}{found[3]}\n{found[1]}{found[2]}"),
)

# file, what the break looks like (both as patterns): why no test can notice
SURVIVORS = (
    ("dispatch", r"(CycleInView|TileInView|ToggleValue|SizeToolwin|On\w+Settings|Open\w+|Unmark\w+|CenterActive), +0",
     "an argument that the handler does not read"),
    ("", r"LB_GETCURSEL|[LC]B_GETITEMDATA|LB_RESETCONTENT|CB_RESETCONTENT|TBM_GETPOS|TCM_SETCURSEL, 0, 0|SC_SCREENSAVE",
     "an argument that the message does not read"),
    ("dialogs/", r"CloseDialog\(dialog, DIALOG_\w+, 0\)", "a result that nobody reads"),
    ("", r"DWORD_PTR result = 0", "the call fills it in, and nobody reads it"),
    ("tray|settings/settings|quit|placement|actions_file|options_file|active_window", r"return [01];|DBLCLK",
     "a result that no caller acts on"),
    ("main_window", r"OnCreate\(window\) \?", "OnCreate does not fail"),
    ("region_table|navigation|menu_list|edge_scroll", r"return [01];|timer != 0;", "a result that no caller acts on"),
    ("main.cpp", r"return 0;", "what the process returns is read by nobody"),
    ("program_rows", r"call\.with > 0", "no row changes the border by 0"),
    ("scroll_view", r"\*least < 0", "at 0 the view stands where it would be put"),
    ("actions_dialog|name_region", r"CheckFlags\(dialog|FillControls\(dialog", "the order of two that are seen together"),
    ("coordinates", r"\{0, 0, 0, 0\}", "the primary display has the origin"),
    ("options_file", r"StoredPlace = ", "0 is no place either"),
    ("main_window|dispatch", r"return 0;", "a result that no sender acts on"),
    ("shift.cpp", r"WM_NULL, 0, 0", "an argument that the message does not read"),
    ("regions_file", r"\*letter > 0", "the text ends at 0"),
    ("binding_text", r"row\.vk >= 0", "the key 0 has no text"),
    ("scroll_view", r"HoldInside.*HoldInside", "two axes that do not depend on each other"),
    ("actions_dialog", r"WPARAM place = 0", "an empty list counts places from its end"),
    ("spinner", r"GWLP_USERDATA, 0", "nobody asks a window that is gone"),
    ("help|about", r"SetDlgItemTextA", "the order of two that are seen together"),
    ("map_hover", r"int region = 0", "overwritten where it is read"),
    ("edge_scroll|hook_mouse", r"return 0;", "what a click or a release answers reaches nobody: the library posts"),
    ("drag_window", r"value < 0", "0 has no sign"),
    ("customize_menu", r"if \(!list\)", "the template has the list"),
    ("options_dialog", r"return 1;", "a result that no caller acts on"),
    ("dialog_rows", r"return 0;", "comes only after a row that no dialog has"),
    ("", r"char \w+\[\d+\]", "room that is never used up"),
    ("action_menu", r"REGION_NAME_ROOM - 1", "no name is longer"),
    ("action_menu", r"entry < 0 \?.*-> +1$", "an entry of 0 comes from a file edited by hand only, and runs nothing"),
    ("binding_text", r"row <= NUM|row < NUM_ACTIONS", "the closing row is offered nowhere"),
    ("locked_windows", r"slot < UsedSlots|UsedSlots < MAX|UsedSlots = 0", "a slot that was never used holds no window"),
    ("shift.cpp|active_window", r"row < num_windows", "the row behind the last one holds no window, or one that has ended"),
    ("gather", r"folded < 0", "0 then becomes a whole screen, which folds to 0 again"),
    ("active_window|shift.cpp", r"vdesk\.\w+ (\+ place\.\w+)? < 0|\+ vdesk\.\w+ < 0", "at the edge both ways give the same place"),
    ("coordinates", r"map\.right - map\.left|map\.bottom - map\.top", "a client area begins at 0"),
    ("region_rows", r"AT_VIEW = ", "any negative number means the view"),
    ("desktop_size", r"// (ADD|REMOVE)_.*-> +1$", "the ping is not looked at where the windows shift"),
    ("view_rows", r"case \w+: return .*case", "the order of cases"),
    ("main.cpp", r"InitCommonControls|GetMessageA\(|IMAGE_ICON", "shows on a real desktop only, and there at once"),
    ("crash", r"InterlockedExchange", "a crash is tried under Wine"),
    ("name_region", r"End\(dialog, IDOK\)", "a key that cannot be had beeps before or after"),
    ("name_region", r"RGB\(255|custom\[16\]", "the colours that a user could have mixed before"),
    ("name_region", r"if \(!region\)", "a full table refuses OK, too; Delete is never enabled"),
    ("transparency", r"ApplySlider\(dialog\);", "it was applied when the slider moved"),
    ("scroll_view", r"ScrollCount % 2|TellView\(\);", "the next tip takes this one's place in the same call"),
    ("map.cpp", r"GetClientRect\(window, &map\);", "two questions that do not depend on each other"),
    ("tip.cpp", r"CreateFontA", "the look of the strip's letters"),
    ("navigation", r"MessageBeep\(0\)", "which sound it is"),
    ("spinner", r"down_arrow, 4", "reads behind the table, which the sanitizers notice"),
)


def code_of(text):
    """The text with comments, strings and includes blanked, at the same places."""
    blank = lambda found: re.sub(r"[^\n]", " ", found[0])
    return re.sub(r'//[^\n]*|"(?:\\.|[^"\\\n])*"|^#[^\n]*|^.*(?:return;|break;).*$', blank, text, flags=re.M)


def sites():
    """(file, from, to, replacement) of every break."""
    for file in sorted((ROOT / "src").rglob("*.cpp")):
        if "hook" in file.relative_to(ROOT / "src").parts[:1]:
            continue  # the library is tested on Windows
        code = code_of(file.read_text())
        for pattern, change in BREAKS:
            for found in re.finditer(pattern, code, re.M):
                yield file.relative_to(ROOT), found.start(), found.end(), change(found)


def spread(chance):
    """All sites in an order by chance that takes one of each file before a second of any."""
    by_file = {}
    for site in sites():
        by_file.setdefault(site[0], []).append(site)
    for of_file in by_file.values():
        chance.shuffle(of_file)
    while by_file:
        files = list(by_file)
        chance.shuffle(files)
        for file in files:
            yield by_file[file].pop()
            if not by_file[file]:
                del by_file[file]


def run(*command):
    return subprocess.run(command, cwd=COPY, capture_output=True, text=True).returncode == 0


def is_noticed():
    """None when the break does not compile."""
    if not run("cmake", "--build", BUILD, "--target", "quorl_tests"):
        return None
    test = ("ctest", "--test-dir", str(BUILD), "-j2", "--stop-on-failure")
    return not (run(*test, "-E", f"{SLOW}|{OTHERS}") and run(*test, "-R", SLOW))


def told(site):
    file, start, end, replacement = site
    text = (ROOT / file).read_text()
    line = text[text.rfind("\n", 0, start) + 1 : text.find("\n", end)].strip()
    return f"{file}:{text.count(chr(10), 0, start) + 1}: {line}  ->  {replacement.strip() or 'nothing'}"


def is_allowed(site):
    return any(re.search(file, str(site[0])) and re.search(look, told(site), re.S) for file, look, _ in SURVIVORS)


def try_break(site):
    file, start, end, replacement = site
    text = (ROOT / file).read_text()
    (COPY / file).write_text(text[:start] + replacement + text[end:])
    noticed = is_noticed()
    (COPY / file).write_text(text)
    return noticed


def main():
    count, seed = (int(word) for word in (sys.argv[1:] + ["60", "1"][len(sys.argv) - 1 :]))
    # As new files, so that nothing that was built from a break of an earlier run counts as up to date.
    ignored = shutil.ignore_patterns("build", ".git")
    shutil.copytree(ROOT, COPY, ignore=ignored, copy_function=shutil.copy, dirs_exist_ok=True)
    if not run("cmake", "--preset", "native") or is_noticed() is not False:
        sys.exit("the tests do not pass on the tree as it is")
    tried, survived, bad = 0, 0, 0
    for site in spread(random.Random(seed)):
        if tried == count:
            break
        noticed = try_break(site)
        if noticed is None:
            continue
        tried += 1
        if not noticed:
            survived += 1
            bad += not is_allowed(site)
            print("SURVIVED", "(may)" if is_allowed(site) else "", told(site), flush=True)
    print(f"{tried} breaks, {tried - survived} noticed, {survived} survived, {bad} of them without a reason")
    return bad > 0


sys.exit(main())
