"""The window "Spécial A": a file dragged there, cells edited by hand, a treatment, and clicks on a covered window."""

import pathlib
import subprocess
import sys
import time

from desktop import Program, has, pixel, private_environment, xdotool
from gi.repository import Atspi
from sample import sample

REPORT = "Nombre de fois où les textes cherchés ont été trouvés :"


def drag(program, command, file):
    """Drags a file from another window onto the frame; the screen's colour there before, during and after."""
    source = subprocess.Popen([pathlib.Path(command).parent / "drag_source", file])
    try:
        number = xdotool("search", "--sync", "--onlyvisible", "--name", "Drag source").split()[0]
        empty = pixel(1150, 750)
        xdotool("windowmove", number, 1000, 600)
        program.wait_for("the other window", lambda: pixel(1150, 750) != empty)
        left, top, width, height = program.extents(program.find(name="Source"))
        spot = left + 10, top + height - 10
        colors = [pixel(*spot)]
        xdotool("mousemove", 1100, 700, "mousedown", 1)
        for step in range(1, 11):
            xdotool("mousemove", 1100 + (left + 100 - 1100) * step // 10, 700 + (top + 60 - 700) * step // 10)
            time.sleep(0.05)  # a drag takes its steps from movements that are apart
        program.wait_for("the highlight", lambda: pixel(*spot) != colors[0])
        colors.append(pixel(*spot))
        xdotool("mouseup", 1)
        program.wait_for("the end of the highlight", lambda: pixel(*spot) == colors[0])
        return [*colors, pixel(*spot)]
    finally:
        source.kill()
        source.wait()


def edit(program):
    """Makes two rows by the keyboard; the last cell is still being edited."""
    table = program.find("table", "Spécial A")
    for rows in (1, 2):
        program.press("+")
        program.wait_for("the row", lambda rows=rows: Atspi.Table.get_n_rows(table) == rows)
    left, top, _, _ = program.extents(table)
    xdotool("mousemove", left + 20, top + 10, "click", "--repeat", 2, 1)
    for words in (("Alpha", "one", "two"), ("beta", "", "B")):
        for word in words:
            program.type(word)
            if words != ("beta", "", "B") or word != "B":
                program.keys("Tab")


def check_cover(program, main):
    """While a dialog hangs on this window, the other one takes no click."""
    program.press("Traiter")
    dialog = program.dialog()
    left, top, width, height = program.extents(main)
    xdotool("mousemove", left + width - 60, top + 85, "click", 1)
    program.wait_for("the dialog in front again", lambda: has(dialog, "active"))
    assert len(program.windows(dialogs=True)) == 1, "the covered window has opened a chooser"


def main(command):
    with sample() as files:
        original = files.home / "text.txt"
        original.write_text("ALPHA, beta and alpha é\n", "utf-8")
        with files.preferences.open("a", encoding="utf-8") as preferences:
            preferences.write("PathSpecA :@: \nTabSpecAorg :@: \nTabSpecAdest1 :@: \nTabSpecAdest2 :@: \n")
        with Program([command], private_environment(files.home)) as program:
            window = program.window()
            program.press("Spécial A", "check box")
            program.front = "Spécial A"
            before, over, after = drag(program, command, original)
            assert before == after != over, (before, over, after)
            program.wait_for("the file", lambda: program.text(program.find("text", "Original :")) == "text.txt")

            program.set_text(program.find("text", "Dest 1 :"), "first.txt")
            program.set_text(program.find("text", "Dest 2 :"), "second.txt")
            edit(program)
            check_cover(program, window)
            assert program.answer("Continuer") == [f"{REPORT}\n • 2 x “Alpha”\n • 1 x “beta”"]
            expected = "one,  and one é\n", "two, B and two é\n"
            program.wait_for("both files", lambda: (files.home / "second.txt").exists())
            assert tuple((files.home / name).read_text("utf-8") for name in ("first.txt", "second.txt")) == expected
            assert original.read_text("utf-8") == "ALPHA, beta and alpha é\n"
            program.press("Quitter")
            assert program.wait_for_end() == 0
            assert program.stderr() == "", program.stderr()
        assert "TabSpecAdest2 :@: second.txt\ttwo\tB\n" in files.preferences.read_text("utf-8")


main(*sys.argv[1:])
