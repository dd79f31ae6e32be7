"""The main job: a run with its reports and colours, lines switched on and off with and without keys and taken back, a
save with an archive by the button and by keys, and an edit that isn't lost."""

import signal
import sys

from choosing import open_chooser, press_beside
from desktop import Program, has, private_environment, xdotool
from sample import DISABLED, ENABLED, pack, sample

BLACK, GREEN, RED, ORANGE = "0,0,0", "0,200,0", "255,0,0", "255,127,0"
FOLDERS = "Ces dossiers sont dans le dossier “Custom Scenery” mais pas dans “scenery_packs.ini” :"
MODIFIED = "Le texte a été modifié et n'est pas enregistré. Continuer sans enregistrer ?"
SCENERIES = "Ces Sceneries sont dans “scenery_packs.ini” mais pas dans le dossier “Custom Scenery” :"
TOGGLE, SAVE = "Activer / Désactiver", "Sauv fichier"


def flipped(line):
    return (ENABLED if line.startswith(DISABLED) else DISABLED) + pack(line)


TOGGLES = [  # the keys held, how many lines are selected (0: the caret is in one), and what becomes of each
    ((), 3, flipped),
    (("shift",), 3, lambda line: ENABLED + pack(line)),
    (("ctrl",), 3, lambda line: DISABLED + pack(line)),
    (("shift", "ctrl"), 3, flipped),
    ((), 0, flipped),
]


def check_report(report, files):
    """The folders that the file does not list come first, then the sceneries that have no folder."""
    folders, sceneries = "\n".join(report).split(SCENERIES)
    assert folders.startswith(FOLDERS), report
    for part, expected in ((folders, files.folders_not_listed()), (sceneries, files.listed_without_folder())):
        assert {line[3:] for line in part.split("\n") if line.startswith(" - ")} == expected, (part, expected)


def check_colors(lines, marked):
    """Keywords are green or red, the rest of a line is orange when its pack is one of the marked ones."""
    for line, *colors in lines:
        keyword = RED if line.startswith(DISABLED) else GREEN
        wanted = [keyword, ORANGE if pack(line) in marked else BLACK] if pack(line) else [BLACK, BLACK]
        assert colors == wanted, (line, colors)
    assert ORANGE in {last for _, _, last in lines}


def toggle(program, area, marked, first, keys, count, change):
    before = program.lines(area)
    lines = [line for line, *_ in before]
    end = first + max(count, 1)
    start, changed = len("\n".join(lines[:first])) + 1, [change(line) for line in lines[first:end]]
    place = (start, start + len("\n".join(lines[first:end]))) if count else (start + 3, start + 3)
    program.select(area, *place)
    with program.held(*keys):
        program.press(TOGGLE)
        expected = "\n".join([*lines[:first], *changed, *lines[end:]])
        program.wait_for(f"{changed}", lambda: program.text(area) == expected)
    assert program.selection(area) == (start, start + len("\n".join(changed))), program.selection(area)
    check_colors(program.lines(area), marked)
    program.focus(area)
    program.keys("ctrl+z")
    program.wait_for("the lines before the toggle", lambda: program.lines(area) == before)
    assert start <= program.selection(area)[0] <= max(place[1], start + len(lines[first])), "the caret went elsewhere"


def save(program, files, text, ask):
    """Refused it changes nothing, confirmed it leaves one archive with the old bytes."""
    old = files.source_file.read_bytes()
    for answer in ("Annuler", SAVE):
        assert files.source_file.read_bytes() == old and not list(files.archives.iterdir())
        ask()
        program.answer(answer)
    program.wait_for("the saved text", lambda: files.source_file.read_bytes() == text.encode())
    (archive,) = files.archives.iterdir()
    assert archive.read_bytes() == old
    archive.unlink()


def main(command):
    with sample() as files, Program([command], private_environment(files.home)) as program:
        program.wait_for("an active window", lambda: has(program.window(), "active"))
        program.process.send_signal(signal.SIGSTOP)  # so that both presses come at once
        xdotool("key", "F5", "F5")
        program.process.send_signal(signal.SIGCONT)
        program.find("notification", "Arrêté : rien n'a été réordonné")
        reports = program.run()
        assert len(reports) == 1, reports
        check_report(reports[0], files)

        area = program.find("text", "Spack Après")
        result = program.text(area)
        assert sorted(result.split("\n")) == sorted([*files.source, ""]), result
        assert files.is_in_model_order(result), result
        check_colors(program.lines(area), files.unknown_to_model())
        middle = next(number for number, line in enumerate(result.split("\n")) if line.startswith(DISABLED))
        for keys, count, change in TOGGLES:
            toggle(program, area, files.unknown_to_model(), middle - (count > 0), keys, count, change)

        save(program, files, result, lambda: program.press(SAVE))
        added = ENABLED + "Custom Scenery/Ajout/"
        program.focus(area)
        program.keys("ctrl+End")
        program.type(added)
        program.wait_for("the typed line", lambda: program.text(area) == result + added)
        save(program, files, result + added, lambda: program.keys("ctrl+s"))
        program.focus(area)
        program.keys("Return")
        press_beside(program, "scenery_packs.ini")
        open_chooser(program)
        program.keys("Return")
        assert program.answer() == [MODIFIED]
        program.wait_for("the kept text", lambda: program.text(area) == result + added + "\n")
        program.choose("Spack Modèle")
        model = program.find("text", "Spack Modèle")
        assert program.text(model).rstrip("\n").split("\n") == files.model
        check_colors(program.lines(model), files.unknown_to_source())

        program.keys("ctrl+q")
        assert program.answer() == [MODIFIED]
        assert program.window().get_name() == "Tarnivel*", "the safe answer is the first"
        program.keys("ctrl+q")
        program.answer("Continuer")
        assert (program.wait_for_end(), program.stderr()) == (0, "")


main(*sys.argv[1:])
