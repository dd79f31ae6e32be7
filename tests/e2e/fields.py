"""What is typed, pasted and dropped into the path and address fields by mouse and keyboard, and where choosers open."""

import contextlib
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

from choosing import open_chooser, path_form
from desktop import Program, has, nodes, private_environment, text_of, xdotool
from sample import sample

MODEL, URL, ARCHIVE, SPACK, SEARCH = "Fichier modèle", "Url modèle", "Sauv anc Spack", "scenery_packs.ini", "Chercher"


def click(program, node, *button):
    left, top, width, height = program.extents(node)
    xdotool("mousemove", left + width // 2, top + height // 2, "click", *(button or [1]))


def says(program, sentence):
    program.find("notification", sentence)


def holds(program, field, text):
    program.wait_for(text, lambda: program.text(field) == text)


def write(program, field, text, end):
    """Types a text over what the field holds."""
    click(program, field)
    program.keys("ctrl+a")
    program.type(text)
    program.wait_for("the text as it was typed", lambda: program.text(field) == text)
    program.keys(end)


@contextlib.contextmanager
def dropped(program, command, field, *items):
    """Drags items from another window onto a field, and waits for what that brings."""
    with subprocess.Popen([pathlib.Path(command).parent / "drag_source", *items]) as source:
        number = xdotool("search", "--sync", "--onlyvisible", "--name", "Drag source").split()[0]
        xdotool("windowmove", "--sync", number, 1000, 600)
        left, top, _, height = program.extents(field)
        xdotool("mousemove", 1100, 700, "mousedown", 1)
        for step in range(1, 11):  # a drag takes its steps from movements that are apart
            xdotool("mousemove", 1100 + (left - 1050) * step // 10, 700 + (top + height // 2 - 700) * step // 10)
            time.sleep(0.05)
        xdotool("mouseup", 1)
        yield
        source.kill()


def check_written(program, files):
    """A native path becomes its path form, and nothing else happens."""
    model, archive, url = (program.find("text", name) for name in (MODEL, ARCHIVE, URL))
    result = program.text(program.find("text", "Spack Après"))
    copy = pathlib.Path(shutil.copy(files.model_file, files.home / "copie.ini"))
    write(program, model, "~/copie.ini ", "Tab")
    holds(program, model, path_form(copy))
    write(program, model, f"file://{files.model_file}", "Return")
    holds(program, model, path_form(files.model_file))
    program.keys("ctrl+z")
    holds(program, model, f"file://{files.model_file}")
    write(program, model, "/nowhere", "Tab")
    holds(program, model, "/nowhere")
    program.set_text(program.find("text", SEARCH), str(files.archives))
    program.keys("ctrl+f", "End", "shift+Home")
    click(program, archive, 2)
    holds(program, archive, path_form(files.archives))

    write(program, url, " http://localhost/model.ini", "Return")
    holds(program, url, "http://localhost/model.ini")
    program.wait_for("the address as source", lambda: has(program.find("radio button", URL), "checked"))
    assert program.text(program.find("text", "Spack Après")) == result


def check_dropped(program, command, files):
    spack, model, area = program.find("text", SPACK), program.find("text", MODEL), program.find("text", "Spack Après")
    before = program.text(spack), program.text(area)
    (files.home / "photo.png").touch()
    for items in ([files.home / "photo.png"], [files.archives], [files.model_file, files.source_file]):
        with dropped(program, command, spack, *items):
            says(program, "Vous ne pouvez glisser déposer qu'un fichier contenant du texte ici.")
        assert (program.text(spack), program.text(area)) == before
    with dropped(program, command, model, files.model_file):
        holds(program, area, "")
    assert program.text(model) == path_form(files.model_file)
    assert has(program.find("radio button", MODEL), "checked")


def check_choosers(program, files):
    """By the keys of the menu; each begins at what its field holds."""
    for keys, prompt, item in (
        ("ctrl+o", "Choisir un fichier :", files.source_file),
        ("ctrl+shift+o", "Choisir un fichier :", files.model_file),
        ("ctrl+alt+o", "Choisir le dossier où garder les anciens “scenery_packs.ini” :", files.archives),
    ):
        program.keys(keys)
        dialog = open_chooser(program)
        assert dialog.get_name() == prompt
        shown = {text_of(node) for node in nodes(dialog)}
        assert {str(item)} <= shown if item.is_dir() else {str(item.parent), item.name} <= shown, shown
        assert {"Annuler", "Voir dans :"} <= shown, shown
        program.keys("Escape")
        program.wait_until_gone(dialog)


def check_desktop(program, files, folder):
    """Without programs for links and folders, then with one that keeps what it is asked to open."""
    area = program.find("text", "Spack Après")
    caret = program.text(area).index("Phares")
    program.select(area, caret, caret)
    program.press("Affich Dossier")
    says(program, "Aucun gestionnaire de fichiers ne répond.")
    opener, opened = folder / "xdg-open", folder / "opened"
    opener.write_text(f'#!/bin/sh\necho "$1" >>"{opened}"\n')
    program.press("Ouvrir Url")
    says(program, f"Aucun programme n'ouvre ce lien : {program.text(program.find('text', URL))}")
    opener.chmod(0o755)
    program.press("Ouvrir Url")
    address = program.text(program.find("text", URL))
    program.wait_for(address, lambda: opened.exists() and opened.read_text() == f"{address}\n")


def main(command):
    with sample() as files, tempfile.TemporaryDirectory() as folder:
        environment = private_environment(files.home)
        environment["PATH"] += f":{folder}"
        with Program([command], environment) as program:
            program.press("Générer")
            program.answer_until("Générer")
            built = program.find("push button", "Aide").get_description()
            assert re.fullmatch(r"Cette version a été compilée pour Linux .* le \d{4}-\d\d-\d\d\s\d\d:\d\d\sUTC", built), built
            check_desktop(program, files, pathlib.Path(folder))
            check_choosers(program, files)
            check_written(program, files)
            check_dropped(program, command, files)
            assert program.close() == 0
    with sample() as files, Program([command], private_environment(files.home, LC_ALL="", LANGUAGE="pl:de")) as program:
        program.find("push button", "Erzeugen")
        program.keys("ctrl+o")
        assert {"Abbrechen", "Alle Dateien"} <= {text_of(node) for node in nodes(open_chooser(program))}
        program.keys("Escape")
        program.wait_for("no chooser", lambda: not program.windows(dialogs=True))
        assert program.close() == 0


main(*sys.argv[1:])
