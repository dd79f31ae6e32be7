"""A model from a web server: a fetch that hangs is stopped, and the next run gets its model."""

import http.server
import sys
import threading

from desktop import Program, private_environment
from sample import pack, sample


class Server(http.server.ThreadingHTTPServer):
    """Serves the model; under /hang it sends the headers and then nothing until it is closed."""

    def __init__(self, model):
        self.model, self.hanging, self.ended = model, threading.Event(), threading.Event()
        super().__init__(("127.0.0.1", 0), Handler)
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def url(self, path):
        return f"http://127.0.0.1:{self.server_port}{path}"


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):  # noqa: N802
        self.send_response(200)
        self.send_header("Content-Length", str(len(self.server.model)))
        self.end_headers()
        if self.path == "/hang":
            self.server.hanging.set()
            self.server.ended.wait()
        else:
            self.wfile.write(self.server.model)

    def log_message(self, *_):
        pass


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
