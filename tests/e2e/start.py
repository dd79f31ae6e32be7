"""Starts on bad ground: preferences of random bytes, no home folder, a home where nothing can be made, a small screen."""

import pathlib
import random
import subprocess
import sys
import tempfile

from desktop import Program, private_environment
from sample import TOOLS


def random_preferences(command):
    with tempfile.TemporaryDirectory() as home:
        folder = pathlib.Path(home, ".local", "share", "fr.Kavesti.Tarnivel Datas")
        folder.mkdir(parents=True)
        (folder / "Tarnivel Prefs.txt").write_bytes(random.Random(7).randbytes(300_000))
        with Program([command], private_environment(home)) as program:
            texts = "".join(program.answer("OK"))
            assert "octets qui ne sont pas de l'UTF-8" in texts and "“Tarnivel Prefs 1.txt”" in texts, texts
            assert program.text(program.find("text", "Fichier modèle")) == ""
            assert program.text(program.find("text", "Url modèle")).endswith("/Xplane/Orvelan/scenery_packs_Model01.ini")
            assert program.close() == 0


def refused(command, environment, failure="Impossible to create the Preferences folder."):
    with Program([command], environment) as program:
        texts = program.answer("Quitter")
        assert any(text.startswith(f"Error ! Please contact the authors.\n \n{failure}") for text in texts), texts
        assert program.wait_for_end() == 1


def small_screen(command):
    with tempfile.TemporaryDirectory() as home:
        refused(command, private_environment(home), "The screen size is too small.")
        assert not list(pathlib.Path(home).rglob("Tarnivel*")), "a start that failed wrote preferences"


def main(command, on_small_screen=False):
    if on_small_screen:
        return small_screen(command)
    random_preferences(command)
    refused(command, private_environment())
    refused(command, private_environment("/dev/null"))
    with tempfile.TemporaryDirectory() as home:
        # As many pixels as the window needs, in half as many points.
        with Program([command], private_environment(home, QT_FONT_DPI="192")) as program:
            left, top, width, height = program.extents(program.window())
            assert 0 <= left and left + width <= 1280 and top + height <= 900, (left, top, width, height)
            assert program.close() == 0
    subprocess.run([TOOLS / "screen.sh", "780x459", sys.executable, __file__, command, "small"], check=True)


main(*sys.argv[1:])
