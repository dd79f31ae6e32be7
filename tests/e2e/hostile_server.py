"""Models from hostile servers: each is told as an error or can be stopped, within the limits of time and memory."""

import contextlib
import gzip
import itertools
import pathlib
import re
import socket
import subprocess
import sys
import tempfile
import time
import zlib

from desktop import Program, needs, private_environment
from sample import sample
from server import OK, Server

MIB = 1 << 20
FETCH, SHOW = 128, 1024  # MiB that the program may take with a fetch under way, and to show the worst that it accepts
PLAIN, CHUNKED, PACKED = (
    f"{OK}{more}\r\n" for more in ("", "Transfer-Encoding: chunked\r\n", "Content-Encoding: gzip\r\n")
)
MOVED = "HTTP/1.1 302 Found\r\nLocation: "


def bomb():
    packer = zlib.compressobj(9, wbits=31)
    return b"".join(packer.compress(bytes(MIB)) for _ in range(3 * FETCH)) + packer.flush()


def drip():
    while True:
        time.sleep(1)
        yield b"."


forever = itertools.repeat
# Qt's own words are in the language of the program.
CUT, LATE, PACKED_TOO_MUCH, LONG = "###2 .+", "###4 .+ 10 .+", "###299 .+", "###299 .+ 8 Mi?[oB] .+ 250.000 .+"
ROWS = [  # the head, the pieces behind it, and how the model on screen ends; where the pieces end, so does the connection
    ("an endless body", PLAIN, forever(b"x" * MIB), LONG),
    ("endless pieces", CHUNKED, forever(b"100000\r\n%s\r\n" % bytes(MIB)), LONG),
    ("endless lines", PLAIN, forever(b"\n" * MIB), LONG),
    ("1 GiB of blanks", f"{OK}Content-Length: {1024 * MIB}\r\n\r\n", forever(b" " * MIB), LONG),
    ("a packed answer", PACKED, [gzip.compress(b"hello" * 999)], r"\*\n(hello){999}"),
    ("a bomb", PACKED, [bomb()], PACKED_TOO_MUCH),
    ("binary", PLAIN, [bytes(range(256)) * 256], ""),
    ("garbage", "", forever(b"\0\xff" * MIB), CUT),
    ("an endless head", OK, forever(b"X: y\r\n" * MIB), LATE),
    ("more announced than sent", f"{OK}Content-Length: 9\r\n\r\n", [b"hello"], CUT),
    ("less announced than sent", f"{OK}Content-Length: 5\r\n\r\n", forever(b"hello" * MIB), r"\*\nhello"),
    ("a redirection in a circle", MOVED + "/\r\n\r\n", [], "###10 .+"),
    ("a redirection to a file", MOVED + "file:///etc/passwd\r\n\r\n", [], "###301 .+"),
    ("a byte a second", PLAIN, drip(), LATE),
]


def check_peak(program, name, limit):
    """Whether the program kept within so many MiB since the last call."""
    folder = pathlib.Path(f"/proc/{program.process.pid}")
    peak = next(int(line.split()[1]) // 1024 for line in (folder / "status").open() if line.startswith("VmHWM:"))
    print(f"{name}: at most {peak} MiB")
    assert peak <= limit or "libasan" in (folder / "maps").read_text(), f"{name}: {peak} MiB are more than {limit}"
    (folder / "clear_refs").write_text("5")


def run(program, server, head, pieces):
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


def check_row(program, server, area, name, head, pieces, shown):
    run(program, server, head, pieces)
    if name == "a byte a second":
        check_alive(program, 7)
    program.wait_for("the end", lambda: program.windows(dialogs=True) or program.all("push button", "Générer"))
    # Bytes that are no text are told.
    assert bool(program.windows(dialogs=True)) == (name == "binary"), name
    if name == "binary":
        program.answer_until("Générer")
    text = program.text(area)
    assert text.startswith("### Error ###  Content should begin with :"), f"{name}: {text[:200]}"
    assert re.search(shown + r"\Z", text), f"{name}: {text[-200:]}"
    check_peak(program, name, FETCH)


def check_stop(program, server, area):
    run(program, server, OK + "X: ", drip())
    check_alive(program, 2)
    program.press("Arrêter")
    program.find("push button", "Générer")
    program.wait_for("the end of the connection", server.left.is_set)
    assert program.text(area) == ""


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


def check_fetch(program, server, address, content):
    program.set_text(program.find("text", "Url modèle"), address)
    run(program, server, PLAIN, [content])
    program.find("push button", "Générer")
    assert program.text(program.find("text", "Spack Modèle")).endswith("*\n" + content.decode())


def check_other_ways(program, server):
    with swallow(server.server_port):
        start = time.monotonic()
        check_fetch(program, server, f"http://localhost:{server.server_port}/", b"by the other address")
        assert time.monotonic() - start < 5, "an address that doesn't answer held up the other one"
    server.encrypt()
    check_fetch(program, server, server.url(scheme="https"), b"encrypted")


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
            preferences.write(f"Source Model :@: 1\nSourceUrl :@: {server.url()}\n")
        with Program([command], private_environment(files.home)) as program:
            program.choose("Spack Modèle")
            area = program.find("text", "Spack Modèle")
            for row in ROWS:
                check_row(program, server, area, *row)
            check_stop(program, server, area)
            run(program, server, f"{OK}Content-Length: {8 * MIB}\r\n\r\n", [b"\t" * (8 * MIB)])
            program.find("push button", "Générer")
            check_peak(program, "8 MiB of tabs on screen", SHOW)
            check_other_ways(program, server)
            assert program.close() == 0
        silent_name_server(command, files)
    server.shutdown()


main(*sys.argv[1:])
