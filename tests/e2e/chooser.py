"""The file and folder choosers, and items revealed in a file manager that the test provides on the session bus."""

import os
import pathlib
import shutil
import sys
import threading

from choosing import choose, open_chooser, press_beside
from desktop import Program, private_environment
from gi.repository import Gio, GLib
from sample import sample

NAME, PLACE = "org.freedesktop.FileManager1", "/org/freedesktop/FileManager1"
INTERFACE = f"""<node><interface name="{NAME}"><method name="ShowItems">
  <arg type="as" direction="in"/><arg type="s" direction="in"/></method></interface></node>"""
MODEL, ARCHIVE, SPACK = "Fichier modèle", "Sauv anc Spack", "scenery_packs.ini"


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


def check_cancel(program):
    for name in (MODEL, ARCHIVE, SPACK):
        before = program.text(program.find("text", name)), program.text(program.find("text", "Spack Après"))
        press_beside(program, name)
        dialog = open_chooser(program)
        program.keys("Escape")
        program.wait_until_gone(dialog)
        assert (program.text(program.find("text", name)), program.text(program.find("text", "Spack Après"))) == before


def check_reveal(program, manager, files):
    """A field without an item reveals nothing and opens no chooser; another shows its item, a line shows its folder."""
    model = program.find("text", MODEL)
    place = program.text(model)
    with program.held("shift"):
        program.set_text(model, "")
        press_beside(program, MODEL)
        press_beside(program, ARCHIVE)
        program.wait_for("the archive folder", lambda: manager.shown == [str(files.archives)])
        program.set_text(model, place)
        press_beside(program, MODEL)
        program.wait_for("the model", lambda: manager.shown[1:] == [str(files.model_file)])
        assert not program.windows(dialogs=True)
    area = program.find("text", "Spack Après")
    caret = program.text(area).index("Phares")
    program.select(area, caret, caret)
    program.press("Affich Dossier")
    folder = str(files.source_file.parent / "Phares de Bretagne")
    program.wait_for(folder, lambda: manager.shown[2:] == [folder])


def main(command):
    manager = FileManager()
    with sample() as files, Program([command], private_environment(files.home)) as program:
        program.press("Générer")
        program.answer_until("Générer")
        check_cancel(program)
        check_reveal(program, manager, files)

        choose(program, ARCHIVE, files.source_file.parent)
        assert program.text(program.find("text", "Spack Après"))
        other = pathlib.Path(shutil.copy(files.source_file, files.home))
        choose(program, SPACK, other)
        for row in ("Spack Après", "Spack Avant"):
            program.choose(row)
            assert program.text(program.find("text", row)) == "", row
        program.choose("Spack Modèle")
        assert program.text(program.find("text", "Spack Modèle"))
        choose(program, MODEL, other)
        assert program.text(program.find("text", "Spack Modèle")) == ""
        program.press("Générer")
        program.answer_until("Générer")
        program.choose("Spack Après")
        counts = next(node.get_name() for node in program.all("label") if " · " in node.get_name())
        assert counts.endswith(" 0 sans équivalent"), counts
        assert (program.close(), program.stderr()) == (0, "")


main(*sys.argv[1:])
