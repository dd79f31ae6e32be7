"""A model from a web server: a fetch that hangs is stopped, and the next run gets its model."""

import sys

from desktop import Program, private_environment
from sample import pack, sample
from server import Server


def main(command):
    with sample() as files:
        server = Server(files.model_file.read_bytes())
        with files.preferences.open("a", encoding="utf-8") as preferences:
            preferences.write(f"Source Model :@: 1\nSourceUrl :@: {server.url('/hang')}\n")

        with Program([command], private_environment(files.home)) as program:
            program.press("Générer")
            program.wait_for("a hanging fetch", server.hanging.is_set)
            program.press("Arrêter")
            program.find("push button", "Générer")
            area = program.find("text", "Spack Après")
            assert program.text(area) == ""

            program.set_text(program.find("text", "Url modèle"), server.url("/model.ini"))
            program.press("Générer")
            program.answer_until("Générer")
            lines = program.text(area).split("\n")
            known = [line for line in lines if pack(line) and pack(line) not in files.unknown_to_model()]
            assert known == files.known_in_model_order(), known
            assert program.close() == 0
        server.ended.set()
        server.shutdown()


main(*sys.argv[1:])
