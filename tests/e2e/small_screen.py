"""A screen on which the window cannot stand: the program says so and ends, and leaves nothing behind."""

import pathlib
import sys
import tempfile

from desktop import Program, private_environment

FAILURE = "Error ! Please contact the authors.\n \nThe screen size is too small."


def main(command):
    with tempfile.TemporaryDirectory() as home:
        with Program([command], private_environment(home)) as program:
            texts = program.answer("Quitter")
            assert FAILURE in texts, texts
            assert program.wait_for_end() == 0
        assert not list(pathlib.Path(home).rglob("Tarnivel*")), "a start that failed wrote preferences"


main(*sys.argv[1:])
