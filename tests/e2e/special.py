"""The window "Spécial A": a file dragged there, cells edited by hand, a treatment, and clicks on a covered window."""

import pathlib
import sys

from choosing import dropped, open_chooser
from desktop import Program, drag, has, nodes, pixel, private_environment, text_of, xdotool
from gi.repository import Atspi
from sample import sample

REPORT = "Nombre de fois où les textes cherchés ont été trouvés :"


def drop(program, command, file):
    """Drops a file on the frame, which is highlighted as long as it is over it."""
    frame = program.find(name="Source")
    left, top, _, height = program.extents(frame)
    spot = left + 10, top + height - 10
    before = pixel(*spot)
    highlighted = lambda: program.wait_for("the highlight", lambda: pixel(*spot) != before)  # noqa: E731
    with dropped(program, command, frame, file, over=highlighted):
        program.wait_for("the end of the highlight", lambda: pixel(*spot) == before)
        program.wait_for("the file", lambda: program.text(program.find("text", "Original :")) == file.name)


def click(left, top, *more):
    xdotool("mousemove", left, top, "click", *more, 1)


def edit(program):
    """Makes two rows by the keyboard, copies and pastes them, and drags the first to the end; takes back and redoes; a cell
    is still open."""
    table = program.find("table", "Spécial A")
    rows = lambda: Atspi.Table.get_n_rows(table)  # noqa: E731
    cells = lambda column: [Atspi.Table.get_accessible_at(table, row, column).get_name() for row in range(rows())]  # noqa: E731
    program.press("+")
    program.wait_for("the row", lambda: rows() == 1)
    headers = [node.get_name() for node in nodes(table) if node.get_role_name() == "table column header"]
    assert headers == ["Original :", "Dest 1 :", "Dest 2 :"], headers
    left, top, width, _ = program.extents(table)
    left += width // 20  # behind the numbers
    program.type("wrong")
    program.keys("ctrl+z")
    for word in ("Alpha", "one", "two", "beta", ""):
        program.type(word)
        program.keys("Tab")
    program.type("B")
    program.keys("Return", "Return")
    program.type("no")
    program.keys("Escape", "ctrl+z")
    program.wait_for("two rows", lambda: rows() == 2)

    program.press("Copier la liste dans le presse-papiers")
    click(left + 20, top + 10)
    program.keys("ctrl+v")
    program.wait_for("four rows", lambda: rows() == 4)
    program.keys("shift+Delete")
    program.wait_for("three rows", lambda: rows() == 3)
    for redo in ("ctrl+y", "ctrl+shift+z"):
        program.keys("ctrl+z")
        program.wait_for("four rows again", lambda: rows() == 4)
        program.keys(redo)
        program.wait_for("three rows again", lambda: rows() == 3)
    program.pick("Édition", "Annuler")
    program.wait_for("the row that was taken back by the menu", lambda: cells(0) == ["Alpha", "Alpha", "beta", "beta"])
    drag((left + 250, top + 10), (left + 250, top + 75))
    xdotool("mouseup", 1)
    program.wait_for("the moved row", lambda: cells(0) == ["Alpha", "beta", "beta", "Alpha"])
    click(left + 450, top + 50, "--repeat", 2)
    program.keys("ctrl+a")
    program.type("B")
    assert cells(1) == ["one", "", "", "one"]


def check_cover(program, place):
    """While a dialog hangs on this window, the other one takes no click. Both clicks come by the same way, in order."""
    program.press("Traiter")
    dialog = program.dialog()
    button = next(node for node in nodes(dialog) if node.get_name() == "Continuer")
    click(*place)
    program.wait_for("the dialog in front again", lambda: has(dialog, "active"))
    texts = [text_of(node) for node in nodes(dialog) if node.get_role_name() == "text"]
    program.click(button)
    program.wait_until_gone(dialog)
    assert not program.windows(dialogs=True), "the covered window has opened a chooser"
    return texts


def main(command):
    with sample() as files:
        original = files.home / "text.txt"
        original.write_text("ALPHA, beta and alpha é\n", "utf-8")
        with files.preferences.open("a", encoding="utf-8") as preferences:
            preferences.write("PathSpecA :@: \nTabSpecAorg :@: \nTabSpecAdest1 :@: \nTabSpecAdest2 :@: \n")
        with Program([command], private_environment(files.home)) as program:
            left, top, width, height = program.extents(program.find("push button", "Ouvrir Url"))
            program.press("Spécial A", "check box")
            program.front = "Spécial A"
            program.press("Choisir fichier…")
            dialog = open_chooser(program)  # with neither an original nor documents it begins beside the program
            assert str(pathlib.Path(command).resolve().parent) in {text_of(node) for node in nodes(dialog)}
            program.keys("Escape")
            program.wait_until_gone(dialog)
            drop(program, command, original)
            program.set_text(program.find("text", "Dest 1 :"), "first.txt")
            program.set_text(program.find("text", "Dest 2 :"), "second.txt")
            edit(program)
            found = check_cover(program, (left + width // 2, top - height // 2))
            assert found == [f"{REPORT}\n • 2 x “Alpha”\n • 1 x “beta”\n • 1 x “beta”\n • 2 x “Alpha”"], found
            expected = "one,  and one é\n", "two, B and two é\n"
            program.find("notification", f"Écrit : first.txt, second.txt, dans {files.home}.")
            assert tuple((files.home / name).read_text("utf-8") for name in ("first.txt", "second.txt")) == expected
            assert original.read_text("utf-8") == "ALPHA, beta and alpha é\n"
            program.keys("ctrl+shift+a")
            program.front = "Tarnivel"
            text = program.find("text", "Spack Après")
            program.wait_for("the focus where it was before the treatment", lambda: has(text, "focused"))
            program.keys("ctrl+shift+a")
            program.front = "Spécial A"
            program.press("Quitter")
            assert (program.wait_for_end(), program.stderr()) == (0, "")
        assert "TabSpecAdest2 :@: second.txt\ttwo\tB\tB\ttwo\n" in files.preferences.read_text("utf-8")


main(*sys.argv[1:])
