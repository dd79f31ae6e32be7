"""Editing with mouse and keyboard: toggles, views and runs that are taken back, with the focus where the next key goes."""

import sys

from desktop import has
from sample import ENABLED, pack, result

TOGGLE, ORANGE, GREEN = "Activer / Désactiver", "255,127,0", "0,200,0"


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
    program.run()
    area = program.find("text", "Spack Après")
    made = program.text(area)
    assert made != edited
    assert program.window().get_name() == "Tarnivel", "a result as the run left it is not modified"
    program.wait_for("the focus in the text", lambda: has(area, "focused"))
    program.keys("ctrl+z")
    program.wait_for("the text before the run", lambda: program.text(area) == edited)
    assert orange_lines(program, area) == orange
    program.keys("ctrl+s")
    program.answer("Sauv fichier")
    (question,) = program.answer("Annuler")
    assert "a changé sur le disque" in question, question
    program.focus(area)
    program.keys("ctrl+y")
    program.wait_for("the result", lambda: program.text(area) == made)


def check_typing(program, area):
    """A new line below an orange one is black, with a green keyword; one Ctrl+Z takes it back."""
    text = program.text(area)
    line = next(line for line in text.split("\n") if pack(line) and pack(line) in " ".join(orange_lines(program, area)))
    end = text.index(line) + len(line)
    program.select(area, end, end)
    program.focus(area)
    program.keys("Return")
    program.type(ENABLED + "New/")
    expected = text[:end] + "\n" + ENABLED + "New/" + text[end:]
    program.wait_for("the typed line", lambda: program.text(area) == expected)
    colors = [program.color_at(area, offset) for offset in (end - 1, end + 1, end + 1 + len(ENABLED))]
    assert colors == [ORANGE, GREEN, "0,0,0"], colors
    program.keys("alt+x")
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


def main(command):
    with result(command) as (files, program, area):
        edited = check_toggle(program, area)
        area = check_views(program, area, edited)
        check_typing(program, area)
        check_run_is_taken_back(program, files, area, edited)
        check_failed_run(program, files)
        assert (program.close(), program.stderr()) == (0, "")


main(*sys.argv[1:])
