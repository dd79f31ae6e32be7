"""Makes the pictures of the documents anew, in French and in English.

Usage: tools/screen.sh /usr/bin/python3 tools/pictures.py PROGRAM FOLDER
FOLDER gets a new sample of files; its path may be seen in the pictures.
"""

import sys

from desktop import Program
from tour import TOOLS, environment, make_sample, shoot, texts, tour

WANTED = ("main", "report", "save", "special", "treat1", "preferences", "help", "propose")
WITH_WHAT_IS_BEHIND = ("report", "save", "treat1", "propose")


def main(command, folder):
    for language in ("fr", "en"):
        make_sample(folder, "760,620")
        with Program([command], environment(folder, language)) as program:
            for name in tour(program, texts(language)):
                if name in WANTED:
                    picture = TOOLS.parent / "docs" / "pictures" / f"{name.rstrip('1')}_{language}.png"
                    shoot(picture, front=name not in WITH_WHAT_IS_BEHIND)
            program.close()


main(*sys.argv[1:])
