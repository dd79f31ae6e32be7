"""Models from hostile servers: each is told as an error or can be stopped, within the limits of time and memory."""

import contextlib
import gzip
import itertools
import pathlib
import re
import socket
import socketserver
import ssl
import subprocess
import sys
import tempfile
import threading
import time
import zlib

from desktop import Program, needs, private_environment
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


PACKED = OK + "Content-Encoding: gzip\r\n\r\n"
# Qt's own words are in the language of the program.
LONG, LATE = "###299 .+ 8 Mi?[oB] .+ 250000 .+", "###4 .+ 10 .+"
CUT, CIRCLE, AWAY, BOMB = (f"###{number} .+" for number in (2, 10, 301, 299))
# The head, the pieces behind it, how the model on screen ends, as a pattern. Where the pieces come to an end, so does the connection.
ENDED = {
    "an endless body": (OK + "\r\n", forever(b"x" * MIB), LONG),
    "endless pieces": (CHUNKED, forever(b"100000\r\n%s\r\n" % bytes(MIB)), LONG),
    "endless lines": (OK + "\r\n", forever(b"\n" * MIB), LONG),
    "1 GiB of blanks": (f"{OK}Content-Length: {1024 * MIB}\r\n\r\n", forever(b" " * MIB), LONG),
    "a packed answer": (PACKED, [gzip.compress(b"hello" * 999)], r"\*\n(hello){999}"),
    "a bomb": (PACKED, [bomb()], BOMB),
    "binary": (OK + "\r\n", [bytes(range(256)) * 256], ""),
    "garbage": ("", forever(b"\0\xff" * MIB), CUT),
    "an endless head": (OK, forever(b"X: y\r\n" * MIB), LATE),
    "more announced than sent": (OK + "Content-Length: 9\r\n\r\n", [b"hello"], CUT),
    "less announced than sent": (OK + "Content-Length: 5\r\n\r\n", forever(b"hello" * MIB), r"\*\nhello"),
    "a redirection with an endless body": (MOVED + "http:\r\n\r\n", forever(b"x" * MIB), LATE),
    "a redirection in a circle": (MOVED + "/\r\n\r\n", [], CIRCLE),
    "a redirection to a file": (MOVED + "file:///etc/passwd\r\n\r\n", [], AWAY),
    "a redirection to another scheme": (MOVED + "data:,I\r\n\r\n", [], AWAY),
    "a byte a second": (OK + "\r\n", drip(), LATE),
}
MAKE_CERTIFICATE = "openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=elsewhere".split()
TABS = (f"{OK}Content-Length: {8 * MIB}\r\n\r\n", [b"\t" * (8 * MIB)])


class Server(socketserver.ThreadingTCPServer):
    daemon_threads = True

    def __init__(self):
        super().__init__(("127.0.0.1", 0), Handler)
        self.port = self.server_address[1]
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def encrypt(self):
        """From now on under a certificate of its own making."""
        with tempfile.TemporaryDirectory() as folder:
            pair = f"{folder}/certificate", f"{folder}/key"
            command = [*MAKE_CERTIFICATE, "-out", pair[0], "-keyout", pair[1]]
            subprocess.run(command, check=True, stderr=subprocess.DEVNULL)
            context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            context.load_cert_chain(*pair)
        self.socket = context.wrap_socket(self.socket, server_side=True)

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


def check_fetch(program, server, address, content):
    program.set_text(program.find("text", "Url modèle"), address)
    run(program, server, OK + "\r\n", [content])
    program.find("push button", "Générer")
    assert program.text(program.find("text", "Spack Modèle")).endswith("*\n" + content.decode())


@contextlib.contextmanager
def swallow(port):
    """A port of the IPv6 address that takes no connection and refuses none, as its queue is full."""
    with contextlib.ExitStack() as stack:
        listener, *queued = (stack.enter_context(socket.socket(socket.AF_INET6)) for _ in range(3))
        listener.bind(("::1", port))
        listener.listen(0)
        for client in queued:
            client.setblocking(False)
            client.connect_ex(("::1", port))
        yield


def other_ways(program, server):
    with swallow(server.port):
        start = time.monotonic()
        check_fetch(program, server, f"http://localhost:{server.port}/", b"by the other address")
        assert time.monotonic() - start < 5, "an address that doesn't answer held up the other one"
    server.encrypt()
    check_fetch(program, server, f"https://127.0.0.1:{server.port}/", b"encrypted")


def silent_name_server(command, files):
    """A run that looks up a name in vain can be stopped, and the program ends soon."""
    with tempfile.NamedTemporaryFile("w") as configuration, socket.socket(type=socket.SOCK_DGRAM) as name_server:
        configuration.write("nameserver 127.3.2.1\n")
        configuration.flush()
        mount = f"mount --bind {configuration.name} /etc/resolv.conf"
        separate = ["unshare", "--map-root-user", "--mount", "sh", "-c", f'{mount} && exec "$@"', "sh"]
        try:
            name_server.bind(("127.3.2.1", 53))
            subprocess.run([*separate, "true"], check=True)
        except (PermissionError, subprocess.CalledProcessError) as error:
            return print("SKIPPED the silent name server:", error)
        with Program([*separate, command], private_environment(files.home)) as program:
            program.set_text(program.find("text", "Url modèle"), "http://name.example/")
            program.press("Générer")
            program.wait_for("a question to the name server", lambda: name_server.recv(512))
            program.press("Arrêter")
            program.find("push button", "Générer")
            start = time.monotonic()
            assert program.close() == 0
            assert time.monotonic() - start < 8, "the program waited for the name server"


def main(command):
    needs("openssl")
    server = Server()
    with sample() as files:
        with files.preferences.open("a", encoding="utf-8") as preferences:
            preferences.write(f"Source Model :@: 1\nSourceUrl :@: http://127.0.0.1:{server.port}/\n")
        with Program([command], private_environment(files.home)) as program:
            program.choose("Spack Modèle")
            area = program.find("text", "Spack Modèle")
            for name, case in ENDED.items():
                run(program, server, *case)
                if name == "a byte a second":
                    check_alive(program, 7)
                # Bytes that are no text are told.
                program.wait_for("the end", lambda: program.windows(dialogs=True) or program.all("push button", "Générer"))
                assert bool(program.windows(dialogs=True)) == (name == "binary"), name
                if name == "binary":
                    program.answer_until("Générer")
                text = program.text(area)
                assert text.startswith(REFUSED), f"{name}: {text[:200]}"
                assert re.search(case[2] + r"\Z", text), f"{name}: {text[-200:]}"
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
            model = files.model_file.read_bytes()
            run(program, server, OK + "\r\n", [model + b"# \xff\n"])
            (told,), *_ = program.answer_until("Générer")
            assert "octets qui ne sont pas de l'UTF-8" in told, told
            assert program.text(area) == model.decode("ascii", "ignore") + "# \n"
            other_ways(program, server)
            assert program.close() == 0
        silent_name_server(command, files)
    server.shutdown()


if __name__ == "__main__":
    main(*sys.argv[1:])
