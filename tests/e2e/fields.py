"""What is typed, pasted, chosen and dropped into the path and address fields by mouse and keyboard, where choosers open, and
items revealed in a file manager that the test provides on the session bus."""

import os
import pathlib
import re
import shutil
import sys
import tempfile
import threading

from choosing import choose, dropped, open_chooser, path_form, press_beside
from desktop import Program, has, nodes, private_environment, text_of
from gi.repository import Gio, GLib
from sample import sample

NAME, PLACE = "org.freedesktop.FileManager1", "/org/freedesktop/FileManager1"
INTERFACE = f"""<node><interface name="{NAME}"><method name="ShowItems">
  <arg type="as" direction="in"/><arg type="s" direction="in"/></method></interface></node>"""
MODEL, URL, ARCHIVE, SPACK, SEARCH = "Fichier modèle", "Url modèle", "Sauv anc Spack", "scenery_packs.ini", "Chercher"
RESULT = "Spack Après"


class FileManager:
    """Keeps the paths that it is asked to show."""

    def __init__(self):
        self.shown, self.ready = [], threading.Event()
        threading.Thread(target=self.serve, daemon=True).start()
        assert self.ready.wait(20)

    def serve(self):
        context = GLib.MainContext()
        context.push_thread_default()
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        bus = Gio.DBusConnection.new_for_address_sync(os.environ["DBUS_SESSION_BUS_ADDRESS"], flags)
        bus.register_object(PLACE, Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0], self.show, None, None)
        Gio.bus_own_name_on_connection(bus, NAME, Gio.BusNameOwnerFlags.NONE, lambda *_: self.ready.set(), None)
        GLib.MainLoop(context).run()

    def show(self, bus, sender, place, interface, method, arguments, invocation):
        self.shown += [GLib.filename_from_uri(uri)[0] for uri in arguments[0]]
        invocation.return_value(None)


def content(program, name):
    return program.text(program.find("text", name))


def holds(program, field, text):
    program.wait_for(text, lambda: program.text(field) == text)


def write(program, field, text, end):
    """Types a text over what the field holds."""
    program.click(field)
    program.keys("ctrl+a")
    program.type(text)
    program.wait_for("the text as it was typed", lambda: program.text(field) == text)
    program.keys(end)


def check_desktop(program, folder):
    """Without programs for links and folders, then with one that keeps what it is asked to open."""
    program.press("Affich Dossier")
    program.find("notification", "Aucun gestionnaire de fichiers ne répond.")
    opener, opened, address = folder / "xdg-open", folder / "opened", content(program, URL)
    opener.write_text(f'#!/bin/sh\necho "$1" >>"{opened}"\n')
    program.press("Ouvrir Url")
    program.find("notification", f"Aucun programme n'ouvre ce lien : {address}")
    opener.chmod(0o755)
    program.press("Ouvrir Url")
    program.wait_for(address, lambda: opened.exists() and opened.read_text() == f"{address}\n")


def check_reveal(program, files):
    """A field without an item reveals nothing and opens no chooser; another shows its item, a line shows its folder."""
    manager, model = FileManager(), program.find("text", MODEL)
    place, folder = program.text(model), files.source_file.parent / "Phares de Bretagne"
    with program.held("shift"):
        program.set_text(model, "")
        press_beside(program, MODEL)
        press_beside(program, ARCHIVE)
        program.wait_for("the archive folder", lambda: manager.shown == [str(files.archives)])
        program.set_text(model, place)
        press_beside(program, MODEL)
        program.wait_for("the model", lambda: manager.shown[1:] == [str(files.model_file)])
        assert not program.windows(dialogs=True)
    program.press("Affich Dossier")
    program.wait_for(folder, lambda: manager.shown[2:] == [str(folder)])


def check_choosers(program, files):
    """By the keys of the menu; each begins at what its field holds, and Escape changes nothing."""
    before = [content(program, name) for name in (MODEL, ARCHIVE, SPACK, RESULT)]
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
        assert any(text.startswith("Fichiers texte (*.") for text in shown) != item.is_dir(), shown
        program.keys("Escape")
        program.wait_until_gone(dialog)
    assert before == [content(program, name) for name in (MODEL, ARCHIVE, SPACK, RESULT)]


def check_chosen(program, files):
    """A file empties the views that were made of another; a run over the model itself leaves nothing unmatched."""
    choose(program, ARCHIVE, files.source_file.parent)
    assert content(program, RESULT)
    other = pathlib.Path(shutil.copy(files.source_file, files.home))
    choose(program, SPACK, other)
    for row in (RESULT, "Spack Avant"):
        program.choose(row)
        assert content(program, row) == "", row
        program.focus(program.find("text", row))
        program.keys("ctrl+z", "x")
        program.wait_for("a history that begins here", lambda here=row: content(program, here) == "x")
        program.keys("ctrl+z")
    program.choose("Spack Modèle")
    assert content(program, "Spack Modèle")
    choose(program, MODEL, other)
    assert content(program, "Spack Modèle") == ""
    program.run()
    program.choose(RESULT)
    counts = next(node.get_name() for node in program.all("label") if " · " in node.get_name())
    assert counts.endswith(" 0 sans équivalent"), counts


def check_written(program, files):
    """A native path becomes its path form, and nothing else happens."""
    model, archive, url = (program.find("text", name) for name in (MODEL, ARCHIVE, URL))
    made = content(program, RESULT)
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
    program.click(archive, 2)
    holds(program, archive, path_form(files.archives))

    write(program, url, " http://localhost/model.ini", "Return")
    holds(program, url, "http://localhost/model.ini")
    program.wait_for("the address as source", lambda: has(program.find("radio button", URL), "checked"))
    assert content(program, RESULT) == made


def check_dropped(program, command, files):
    spack, model, area = (program.find("text", name) for name in (SPACK, MODEL, RESULT))
    before = program.text(spack), program.text(area)
    (files.home / "photo.png").touch()
    for items in ([files.home / "photo.png"], [files.archives], [files.model_file, files.source_file]):
        with dropped(program, command, spack, *items):
            program.find("notification", "Vous ne pouvez glisser déposer qu'un fichier contenant du texte ici.")
        assert (program.text(spack), program.text(area)) == before
    with dropped(program, command, program.find("text", URL), files.model_file):
        holds(program, program.find("text", URL), files.model_file.as_uri())
    with dropped(program, command, model, files.model_file):
        holds(program, area, "")
    assert program.text(model) == path_form(files.model_file)
    assert has(program.find("radio button", MODEL), "checked")


def main(command):
    with sample() as files, tempfile.TemporaryDirectory() as folder:
        environment = private_environment(files.home)
        environment["PATH"] += f":{folder}"
        with Program([command], environment) as program:
            program.run()
            built = program.find("push button", "Aide").get_description()
            assert re.fullmatch(r"Cette version a été compilée pour Linux .* le \d{4}-\d\d-\d\d\s\d\d:\d\d\sUTC", built), built
            caret = content(program, RESULT).index("Phares")
            program.select(program.find("text", RESULT), caret, caret)
            check_desktop(program, pathlib.Path(folder))
            check_reveal(program, files)
            check_choosers(program, files)
            check_chosen(program, files)
            check_written(program, files)
            check_dropped(program, command, files)
            assert program.close() == 0
    with sample() as files, Program([command], private_environment(files.home, LC_ALL="", LANGUAGE="tlh:de")) as program:
        program.find("push button", "Erzeugen")
        program.keys("ctrl+o")
        assert {"Abbrechen", "Alle Dateien"} <= {text_of(node) for node in nodes(open_chooser(program))}
        program.keys("Escape")
        program.wait_for("no chooser", lambda: not program.windows(dialogs=True))
        assert program.close() == 0


main(*sys.argv[1:])
