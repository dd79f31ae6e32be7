"""Lines switched on and off with and without keys, taken back, and saved with an archive, by the button and by keys."""

import re
import sys

from desktop import Program, private_environment
from sample import DISABLED, ENABLED, pack, sample

TOGGLE, SAVE, CANCEL = "Activer / Désactiver", "Sauv fichier", "Annuler"
ARCHIVE = re.compile(r"scenery_packs_\d{4}-\d\d-\d\d_\d\d'\d\d'\d\d\.ini")
QUESTION = re.compile(r"Êtes-vous sûr de vouloir enregistrer “Spack Après” comme “Linux:.*:scenery_packs\.ini” \?")


def flipped(line):
    return (ENABLED if line.startswith(DISABLED) else DISABLED) + pack(line)


TOGGLES = [  # the keys held, and what becomes of a line
    ((), flipped),
    (("shift",), lambda line: ENABLED + pack(line)),
    (("ctrl",), lambda line: DISABLED + pack(line)),
    (("shift", "ctrl"), flipped),
]


def colored(program, area):
    """The text, and the colours at the first and the last character of each line."""
    text, offset, colors = program.text(area), 0, []
    for line in text.split("\n"):
        colors += [program.color_at(area, offset), program.color_at(area, max(offset, offset + len(line) - 1))]
        offset += len(line) + 1
    return text, colors


def toggle(program, area, keys, first, count, change):
    """Toggles lines that are selected, or the one of the caret (a count of 0), then takes it back."""
    before = colored(program, area)
    lines = before[0].split("\n")
    start = sum(len(line) + 1 for line in lines[:first])
    if count:
        program.select(area, start, start + len("\n".join(lines[first : first + count])))
    else:
        program.select(area, start + 3, start + 3)
    end = first + max(count, 1)
    changed = [change(line) for line in lines[first:end]]
    expected = "\n".join([*lines[:first], *changed, *lines[end:]])
    with program.held(*keys):
        program.press(TOGGLE)
        program.wait_for(f"{changed}", lambda: program.text(area) == expected)
    assert program.selection(area) == (start, start + len("\n".join(changed))), program.selection(area)
    after = colored(program, area)[1]
    for number, line in enumerate(changed):
        keyword, rest = after[2 * (first + number) :][:2]
        assert keyword == ("255,0,0" if line.startswith(DISABLED) else "0,200,0"), (line, keyword)
        assert rest == before[1][2 * (first + number) + 1], (line, rest)

    program.focus(area)
    program.keys("ctrl+z")
    program.wait_for("the text before the toggle", lambda: program.text(area) == before[0])
    assert colored(program, area) == before
    assert start <= program.selection(area)[0] <= start + len("\n".join(lines[first:end])), "the caret went elsewhere"


def check_save(program, files, text, ask):
    """One save, asked for by `ask`: refused it changes nothing, confirmed it leaves one archive with the old bytes."""
    old, archives = files.source_file.read_bytes(), files.archives
    ask()
    (question,) = program.answer(CANCEL)
    assert QUESTION.fullmatch(question), question
    ask()
    program.answer(CANCEL)
    assert files.source_file.read_bytes() == old and not list(archives.iterdir())
    ask()
    program.answer(SAVE)
    program.wait_for("the saved text", lambda: files.source_file.read_bytes() == text.encode())
    (archive,) = archives.iterdir()
    assert ARCHIVE.fullmatch(archive.name) and archive.read_bytes() == old, archive
    archive.unlink()


def main(command):
    with sample() as files, Program([command], private_environment(files.home)) as program:
        program.press("Générer")
        program.answer_until("Générer")
        area = program.find("text", "Spack Après")
        lines = program.text(area).split("\n")
        middle = next(number for number, line in enumerate(lines) if line.startswith(DISABLED))
        for keys, change in TOGGLES:
            toggle(program, area, keys, middle - 1, 3, change)
        toggle(program, area, (), middle, 0, flipped)

        check_save(program, files, "\n".join(lines), lambda: program.press(SAVE))
        edited = "\n".join([*lines[:-1], ENABLED + "Custom Scenery/Ajouté à la main 😀/", ""])
        program.set_text(area, edited)
        check_save(program, files, edited, lambda: program.keys("ctrl+s"))
        assert (program.close(), program.stderr()) == (0, "")


main(*sys.argv[1:])
