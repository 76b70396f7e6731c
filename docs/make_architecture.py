#!/usr/bin/env python3
"""Draws architecture.svg: the ways of a hotkey, a mouse move and a refresh tick, function by function. Every step
is looked up in the source: one that the code does not take any more fails. --check only compares the picture."""
import html
import pathlib
import re
import sys

DOCS = pathlib.Path(__file__).resolve().parent
SOURCE = DOCS.parent / "src"
PICTURE = DOCS / "architecture.svg"

CALL, TABLE = "", "by its table"  # how a step is reached; any other text names the message that Windows brings

# A way is a title and its steps: (depth, file, function, what it does, how it is reached). It is reached from the
# last step before it that is less deep.
WAYS = (
    ("Ctrl+Alt+Right", (
        (0, "core/main.cpp", "RunMessageLoop", "takes the message", CALL),
        (1, "core/main_window.cpp", "OnHotkey", "passes the row's number", "WM_HOTKEY"),
        (2, "actions/dispatch.cpp", "DoAction", "looks the handler up", CALL),
        (3, "actions/view_rows.cpp", "GoToScreen", "says where to", TABLE),
        (4, "scroll/scroll_view.cpp", "ScrollView", "holds the view inside the desktop", CALL),
        (5, "scroll/shift.cpp", "ShiftWindows", "goes through the window table", CALL),
        (6, "scroll/shift.cpp", "ShiftWindow", "reckons one window's place", CALL),
        (7, "scroll/shift.cpp", "PlaceWindow", "asks the window, moves it", CALL),
        (5, "core/state.cpp", "Repaint", "has the map drawn at once", CALL),
    )),
    ("The mouse moves", (
        (0, "hook/quorl_hook.cpp", "OnMouse", "tells its own thread", CALL),
        (1, "hook/quorl_hook.cpp", "PassOnAll", "reads what it was told", "NEWS"),
        (2, "hook/quorl_hook.cpp", "PassOn", "sorts the news", CALL),
        (3, "hook/quorl_hook.cpp", "PassMoveOn", "lets one move wait at a time", CALL),
        (4, "core/main_window.cpp", "OnMouseNews", "now on the main thread", "HOOK_MOUSE_MESSAGE"),
        (5, "mouse/hook_mouse.cpp", "OnHookMouse", "asks where the cursor is", CALL),
        (6, "mouse/hook_mouse.cpp", "OnMove", "looks at the switches", TABLE),
        (7, "mouse/edge_scroll.cpp", "EdgeScroll", "decides whether at an edge", CALL),
        (8, "mouse/edge_scroll.cpp", "ScrollAtEdge", "waits, or goes at once", CALL),
        (9, "mouse/edge_scroll.cpp", "ScrollTo", "and on by ScrollView, as on the left", CALL),
    )),
    ("A tick of the refresh timer", (
        (0, "core/create.cpp", "OnCreate", "set the timer", CALL),
        (1, "scroll/refresh.cpp", "RefreshTimer", "asks whether there is news", "REFRESH_TIMER"),
        (2, "scroll/follow.cpp", "FollowActiveWindow", "may move the view", CALL),
        (2, "scroll/refresh.cpp", "AnyHasMoved", "reads the place of each row", CALL),
        (2, "scroll/window_table.cpp", "RebuildWindowTable", "looks at all windows anew", CALL),
        (2, "core/state.cpp", "Repaint", "has the map drawn at once", CALL),
        (3, "core/main_window.cpp", "OnPaint", "is sent by Windows", "UpdateWindow"),
        (4, "toolwin/map.cpp", "PaintMap", "goes through the window table", CALL),
        (5, "toolwin/map.cpp", "DrawWindow", "draws one box", CALL),
    )),
)

WIDTH, HEIGHT, GAP, STEP, LANE, MARGIN, HEAD = 250, 44, 20, 9, 345, 16, 34  # pixels
LOOKS = {
    "title": 'font-size="17" font-weight="bold"',
    "function": 'font-size="13" font-weight="bold"',
    "file": 'font-size="10" fill="#567" text-anchor="end"',
    "deed": 'font-size="12"',
    "how": 'font-size="10" fill="#a40"',
    "box": 'rx="4" fill="#fff" stroke="#456"',
    "call": 'fill="none" stroke="#456"',
    "brought": 'fill="none" stroke="#456" stroke-dasharray="4 3"',
}


def body(file, function):
    """The text of a function's definition."""
    text = (SOURCE / file).read_text()
    found = re.search(rf"^[\w][^;\n]*\b{function}\([^;{{]*\{{.*?^\}}", text, re.M | re.S)
    if not found:
        sys.exit(f"{file} has no function {function}")
    return found[0]


def names(text, word):
    return re.search(rf"\b{word}\b", text) is not None


def check(caller, step):
    _, file, function, _, how = step
    body(file, function)
    here = (SOURCE / caller[1]).read_text()
    if how == CALL:
        taken = names(body(caller[1], caller[2]), function)
    elif how == TABLE:
        taken = names(here, function)
    else:
        taken = names(here, how) or names((SOURCE / file).read_text(), how)
    if not taken:
        sys.exit(f"{caller[2]} in {caller[1]} does not lead to {function} in {file} any more")


def callers(steps):
    """For each step the place of the one that leads to it; None for the first."""
    above = []
    for place, step in enumerate(steps):
        yield above[step[0] - 1] if step[0] else None
        above[step[0]:] = [place]


def text(x, y, content, kind):
    return f'<text x="{x}" y="{y}" {LOOKS[kind]}>{html.escape(content)}</text>'


def draw_step(x, y, step):
    _, file, function, deed, _ = step
    yield f'<rect x="{x}" y="{y}" width="{WIDTH}" height="{HEIGHT}" {LOOKS["box"]}/>'
    yield text(x + 8, y + 18, function, "function")
    yield text(x + WIDTH - 8, y + 18, file.removesuffix(".cpp"), "file")
    yield text(x + 8, y + 35, deed, "deed")


def draw_way(left, title, steps):
    yield text(left, MARGIN + 14, title, "title")
    corner = [(left + step[0] * STEP, MARGIN + HEAD + place * (HEIGHT + GAP)) for place, step in enumerate(steps)]
    for place, above in enumerate(callers(steps)):
        x, y = corner[place]
        if above is not None:
            check(steps[above], steps[place])
            how = steps[place][4]
            line = corner[above][0] + STEP // 2
            look = LOOKS["call" if how == CALL else "brought"]
            yield f'<path {look} d="M{line} {corner[above][1] + HEIGHT} V{y + HEIGHT // 2} H{x}"/>'
            yield text(x + 8, y - 6, how, "how")
        yield from draw_step(x, y, steps[place])


def picture():
    rows = max(len(steps) for _, steps in WAYS)
    width = 2 * MARGIN + LANE * len(WAYS)
    height = 2 * MARGIN + HEAD + rows * (HEIGHT + GAP)
    yield f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" font-family="sans-serif">'
    yield f'<rect width="{width}" height="{height}" fill="#f4f6f8"/>'
    for lane, (title, steps) in enumerate(WAYS):
        yield from draw_way(MARGIN + lane * LANE, title, steps)
    yield "</svg>"


def main():
    drawn = "\n".join(picture()) + "\n"
    if "--check" not in sys.argv[1:]:
        PICTURE.write_text(drawn)
    elif not PICTURE.exists() or PICTURE.read_text() != drawn:
        sys.exit("docs/architecture.svg is out of date: run docs/make_architecture.py")


main()
