#!/usr/bin/env python3
"""Breaks src/ in one place at a time and reports the breaks that the native tests do not detect.

    tests/tools/mutate.py [COUNT] [SEED]     COUNT breaks (60), spread over the files; a SEED repeats a choice

Works on a copy of the tree in build/mutate/. A break that does not compile is replaced by another one. The last
line is a summary. The exit code is 1 if a break survived that SURVIVORS does not excuse.
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
SLOW = "*WhicheverCallFails:*EachFailingPlatformCall:FuzzInputs.*"  # they run last
TIMEOUT = 120  # seconds; a break can make a loop endless

# pattern, replacement
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
    # A call or an assignment as a statement of its own, not a declaration.
    (r"(?<=[;{}\n)]\n)( +)(?!return\b|else\b)[\w.\[\]>-]+(\([^;{}]*\)| [-+|&*]?= [^;{}]*);$", lambda found: f"{found[1]};"),
    # Two simple arguments of a call.
    (r"(?<=\w\()(\w[\w.]*), (\w[\w.]*)(?=[,)])", lambda found: f"{found[2]}, {found[1]}"),
    (r"(?<=, )(\w[\w.]*), (\w[\w.]*)(?=\))", lambda found: f"{found[2]}, {found[1]}"),
)

# file, function or text of the break (all as patterns): why no test can detect it
SURVIVORS = (
    ("", r"LB_GETCURSEL|[LC]B_GETITEMDATA|[LC]B_RESETCONTENT|TBM_GETPOS|TCM_[GS]E|SC_SCREENSAVE|WM_NULL|LVM_GETSELECTION|LWA_ALPHA",
     "the message does not use this argument"),
    ("", r"DWORD_PTR result", "written by the call and never read"),
    ("", r"char \w+\[\d+\]|_(SIZE|LIMIT) = ", "the buffer is never full"),
    ("", r"MessageBeep\(0\)|CreateFontA|ShapesOfSpinner|RGB\(255", "only a person can judge the look or the sound"),
    ("", r"main_window.*return|On(\w*Press|\w*Release|Move):.*return|WinMain|MoveTo:|settings/settings.*return", "nobody reads the result"),
    ("locked_windows", r"UsedSlots", "a slot that was never used contains no window"),
    ("shift|active_window|drag_window", r"i < num_windows", "the row behind the last one contains no window"),
    ("", r"< NUM_ACTIONS.*-> +<=", "the closing row has no binding and is offered nowhere"),
    ("gather", r"FoldCoordinate.*< 0", "0 becomes the screen's size, which folds to 0 again"),
    ("shift|active_window", r"(ShiftedCoordinate|ClampToDesktop).* < 0", "at the edge both branches agree"),
    ("scroll_view", r"ClampAxis.*if ", "at the edge both branches agree"),
    ("scroll_view", r"ClampStep.*ClampAxis", "the axes are independent of each other"),
    ("scroll_view", r"ShowCount|ShowView", "the next text replaces this one in the same call"),
    ("about|help|map|options|resize", r"SetDlgItemTextA|GetClientRect|DeletePens|ClearRadios|ShowWindow", "the order of independent calls"),
    ("", r"_TIMER = ", "any unused number will do"),
    ("key_names", r': +\{"', "one row of a table; the tests press some of its keys"),
    ("action_defs", r": +\{ACTION_", "one row of a table; the tests do not repeat start values and bindings"),
    ("map.cpp", r"FlashTimer.*InvalidateRect", "what is still invalid is painted before the next message"),
    ("hotkeys", r"ClearActionKey.*&&", "a hotkey is registered only with both, and releasing none is harmless"),
    ("hotkeys", r"key > 256.*>=", "256 is the character 0 with and without its high byte"),
    ("hotkeys", r"RegisterRecordedKey.*Unregister", "an unbound action has no hotkey to release"),
    ("displays", r"MonitorUnion", "the primary display contains the origin"),
    ("actions_dialog|name_region", r"CheckFlags|FillControls", "the order of calls whose effect is seen together"),
    ("action_menu", r"entry < 0 \?.*-> +<=", "action 0 is only in a list edited by hand"),
    ("main.cpp", r"InitCommonControls|GetMessageA|IMAGE_ICON", "only a real desktop shows it"),
    ("crash", "", "a crash needs Windows"),
    ("transparency", r"OnCommand.*ApplySlider", "already applied when the slider moved"),
)


def code_of(text):
    """The text with comments, strings and directives replaced by spaces."""
    blank = lambda found: re.sub(r"[^\n]", " ", found[0])
    return re.sub(r'//[^\n]*|"(?:\\.|[^"\\\n])*"|^#[^\n]*|^.*(?:return;|break;).*$', blank, text, flags=re.M)


def sites():
    """(file, from, to, replacement) of every break."""
    for file in sorted((ROOT / "src").rglob("*.cpp")):
        if "hook" in file.relative_to(ROOT / "src").parts[:1]:
            continue  # it is tested on Windows
        code = code_of(file.read_text())
        for pattern, change in BREAKS:
            for found in re.finditer(pattern, code, re.M):
                if change(found) != found[0]:
                    yield file.relative_to(ROOT), found.start(), found.end(), change(found)


def spread(chance):
    """All sites in random order, one of each file before a second one of any."""
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


def run(*command, seconds=None):
    try:
        return subprocess.run(command, cwd=COPY, capture_output=True, timeout=seconds).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def is_detected():
    """None if the break does not compile."""
    if not run("cmake", "--build", BUILD, "--target", "quorl_tests", "print_tables"):
        return None
    tests = (BUILD / "tests/quorl_tests", "--gtest_fail_fast")
    return not (
        run(*tests, f"--gtest_filter=-{SLOW}", seconds=TIMEOUT)
        and run("docs/make_help.py", BUILD / "docs/print_tables", "--check")
        and run(*tests, f"--gtest_filter={SLOW}", seconds=TIMEOUT)
    )


def describe(site):
    file, start, end, replacement = site
    text = (ROOT / file).read_text()
    line = text[text.rfind("\n", 0, start) + 1 : text.find("\n", end)].strip()
    functions = re.findall(r"^\w[^;{}]*?(\w+)\([^;{}]*\) \{$", text[:start], re.M)
    place = f"{file}:{text.count(chr(10), 0, start) + 1}: {functions[-1] if functions else ''}"
    return f"{place}: {line}  ->  {replacement.strip() or 'nothing'}"


def is_excused(site):
    return any(re.search(file, str(site[0])) and re.search(look, describe(site), re.S) for file, look, _ in SURVIVORS)


def try_break(site):
    file, start, end, replacement = site
    text = (ROOT / file).read_text()
    (COPY / file).write_text(text[:start] + replacement + text[end:])
    detected = is_detected()
    (COPY / file).write_text(text)
    return detected


def main():
    count, seed = (int(word) for word in (sys.argv[1:] + ["60", "1"][len(sys.argv) - 1 :]))
    for folder in ("bench", "platform", "src", "tests"):
        shutil.rmtree(COPY / folder, ignore_errors=True)  # files that are gone from the tree
    # The copies are newer than everything that an earlier run built from a broken file.
    ignored = shutil.ignore_patterns("build", ".git")
    shutil.copytree(ROOT, COPY, ignore=ignored, copy_function=shutil.copy, dirs_exist_ok=True)
    if not run("cmake", "--preset", "native") or is_detected() is not False:
        sys.exit("the tests do not pass on the unchanged tree")
    tried, survived, bad = 0, 0, 0
    for site in spread(random.Random(seed)):
        if tried == count:
            break
        detected = try_break(site)
        if detected is None:
            continue
        tried += 1
        if not detected:
            survived += 1
            bad += not is_excused(site)
            print("SURVIVED", "(excused)" if is_excused(site) else "", describe(site), flush=True)
    print(f"{tried} breaks, {tried - survived} detected, {survived} survived, {bad} of them not excused")
    return bad > 0


sys.exit(main())
