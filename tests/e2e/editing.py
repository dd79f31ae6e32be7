"""Mouse and keyboard: keys pressed once too often, menus, toggles, views and runs that are taken back, the preferences in front
of all else, and Spécial A by one key; the focus is always where the next key goes."""

import sys

from desktop import Program, has, nodes, private_environment, xdotool
from sample import ENABLED, pack, sample

TOGGLE, ORANGE, GREEN = "Activer / Désactiver", "255,127,0", "0,200,0"


def check_bouncing_return(program, files):
    program.press("Générer")
    report = program.dialog()
    program.wait_for("an active dialog", lambda: has(report, "active"))
    assert any(node.get_role_name() == "image" for node in nodes(report)), "no icon"
    program.keys("Return", "Return", "Return")
    program.wait_until_gone(report)
    area = program.find("text", "Spack Après")
    program.wait_for("the focus in the text", lambda: has(area, "focused"))
    text = program.text(area)
    assert files.is_in_model_order(text) and len(text.split("\n")) == len(files.source) + 1, "Return went into the text"
    assert not program.windows(dialogs=True), "Return began another run"
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


def click_from_field(program, area, button):
    """By the mouse, with the focus in a field: it is in the text then, behind any dialogs."""
    field = program.find("text", "Url modèle")
    program.click(field)
    program.wait_for("the focus in the field", lambda: has(field, "focused"))
    program.click(program.find("push button", button))
    if button == "Générer":
        program.answer_until(button)
    if button == "Sauv fichier":
        program.answer(button)
        (question,) = program.answer("Annuler")
        assert "a changé sur le disque" in question, question
    program.wait_for(f"the focus in the text after {button}", lambda: has(area, "focused"))


def pick(program, view):
    """A view, by the mouse alone."""
    popup = program.find("combo box")
    program.click(popup)
    row = program.wait_for(view, lambda: next((n for n in program.all("list item", view) if has(n, "showing")), None))
    program.click(row)
    area = program.find("text", view)
    program.wait_for("the focus in the text", lambda: has(area, "focused"))
    return area


def orange_lines(program, area):
    return [line.split(" ", 1)[-1] for line, _, last in program.lines(area) if last == ORANGE]


def check_toggle(program, area):
    """By the mouse, above all orange lines: they stay orange, and Ctrl+Z and Ctrl+Shift+Z work at once."""
    before, orange = program.text(area), orange_lines(program, area)
    assert orange, before
    for shift in (True, False):
        program.keys("ctrl+a")
        with program.held(*["shift"] * shift):
            program.click(program.find("push button", TOGGLE)) if shift else program.keys("Delete")
        program.wait_for("another text", lambda: program.text(area) != before)
        program.keys("ctrl+z")
        program.wait_for("all lines", lambda: program.text(area) == before)
        assert orange_lines(program, area) == orange and not program.windows(dialogs=True)
    at = before.index("\n" + ENABLED) + 4
    program.select(area, at, at)
    program.click(program.find("push button", TOGGLE))
    toggled = program.wait_for("a toggled line", lambda: program.text(area) != before and program.text(area))
    assert orange_lines(program, area) == orange
    program.keys("ctrl+z")
    program.wait_for("the line as it was", lambda: program.text(area) == before)
    program.keys("ctrl+shift+z")
    program.wait_for("the toggled line again", lambda: program.text(area) == toggled)
    assert orange_lines(program, area) == orange
    return toggled


def check_views(program, area, text):
    """Each has its own caret and history; the wheel on the closed popup changes nothing, nor do keys in the text."""
    caret = program.selection(area)
    other = pick(program, "Spack Avant")
    first = program.text(other)
    program.type("x")
    program.wait_for("the typed letter", lambda: program.text(other) == "x" + first)
    program.keys("Next", "s", "Home")
    program.click(program.find("combo box"), 5)
    program.wait_for("the view that was picked", lambda: program.all("text", "Spack Avant"))
    typed = program.text(other)
    program.keys(*["Tab"] * 4, "alt+Down")
    program.wait_for("the open popup", lambda: program.all("list item", "Spack Après"))
    program.keys("Escape", *["shift+Tab"] * 4)
    program.wait_for("the text as it was", lambda: has(other, "focused") and program.text(other) == typed)
    area = pick(program, "Spack Après")
    assert program.text(area) == text and program.selection(area) == caret
    return area


def check_run_is_taken_back(program, files, area, edited):
    """What was there before was made from what the file held then; a save asks."""
    with files.source_file.open("a") as source:
        source.write(ENABLED + "Custom Scenery/Later/\n")
    orange = orange_lines(program, area)
    click_from_field(program, area, "Générer")
    made = program.text(area)
    assert made != edited
    assert program.window().get_name() == "Tarnivel", "a result as the run left it is not modified"
    program.keys("ctrl+z")
    program.wait_for("the text before the run", lambda: program.text(area) == edited)
    assert orange_lines(program, area) == orange
    for button in ("Chercher", "Sauv fichier"):
        click_from_field(program, area, button)
    program.keys("ctrl+y")
    program.wait_for("the result", lambda: program.text(area) == made)


def check_typing(program, area):
    """A new line below an orange one is black, with a green keyword; one Ctrl+Z takes it back."""
    text = program.text(area)
    line = next(line for line in text.split("\n") if pack(line) and pack(line) in " ".join(orange_lines(program, area)))
    end = text.index(line) + len(line)
    program.select(area, end, end)
    program.focus(area)
    program.keys("Return", "alt+x")
    program.type(ENABLED + "New/")
    expected = text[:end] + "\n" + ENABLED + "New/" + text[end:]
    program.wait_for("the typed line", lambda: program.text(area) == expected)
    colors = [program.color_at(area, offset) for offset in (end - 1, end + 1, end + 1 + len(ENABLED))]
    assert colors == [ORANGE, GREEN, "0,0,0"], colors
    program.keys("ctrl+z", "ctrl+z")
    program.wait_for("the text before", lambda: program.text(area) == text)


def check_failed_run(program, files):
    """Its save is asked about, and Enter gives it up."""
    before = files.source_file.read_bytes()
    files.model_file.write_bytes(b"I\r\n")
    program.keys("F5")
    program.wait_for("the error", lambda: program.text(program.find("text", "Spack Après")) == "### Error ###")
    program.keys("ctrl+s")
    question = program.dialog()
    program.wait_for("the question in front", lambda: has(question, "active"))
    program.keys("Return")
    program.find("notification", "Rien n'a été enregistré")
    assert files.source_file.read_bytes() == before


def check_special(program, files):
    """One key opens and closes it, from both windows, and Ctrl+Q there ends the program with what it holds."""
    special = open_by_keys(program, "ctrl+shift+a", "Spécial A")
    program.keys("ctrl+shift+a")
    program.wait_until_gone(special)
    program.front = "Tarnivel"
    open_by_keys(program, "ctrl+shift+a", "Spécial A")
    program.set_text(program.find("text", "Dest 1 :"), "by keys")
    program.keys("ctrl+q")
    assert (program.wait_for_end(), program.stderr()) == (0, "")
    assert "TabSpecAdest1 :@: by keys\t" in files.preferences.read_text("utf-8")


def main(command):
    with sample() as files, Program([command], private_environment(files.home)) as program:
        program.front = "Tarnivel"
        area = check_bouncing_return(program, files)
        check_menus(program, area)
        edited = check_toggle(program, area)
        area = check_views(program, area, edited)
        check_typing(program, area)
        check_run_is_taken_back(program, files, area, edited)
        check_failed_run(program, files)
        check_preferences(program, program.find("text", "Spack Après"))
        check_special(program, files)


main(*sys.argv[1:])
