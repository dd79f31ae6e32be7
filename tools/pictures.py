"""Makes the pictures of the documents anew, in French and in English.

Usage: tools/screen.sh /usr/bin/python3 tools/pictures.py PROGRAM FOLDER
FOLDER gets a new sample of files; its path may be seen in the pictures.
"""

import pathlib
import re
import shutil
import subprocess
import sys

from desktop import Program
from tour import environment, shoot, texts, tour

TOOLS = pathlib.Path(__file__).parent
WANTED = ("main", "report", "save", "special", "treat", "preferences", "help")
WITH_WHAT_IS_BEHIND = ("report", "save", "treat")


def main(command, folder):
    for language in ("fr", "en"):
        shutil.rmtree(folder, ignore_errors=True)
        subprocess.run([sys.executable, TOOLS / "make_sample.py", folder], check=True)
        settings = next(pathlib.Path(folder).rglob("Tarnivel Prefs.txt"))
        settings.write_text(re.sub("(Fenetre WinMain :@: ).*", r"\g<1>60,60,760,620", settings.read_text("utf-8")), "utf-8")
        with Program([command], environment(folder, language)) as program:
            for name in tour(program, texts(language)):
                if name in WANTED:
                    picture = TOOLS.parent / "docs" / "pictures" / f"{name}_{language}.png"
                    shoot(picture, front=name not in WITH_WHAT_IS_BEHIND)
            program.close()


main(*sys.argv[1:])
