#!/usr/bin/env python3
"""Makes help/actions.html from the program's tables and actions.txt; with --check only tells whether it is up
to date, and whether the help is whole: tags closed, links and pictures there, every key of the file told."""
import html
import html.parser
import pathlib
import re
import sys

DOCS = pathlib.Path(__file__).resolve().parent
HELP = DOCS / "help"
SOURCE = DOCS.parent / "src"

MODIFIERS = (("KEY_CTRL", "Ctrl"), ("KEY_ALT", "Alt"), ("KEY_SHIFT", "Shift"), ("KEY_WIN", "Win"))
ALL_MODIFIERS = "KEY_SHIFT | KEY_ALT | KEY_CTRL"  # MODS_ALL in default_bindings.cpp
BUTTONS = {"LBUTTON": "left button", "MBUTTON": "middle button", "RBUTTON": "right button"}
OFFERED = {"KEY": "key, menu", "MOUSE": "mouse", "BOTH": "key, menu, mouse", "OFF": "nowhere"}

HEAD = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>Quorl: the 123 actions</title>
<link rel="stylesheet" href="help.css">
</head>
<body>
<nav><a href="index.html">Quorl</a> <a href="first-steps.html">First five minutes</a> <a
href="actions.html">Actions</a> <a href="dialogs.html">Dialogs</a> <a href="settings.html">Settings file</a> <a
href="questions.html">Questions</a></nav>
<h1>The 123 actions</h1>
<p>Everything that Quorl can do is an action with a number. An action runs when its key is pressed in whatever
program, when its mouse combination is pressed on the map, or when it is chosen from the menu. The dialog
<a href="dialogs.html#actions">Actions</a> binds keys and mouse combinations,
<a href="dialogs.html#menu">Customize Menu</a> fills the menu. The column “offered for” says where you find an
action there.</p>
<p>Many actions go by two steps that you set in <a href="dialogs.html#options">Options</a>: Min Scroll, in the
names &lt;min&gt;, and Max Scroll, &lt;max&gt;. “Whether” marks a switch: it shows a check mark in the menu
while it is on.</p>
<table>
<thead><tr><th>No.</th><th>Action</th><th>What it does</th><th>Key at the start</th>
<th>Mouse on the map at the start</th><th>Offered for</th></tr></thead>
<tbody>
"""
TAIL = "</tbody>\n</table>\n</body>\n</html>\n"


def rows():
    """(number, where offered, name) of every action."""
    text = (SOURCE / "actions/action_table.cpp").read_text()
    for row in re.finditer(r'Row\(\s*(\d+), (\w+),\s*"(.*?)", ', text):
        number, offered, name = row.groups()
        if name:
            yield int(number), "key, mouse" if number == "0" else OFFERED[offered], name


def combination(modifiers, key):
    modifiers = modifiers.replace("MODS_ALL", ALL_MODIFIERS)
    return "+".join([name for flag, name in MODIFIERS if flag in modifiers] + [key])


def bindings():
    """The start bindings: {("KEY" or "MOUSE", number): text}."""
    text = (SOURCE / "actions/default_bindings.cpp").read_text()
    table = text[text.index("DefaultBindings[]") :]
    table = table[: table.index("};")]
    found = {}
    for row in re.finditer(r"\{(\d+),\s*ACTION_(\w+),\s*([\w |]+?)\s*,\s*(\w+)\s*\}", table):
        number, kind, modifiers, key = row.groups()
        if kind == "MOUSE" and key not in BUTTONS:
            continue  # a value that no press on the map has
        name = BUTTONS[key] if kind == "MOUSE" else key.removeprefix("VK_").capitalize()
        found[kind, int(number)] = combination(modifiers, name)
    return found


def explanations():
    lines = (DOCS / "actions.txt").read_text().splitlines()
    return {int(number): text for number, text in (line.split(": ", 1) for line in lines)}


def page():
    bound, told = bindings(), explanations()
    body = ""
    for number, offered, name in rows():
        cells = [name, told[number], bound.get(("KEY", number), ""), bound.get(("MOUSE", number), ""), offered]
        body += f'<tr id="a{number}"><td>{number}</td>'
        body += "".join(f"<td>{html.escape(cell, quote=False)}</td>" for cell in cells) + "</tr>\n"
    return HEAD + body + TAIL


class Page(html.parser.HTMLParser):
    """What a page refers to, and what is wrong with it."""

    VOID = {"meta", "link", "img", "br"}

    def __init__(self, path):
        super().__init__()
        self.faults, self.links, self.anchors, self.open = [], [], set(), []
        self.feed(path.read_text())
        self.faults += [f"<{tag}> is not closed" for tag in self.open]

    def handle_starttag(self, tag, attrs):
        attrs = dict(attrs)
        if tag not in self.VOID:
            self.open.append(tag)
        if tag == "img" and not attrs.get("alt"):
            self.faults.append(f"a picture without words: {attrs.get('src')}")
        self.links += [attrs[name] for name in ("href", "src") if name in attrs]
        if "id" in attrs:
            self.anchors.add(attrs["id"])

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.faults.append(f"</{tag}> closes nothing")


def leads_somewhere(pages, name, link):
    file, _, anchor = link.partition("#")
    target = file or name
    return (HELP / target).is_file() and (not anchor or anchor in pages[target].anchors)


def faults():
    if (HELP / "actions.html").read_text() != page():
        yield "actions.html is not what make_actions.py makes: run it"
    if sorted(explanations()) != [number for number, _, _ in rows()]:
        yield "actions.txt does not have one line for each action"
    pages = {path.name: Page(path) for path in sorted(HELP.glob("*.html"))}
    for name, read in pages.items():
        yield from (f"{name}: {fault}" for fault in read.faults)
        yield from (f"{name}: {link} leads nowhere" for link in read.links if not leads_somewhere(pages, name, link))
    told = (HELP / "settings.html").read_text()
    keys = re.findall(r'^    \{"([\w.]+)",', (SOURCE / "settings/options_file.cpp").read_text(), re.M)
    yield from (f"settings.html does not tell {key}" for key in keys if f"<code>{key}</code>" not in told)


def main():
    if sys.argv[1:] == ["--check"]:
        return "\n".join(faults()) or 0
    (HELP / "actions.html").write_text(page())
    return 0


sys.exit(main())
