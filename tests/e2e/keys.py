"""Keys that a hand presses once too often, menus by keyboard, the preferences in front of all else, and Spécial A by one
key from both windows, which both end with Ctrl+Q."""

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
    program.wait_for("what was typed", lambda: program.text(area) == "x" + text)
    program.keys("ctrl+z")
    return area


def check_menus(program, area):
    for keys, menu in (("alt+f", "Fichier"), ("F10", "Fichier"), ("alt+d", "Édition")):
        program.keys(keys)
        bar = program.find("menu item", menu)
        program.wait_for(f"the menu {menu}", lambda: has(bar, "focused") and program.all("popup menu"))
        program.keys("Escape", "Escape")
        program.wait_for("the focus in the text", lambda: has(area, "focused") and not program.all("popup menu"))


def open_by_keys(program, keys, title):
    program.wait_for("the main window", lambda: has(program.window(), "active"))
    program.keys(keys)
    program.front = title
    window = program.window()
    program.wait_for("an active window", lambda: has(window, "active"))
    return window


def check_preferences(program, area):
    """Minimised, the window would take the main window along, which takes no key meanwhile. "Ok" alone takes over."""
    text, (left, top, _, height) = program.text(area), program.extents(area)
    for close, shown in (
        (lambda: program.keys("Escape"), True),
        (lambda: program.press("Ok"), False),
        (lambda: program.press("Annuler"), False),
        (lambda: program.press("Ok"), True),
    ):
        preferences = open_by_keys(program, "ctrl+comma", "Préférences")
        xdotool("mousemove", left + 5, top + height - 5, "click", 1, "type", "z")
        xdotool("getactivewindow", "windowminimize")
        program.act(program.find("check box"))
        close()
        program.wait_until_gone(preferences)
        program.front = "Tarnivel"
        program.wait_for(f"Spécial A: {shown}", lambda wanted=shown: bool(program.all("check box", "Spécial A")) == wanted)
        assert program.text(area) == text


def main(command):
    with sample() as files, Program([command], private_environment(files.home)) as program:
        program.front = "Tarnivel"
        area = check_bouncing_return(program)
        check_menus(program, area)
        check_preferences(program, area)
        special = open_by_keys(program, "ctrl+shift+a", "Spécial A")
        program.keys("ctrl+shift+a")
        program.wait_until_gone(special)
        program.front = "Tarnivel"
        open_by_keys(program, "ctrl+shift+a", "Spécial A")
        program.set_text(program.find("text", "Dest 1 :"), "by keys")
        program.keys("ctrl+q")
        assert (program.wait_for_end(), program.stderr()) == (0, "")
        assert "TabSpecAdest1 :@: by keys\t" in files.preferences.read_text("utf-8")


main(*sys.argv[1:])
