"""Prints what a blind user hears of the windows, menus and dialogs: each is read as it opens, then stop by stop with Tab.

Usage: tools/screen.sh /usr/bin/python3 tools/read_aloud.py PROGRAM [LANGUAGE]
Each line: name, role, states, value, and in brackets the description, as far as the program gives them.
"""

import sys
import tempfile

from desktop import Program, has, nodes, text_of
from gi.repository import Atspi
from tour import environment, make_sample, texts, tour

SPOKEN = ("checked", "selected", "read_only", "multi_line", "is_default", "editable")


def spoken(node):
    states = [state.replace("_", " ") for state in SPOKEN if has(node, state)]
    states += [] if has(node, "enabled") else ["disabled"]
    words = [f"“{node.get_name()}”", node.get_role_name(), *states]
    if "Value" in node.get_interfaces():
        words.append(f"value {Atspi.Value.get_current_value(node):g}")
    if node.get_role_name() == "text":
        lines = text_of(node).split("\n")
        words.append(f"text “{lines[0]}”" + (f" and {len(lines) - 1} more lines" if len(lines) > 1 else ""))
    if node.get_description():
        words.append(f"[{node.get_description()}]".replace("\n", " / "))
    return ", ".join(words)


def focused(program, front):
    """What has the focus: the current cell of a table, which looks focused in any case, only when the table has it."""

    def found():
        shown = [node for node in nodes(front) if has(node, "focused", "focusable", "showing")]
        first = next((node for node in shown if node.get_role_name() != "table cell"), None)
        return shown[-1] if first and first.get_role_name() == "table" else first

    return program.wait_for("a focus", found)


def read(program, name):
    front = next(iter(program.windows(dialogs=True)), None) or program.window()
    print(f"\n== {name}: “{front.get_name()}”, {front.get_role_name()}")
    if name.startswith("Menu"):
        for item in program.all("menu item"):
            print("  ", spoken(item), Atspi.Action.get_key_binding(item, 0))
        return
    by_eye = [n for n in nodes(front) if n.get_role_name() in ("label", "table cell") and has(n, "showing")]
    headers = [n for n in nodes(front) if n.get_role_name() == "table column header"]
    print("   not in the order of Tab:", "; ".join(f"“{node.get_name()}”" for node in headers + by_eye))
    stops = []
    while (node := focused(program, front)) not in stops:
        print("  ", spoken(node))
        stops.append(node)
        program.keys("Tab")


def main(command, language="fr"):
    with tempfile.TemporaryDirectory() as sample:
        make_sample(sample, "760,500")
        with Program([command], environment(sample, language)) as program:
            for name in tour(program, texts(language)):
                read(program, name)
            program.close()


main(*sys.argv[1:])
