"""Models from a hostile web server: each is told as an error or can be stopped, within the limits of memory."""

import itertools
import pathlib
import socketserver
import sys
import threading
import time
import zlib

from desktop import Program, private_environment
from sample import sample

MIB = 1 << 20
FETCH, SHOW = 128, 1024  # MiB that the program may take with a fetch under way, and to show the worst that it accepts
OK, MOVED = "HTTP/1.1 200 OK\r\n", "HTTP/1.1 302 Found\r\nLocation: "
CHUNKED = OK + "Transfer-Encoding: chunked\r\n\r\n"
REFUSED = "### Error ###  Content should begin with :"


def forever(piece):
    return itertools.repeat(piece)


def bomb():
    packer = zlib.compressobj(9, wbits=31)
    return b"".join(packer.compress(bytes(MIB)) for _ in range(1024)) + packer.flush()


def drip():
    while True:
        time.sleep(1)
        yield b"."


LONG, NO_HTTP = "299 The answer is longer than 8388608 bytes", "399 The server's answer is no HTTP"
HEAD, CUT = "299 The answer has a head of more than 1048576 bytes", "2 The connection ended within the answer"
AWAY = "301 Redirected to what is not fetched: "
# The head, the pieces behind it, how the model on screen ends. Where the pieces come to an end, so does the connection.
ENDED = {
    "an endless body": (OK + "\r\n", forever(b"x" * MIB), LONG),
    "endless pieces": (CHUNKED, forever(b"100000\r\n%s\r\n" % bytes(MIB)), LONG),
    "endless lines": (OK + "\r\n", forever(b"\n" * MIB), "299 The answer has more than 250000 lines"),
    "1 GiB of blanks": (f"{OK}Content-Length: {1024 * MIB}\r\n\r\n", forever(b" " * MIB), LONG),
    "1 GiB of blanks unannounced": (OK + "\r\n", itertools.repeat(b" " * MIB, 1024), LONG),
    "a bomb": (OK + "Content-Encoding: gzip\r\n\r\n", [bomb()], ""),
    "binary": (OK + "\r\n", [bytes(range(256)) * 256], ""),
    "garbage": ("", forever(b"\0\xff" * MIB), HEAD),
    "a garbled piece": (CHUNKED, [b"5\r\nhello\r\nzz\r\nhello\r\n"], NO_HTTP),
    "a piece of an endless size": (CHUNKED, forever(b"0" * MIB), HEAD),
    "endless lines behind the pieces": (CHUNKED + "0\r\n", forever(b"X: y\r\n" * MIB), HEAD),
    "endless lines in the head": (OK, forever(b"X: y\r\n" * MIB), HEAD),
    "100 MiB in one line of the head": (OK + "X: ", itertools.repeat(b"y" * MIB, 100), HEAD),
    "more announced than sent": (OK + "Content-Length: 9\r\n\r\n", [b"hello"], CUT),
    "less announced than sent": (OK + "Content-Length: 5\r\n\r\n", forever(b"hello" * MIB), "*\nhello"),
    "a redirection with an endless body": (MOVED + "http:\r\n\r\n", forever(b"x" * MIB), AWAY + "http:"),
    "a redirection in a circle": (MOVED + "/\r\n\r\n", [], "10 Too many redirects"),
    "a redirection to a file": (MOVED + "file:///etc/passwd\r\n\r\n", [], AWAY + "file:///etc/passwd"),
    "a redirection to another scheme": (MOVED + "data:,I\r\n\r\n", [], AWAY + "data:,I"),
    "a byte a second": (OK + "\r\n", drip(), "4 No answer within 10 seconds"),
}
TABS = (f"{OK}Content-Length: {8 * MIB}\r\n\r\n", [b"\t" * (8 * MIB)])


class Server(socketserver.ThreadingTCPServer):
    daemon_threads = True

    def __init__(self):
        super().__init__(("127.0.0.1", 0), Handler)
        self.here = f"http://127.0.0.1:{self.server_address[1]}/"
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def serve(self, head, pieces):
        self.answer, self.asked, self.ended = (head, pieces), threading.Event(), threading.Event()


class Handler(socketserver.StreamRequestHandler):
    def handle(self):
        while self.rfile.readline().strip():
            pass
        (head, pieces), ended = self.server.answer, self.server.ended
        self.server.asked.set()
        try:
            self.wfile.write(head.encode())
            for piece in pieces:
                self.wfile.write(piece)
        except OSError:  # the program has had enough
            ended.set()


def check_peak(program, name, limit):
    """Whether the program kept within so many MiB since the last call."""
    folder = pathlib.Path(f"/proc/{program.process.pid}")
    peak = next(int(line.split()[1]) // 1024 for line in (folder / "status").open() if line.startswith("VmHWM:"))
    print(f"{name}: at most {peak} MiB")
    assert peak <= limit or "libasan" in (folder / "maps").read_text(), f"{name}: {peak} MiB are more than {limit}"
    (folder / "clear_refs").write_text("5")


def run(program, server, head, pieces, *_):
    server.serve(head, pieces)
    program.press("Générer")
    program.wait_for("a request", server.asked.is_set)


def check_alive(program, seconds):
    """Whether the program answers again and again, with a fetch under way."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        start = time.monotonic()
        assert program.all("push button", "Arrêter"), "the fetch has ended"
        assert time.monotonic() - start < 5, "the program was deaf"


def main(command):
    server = Server()
    with sample() as files:
        with files.preferences.open("a", encoding="utf-8") as preferences:
            preferences.write(f"Source Model :@: 1\nSourceUrl :@: {server.here}\n")
        with Program([command], private_environment(files.home)) as program:
            program.choose("Spack Modèle")
            area = program.find("text", "Spack Modèle")
            for name, case in ENDED.items():
                run(program, server, *case)
                if name == "a byte a second":
                    check_alive(program, 7)
                program.find("push button", "Générer")
                text = program.text(area)
                assert text.startswith(REFUSED) or text == case[2], f"{name}: {text[:200]}"
                assert text.endswith(case[2]), f"{name}: {text[-200:]}"
                check_peak(program, name, FETCH)
            run(program, server, OK + "X: ", drip())
            check_alive(program, 2)
            program.press("Arrêter")
            program.find("push button", "Générer")
            program.wait_for("the end of the connection", server.ended.is_set)
            assert program.text(area) == ""

            run(program, server, *TABS)
            program.find("push button", "Générer")
            check_peak(program, "8 MiB of tabs on screen", SHOW)
            run(program, server, OK + "\r\n", [files.model_file.read_bytes()])
            program.answer_until("Générer")
            assert program.text(area) == files.model_file.read_text("utf-8")
            assert program.close() == 0
    server.shutdown()


main(*sys.argv[1:])
