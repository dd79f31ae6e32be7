"""Keys that a hand presses once too often, menus by keyboard, and one key for Spécial A from both windows."""

import sys

from desktop import Program, has, nodes, private_environment, xdotool
from sample import sample


def check_bouncing_return(program):
    program.press("Générer")
    report = program.dialog()
    program.wait_for("an active dialog", lambda: has(report, "active"))
    assert any(node.get_role_name() == "image" for node in nodes(report)), "no icon"
    program.keys("Return", "Return", "Return")
    program.wait_until_gone(report)
    area = program.find("text", "Spack Après")
    program.wait_for("the focus in the text", lambda: has(area, "focused"))
    text = program.text(area)
    program.type("x")
    program.wait_for("what was typed", lambda: program.text(area) != text)
    assert program.text(area) == "x" + text, program.text(area)[:20]
    return area


def check_menus(program, area):
    for keys, menu in (("alt+f", "Fichier"), ("F10", "Fichier"), ("alt+d", "Édition")):
        program.keys(keys)
        bar = program.find("menu item", menu)
        program.wait_for(f"the menu {menu}", lambda: has(bar, "focused") and program.all("popup menu"))
        program.keys("Escape", "Escape")
        program.wait_for("the focus in the text", lambda: has(area, "focused") and not program.all("popup menu"))


def check_special(program):
    program.keys("ctrl+shift+a")
    program.front = "Spécial A"
    special = program.window()
    program.wait_for("an active window", lambda: has(special, "active"))
    program.keys("ctrl+shift+a")
    program.wait_until_gone(special)
    program.front = "Tarnivel"


def check_preferences_stay(program, area):
    """Minimised, the window would take the main window along, which takes no key meanwhile."""
    text, (left, top, _, height) = program.text(area), program.extents(area)
    program.keys("ctrl+comma")
    program.front = "Préférences"
    preferences = program.window()
    program.wait_for("an active window", lambda: has(preferences, "active"))
    xdotool("mousemove", left + 5, top + height - 5, "click", 1, "type", "z")
    xdotool("getactivewindow", "windowminimize")
    program.keys("Escape")
    program.wait_until_gone(preferences)
    program.front = "Tarnivel"
    program.wait_for("the main window", lambda: has(program.window(), "active"))
    assert program.text(area) == text


def main(command):
    with sample() as files, Program([command], private_environment(files.home)) as program:
        program.front = "Tarnivel"
        area = check_bouncing_return(program)
        check_menus(program, area)
        check_special(program)
        check_preferences_stay(program, area)
        program.process.terminate()
        assert program.wait_for_end() == 0


main(*sys.argv[1:])
