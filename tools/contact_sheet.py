"""One picture of all windows and dialogs: a row for each language and appearance, the main window as small as it gets.

Usage: tools/screen.sh /usr/bin/python3 tools/contact_sheet.py PROGRAM FOLDER [LANGUAGE...]
FOLDER gets the sheet in half its size, and the rows and single pictures in full. All languages take some five minutes.
"""

import pathlib
import subprocess
import sys

from desktop import Program
from tour import LANGUAGES, environment, make_sample, shoot, texts, tour


def row(command, folder, language, appearance):
    pictures = []
    make_sample(f"{folder}/sample", "720,400")
    with Program([command], environment(f"{folder}/sample", language, appearance)) as program:
        for name in tour(program, texts(language)):
            pictures.append(f"{folder}/{appearance}_{language}_{name}.png")
            shoot(pictures[-1], front=not name.startswith("Menu"))
        program.close()
    return append("+append", pictures, f"{folder}/{appearance}_{language}.png")


def append(how, pictures, path):
    command = ["convert", *pictures, "+repage", "-background", "white", how, "-colors", "128", f"PNG8:{path}"]
    subprocess.run(command, check=True)
    return path


def main(command, folder, *languages):
    pathlib.Path(folder).mkdir(parents=True, exist_ok=True)
    rows = [row(command, folder, language, look) for look in ("light", "dark") for language in languages or LANGUAGES]
    append("-append", [f"{path}[50%]" for path in rows], f"{folder}/sheet.png")


main(*sys.argv[1:])
