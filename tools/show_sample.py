"""Starts the program, presses its run button, answers the reports and leaves a picture.

Usage: show_sample.py PROGRAM PICTURE, on a screen such as tools/screen.sh gives. The environment, and with it the
language and the preferences, is the caller's.
"""

import os
import pathlib
import re
import sys

from desktop import Program

TRANSLATIONS = pathlib.Path(__file__).parent.parent / "resources" / "translations"


def captions(french, key):
    """The text of a key in all languages."""
    entry = re.compile(rf'id="Localisation\.{key}".*?<translation>(.*?)</translation>', re.DOTALL)
    found = (entry.search(file.read_text("utf-8")) for file in TRANSLATIONS.glob("*.ts"))
    return {french} | {match[1] for match in found if match}


def main(command, picture):
    generate = captions("Générer", "Btn_Generer")
    with Program([command], os.environ) as program:
        program.press(generate)
        for report in program.answer_until(generate):
            print("\n".join(report), end="\n\n")
        program.screenshot(picture)
        program.close()
    print(f"Picture of the result: {picture}")


main(*sys.argv[1:])
