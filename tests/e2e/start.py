"""Starts on bad ground: preferences of random bytes, no home folder, a home where nothing can be made."""

import pathlib
import random
import sys
import tempfile

from desktop import Program, private_environment

FAILURE = "Error ! Please contact the authors.\n \nImpossible to create the Preferences folder."


def random_preferences(command):
    with tempfile.TemporaryDirectory() as home:
        folder = pathlib.Path(home, ".local", "share", "fr.Kavesti.Tarnivel Datas")
        folder.mkdir(parents=True)
        (folder / "Tarnivel Prefs.txt").write_bytes(random.Random(7).randbytes(300_000))
        with Program([command], private_environment(home)) as program:
            assert program.text(program.find("text", "Fichier modèle")) == ""
            assert program.text(program.find("text", "Url modèle")).endswith("/Xplane/Orvelan/scenery_packs_Model01.ini")
            assert program.close() == 0


def refused(command, environment):
    with Program([command], environment) as program:
        texts = program.answer("Quitter")
        assert FAILURE in texts, texts
        assert program.wait_for_end() == 0


def main(command):
    random_preferences(command)
    refused(command, private_environment())
    refused(command, private_environment("/dev/null"))


main(*sys.argv[1:])
