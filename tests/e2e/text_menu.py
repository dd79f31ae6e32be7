"""The menu "Texte" by its keys, and what the status bar says of each act."""

import sys

from desktop import Program, has, nodes, pixel, private_environment, xdotool
from gi.repository import Atspi
from sample import DISABLED, ENABLED, sample

ORANGE, FIRST = "255,127,0", "SCENERY_PACK Custom Scenery/{}/"
NO_FURTHER, NO_LINE = "Impossible de déplacer plus loin", "Il n'y a pas de ligne ici"


def status(program, area):
    """What the status bar must always show, counted here."""
    lines = program.lines(area)
    marked = [last == ORANGE for _, _, last in lines]
    here = program.text(area)[: program.selection(area)[1]].count("\n")
    lines = [line for line, *_ in lines[: -1 if lines[-1][0] == "" else None]]
    count = lambda prefix: sum(line.startswith(prefix) for line in lines)  # noqa: E731
    forms = ((len(lines), "ligne"), (count(ENABLED), "activée"), (count(DISABLED), "désactivée"))
    counts = ", ".join(f"{number} {word}{'' if number == 1 else 's'}" for number, word in forms)
    return f"Ligne {here + 1}{', sans équivalent' * marked[here]} · {counts}, {sum(marked)} sans équivalent"


class Editor:
    def __init__(self, program):
        self.program, self.area = program, program.find("text", "Spack Après")

    def keys(self, keys, says=None):
        """Presses keys in the text; what the status bar then says and shows."""
        self.program.keys(keys)
        if says is not None:
            self.program.wait_for(f"“{says}”", lambda: self.program.all("notification", says))
        self.program.wait_for("the counts", lambda: self.program.all("label", status(self.program, self.area)))

    def lines(self):
        return self.program.text(self.area).split("\n")

    def until(self, lines):
        self.program.wait_for(f"{lines[:6]}…", lambda: self.lines() == lines)


def check_lines(editor):
    """Moving, doubling and deleting the fifth line, and each taken back."""
    before = editor.lines()
    place = sum(len(line) + 1 for line in before[:5])
    editor.program.select(editor.area, place + 3, place + 3)
    up = [*before[:4], before[5], before[4], *before[6:]]
    editor.keys("alt+Up")
    editor.until(up)
    for _ in range(2):
        editor.keys("alt+Up")
    editor.keys("alt+Up", NO_FURTHER)
    for _ in range(2):
        editor.keys("alt+Down")
    for key, lines in (("alt+Down", before), ("ctrl+d", [*before[:6], *before[5:]]), ("ctrl+shift+k", before)):
        editor.keys(key)
        editor.program.wait_for(key, lambda wanted=lines: sorted(editor.lines()) == sorted(wanted))
    while editor.lines() != before:
        editor.keys("ctrl+z")
    editor.until(before)
    editor.program.keys("ctrl+End")
    for key, said in (("ctrl+d", NO_LINE), ("alt+Down", NO_FURTHER), ("ctrl+shift+k", NO_LINE)):
        editor.program.keys(key)
        editor.program.find("notification", said)


def check_marks(editor, marked):
    program, met = editor.program, []
    program.keys("ctrl+Home")
    for _ in range(marked):
        editor.keys("F8")
        met.append(program.selection(editor.area)[0])
        assert program.color_at(editor.area, met[-1] + 30) == ORANGE, met
    assert met == sorted(set(met)), met
    editor.keys("F8", "Reprise au début du texte")
    editor.keys("shift+F8", "Reprise à la fin du texte")
    assert program.selection(editor.area)[0] == met[-1]


def check_search(editor):
    """From the field, in which the next key goes on, and from the text; both go around, and a word that isn't there leaves
    the selection as it was for F3."""
    program, area, field, word = editor.program, editor.area, editor.program.find("text", "Chercher"), "bretagne"
    text = program.text(area).lower()
    places = [(at, at + len(word)) for at in range(len(text)) if text.startswith(word, at)]
    assert len(places) > 2, places
    program.keys("ctrl+Home", "ctrl+f")
    program.wait_for("the search field", lambda: has(field, "focused") and not has(area, "focused"))
    program.type(word)
    for key, place in [*(("Return", place) for place in [*places, places[0]]), ("F3", places[1]), ("shift+Return", places[0])]:
        with program.held(*key.split("+")[:-1]):
            program.keys(key.split("+")[-1])
            program.wait_for(f"{key}: {place}", lambda wanted=place: program.selection(area) == wanted)
        assert has(field, "focused"), key
    program.keys("Escape")
    program.wait_for("the focus in the text", lambda: has(area, "focused") and program.selection(area) == places[0])
    for key, place in (("F3", 1), ("shift+F3", 0), ("shift+F3", -1), ("F3", 0)):
        editor.keys(key)
        assert program.selection(area) == places[place], (key, place, program.selection(area))
    program.set_text(field, "nowhere")
    editor.keys("F3", "“nowhere” introuvable")
    assert program.selection(area) == places[0]
    program.press("Chercher")
    program.wait_for("no selection", lambda: program.selection(area) == (0, 0))
    program.press("Effacer")
    program.wait_for("an empty field", lambda: program.text(field) == "")


def check_wrapped_search(editor):
    """Where lines wrap, since the wheel made the text large, the previous match too stands five lines below the top."""
    program, area = editor.program, editor.area
    box = lambda: Atspi.Text.get_character_extents(area, program.selection(area)[0], Atspi.CoordType.SCREEN)  # noqa: E731
    left, top, width, height = program.extents(area)
    middle = len(program.text(area)) // 2
    program.select(area, middle, middle)
    small = box().height
    xdotool("mousemove", left + width // 2, top + height // 2)
    with program.held("ctrl"):
        xdotool("click", "--repeat", 12, 4)
    program.wait_for("a large text", lambda: box().height > 2 * small)
    program.set_text(program.find("text", "Chercher"), "SCENERY_PACK Custom")
    program.keys("shift+F3")
    program.wait_for("the match", lambda: program.selection(area)[0] != middle)
    white = lambda line: pixel(left + 10, top + 12 + line * box().height) == "srgb(255,255,255)"  # noqa: E731
    program.wait_for("the match below five lines", lambda: [white(line) for line in (4, 5, 6)] == [True, False, True])
    program.keys("ctrl+0")
    program.wait_for("a small text", lambda: box().height == small)


def check_folders(editor, files):
    program, before = editor.program, editor.lines()
    missing = files.folders_not_listed()
    program.pick("Texte", "Ajouter les dossiers absents du texte")
    added = [FIRST.format(name) for name in sorted(missing)]
    editor.until([*before[:4], *added, *before[4:]])
    gone = [line for line in editor.lines() if any(line.startswith(FIRST.format(n)) for n in files.listed_without_folder())]
    program.pick("Texte", "Désactiver les lignes sans dossier")
    program.wait_for("disabled lines", lambda: not set(gone) & set(editor.lines()))
    program.set_text(editor.area, "\n".join(before[:3]))
    program.pick("Texte", "Ajouter les dossiers absents du texte")
    program.wait_for("lines behind a bare header", lambda: len(editor.lines()) > 3 + len(missing))
    assert editor.lines()[:3] == before[:3] and added[0] in editor.lines(), editor.lines()


def main(command):
    with sample() as files, Program([command], private_environment(files.home)) as program:
        program.find("text", "Spack Après")
        program.keys("F5")
        reports = program.answer_until("Générer")
        editor = Editor(program)
        marked = sum(program.text(editor.area).count(f"{name}\n") for name in files.unknown_to_model())
        program.wait_for("what the run did", lambda: any(
            node.get_name().startswith("Réordonné : ") and f" {marked} sans équivalent" in node.get_name()
            for node in program.all("notification")))
        check_marks(editor, marked)
        check_lines(editor)
        check_search(editor)
        check_wrapped_search(editor)
        check_folders(editor, files)
        program.pick("Texte", "Dernier rapport")
        report = next(node for node in nodes(program.dialog()) if node.get_role_name() == "text")
        program.keys("shift+Tab")
        program.wait_for("the focus in the report", lambda: has(report, "focused"))
        program.keys("ctrl+a", "ctrl+c")
        shown = "\n".join(program.answer())
        assert all(text in shown for texts in reports for text in texts), (reports, shown)
        program.keys("ctrl+f", "ctrl+v")
        field = program.find("text", "Chercher")
        program.wait_for("the copied report", lambda: "Dernier rapport" in program.text(field))
        assert has(field, "focused")


main(*sys.argv[1:])
