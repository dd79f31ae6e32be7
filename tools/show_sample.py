"""Starts the program, presses its run button, answers the reports and leaves a picture.

Usage: show_sample.py PROGRAM PICTURE, on a screen such as tools/screen.sh gives. The environment, and with it the
language and the preferences, is the caller's.
"""

import os
import sys

from desktop import Program
from tour import LANGUAGES, texts


def main(command, picture):
    generate = {texts(language)["Btn_Generer"] for language in LANGUAGES}
    with Program([command], os.environ) as program:
        program.press(generate)
        for report in program.answer_until(generate):
            print("\n".join(report), end="\n\n")
        program.screenshot(picture)
        program.close()
    print(f"Picture of the result: {picture}")


main(*sys.argv[1:])
