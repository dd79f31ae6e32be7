"""tarnivel-order on whole runs, on texts that it refuses, and on outputs that go wrong: order.py PROGRAM"""

import lzma
import os
import pathlib
import resource
import struct
import subprocess
import sys
import tempfile
import zlib

TESTS = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(TESTS.parent / "tools"))
from make_sample import tile  # noqa: E402

HEADER = b"I\n1000 version\nSCENERY\n"
AGREES, REPORTED, REFUSED, WRONG_USE = 0, 1, 2, 64


def run(program, *arguments, language="fr", stdin=b"", **more):
    """Exit state, standard output and standard error."""
    environment = dict(os.environ, LC_ALL=f"{language}_XX.UTF-8", LANGUAGE=language)
    done = subprocess.run(
        [program, *arguments], input=stdin, capture_output=not more, env=environment, timeout=60, check=False, **more
    )
    return done.returncode, done.stdout, done.stderr


def test_whole_runs(program, folder):
    runs = sorted((TESTS / "data/runs").iterdir())
    assert len(runs) > 40
    for case in runs:
        custom = folder / case.name
        custom.mkdir()
        for name in (case / "folders.txt").read_text().splitlines() if (case / "folders.txt").exists() else ():
            (custom / name).mkdir(parents=True)
        spack = custom / "scenery_packs.ini"
        spack.write_bytes((case / "source.ini").read_bytes())
        findings = (case / "findings.txt").read_text().splitlines()
        reports = [line for line in findings if not line.startswith("--- ")]
        expected = (case / "expected.ini").read_bytes()
        refused = expected == b"### Error ###"
        status = REFUSED if refused else REPORTED if reports else AGREES
        for option in ([], ["--check"]):
            code, out, err = run(program, *option, case / "model.ini", spack)
            assert code == status, (case.name, code, err)
            assert out == (b"" if refused or option else expected), (case.name, out)
            assert [line for line in err.decode().splitlines() if line] == reports, (case.name, err)


def test_what_it_is_given(program, folder):
    good, pipe = folder / "good.ini", folder / "pipe"
    good.write_bytes(HEADER + b"\nSCENERY_PACK /a/\n")
    os.mkfifo(pipe)
    rows = [
        ("the model from standard input", ["-", good], good.read_bytes(), AGREES, ""),
        ("the file from standard input", [good, "-"], good.read_bytes(), AGREES, ""),
        ("nothing on standard input", ["-", good], b"", REFUSED, "“-”: vide ou illisible"),
        ("Windows line ends", ["-", good], HEADER.replace(b"\n", b"\r\n"), REFUSED, "“-”: fins de ligne Windows"),
        ("no UTF-8", ["-", good], HEADER + b"\xff", REFUSED, "“-”: ce n'est pas de l'UTF-8"),
        ("no such file", [good, folder / "gone"], b"", REFUSED, f"“{folder}/gone”: "),
        ("a pipe under its name", [pipe, good], b"", REFUSED, f"“{pipe}”: "),
        ("no name", ["--propose", ""], b"", REFUSED, "“”: "),
        ("one name", [good], b"", WRONG_USE, "Utilisation : "),
        ("three names", [good, good, good], b"", WRONG_USE, "Utilisation : "),
        ("both from standard input", ["-", "-"], b"", WRONG_USE, "Utilisation : "),
        ("an unknown option", ["--write", good, good], b"", WRONG_USE, "Utilisation : "),
        ("an option behind the names", [good, good, "--check"], b"", WRONG_USE, "Utilisation : "),
    ]
    for name, arguments, stdin, status, told in rows:
        code, out, err = run(program, *arguments, stdin=stdin)
        assert code == status, (name, code, err)
        assert out == (good.read_bytes() if status == AGREES else b""), (name, out)
        assert err.decode().startswith(told) and bool(err) == bool(told), (name, err)
    code, out, err = run("sh", "-c", f"'{program}' - good.ini < .")
    assert (code, out, err) == (REFUSED, b"", "“-”: Is a directory\n".encode()), "a failed read is no end"
    assert run(program, "--help", language="de")[1].startswith(b"Aufruf: tarnivel-order")
    assert run(program, "--version") == (AGREES, b"tarnivel-order 1.1.3\n", b"")


def test_archives_of_gigabytes(program, folder):
    """A tile and a header with 1 GiB of zeros behind what is of use: the proposal knows them, and memory stays small."""

    def pack(data):
        return lzma.compress(data, lzma.FORMAT_RAW, filters=[{"id": lzma.FILTER_LZMA2, "dict_size": 1 << 20}])[:-1]

    def streams(offset, size):
        places = b"\6\xff" + struct.pack("<Q", offset) + b"\1\x09\xff" + struct.pack("<Q", size)
        return places + b"\0\x07\x0b\1\0\1\x21\x21\1\x10\x0c\xff" + struct.pack("<Q", 1 << 30) + b"\0\0"

    zeros = pack(bytes(1 << 20)) * 1024 + b"\0"
    body = pack(tile(overlay=True)) + zeros
    files = b"\5\xff" + struct.pack("<Q", 10_000_000) + b"\x11\xff" + struct.pack("<Q", 1_000_000_001) + b"\0"
    header = pack(b"\1\4" + streams(0, len(body)) + files) + zeros
    end = b"\x17" + streams(len(body), len(header))
    start = struct.pack("<QQI", len(body + header), len(end), zlib.crc32(end))
    signature = b"7z\xbc\xaf\x27\x1c\0\4" + struct.pack("<I", zlib.crc32(start))
    (folder / "p/Earth nav data/+40+000").mkdir(parents=True)
    (folder / "p/Earth nav data/+40+000/a.dsf").write_bytes(signature + start + body + header + end)
    (folder / "a.ini").write_bytes(HEADER)
    (folder / "q").mkdir()
    proposed = HEADER + b"SCENERY_PACK Custom Scenery/p/\nSCENERY_PACK Custom Scenery/q/\n"
    report = b"Overlays: 1\n - p\n \nUnknown: 1\n - q (nothing in it tells what it is)\n"
    assert run(program, "--propose", folder / "a.ini", language="en") == (REPORTED, proposed, report)
    assert resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss < 400_000


def test_outputs_that_go_wrong(program, folder):
    long = folder / "long.ini"
    long.write_bytes(HEADER + b"".join(b"SCENERY_PACK /%d/\n" % number for number in range(100_000)))
    with open("/dev/full", "wb") as full:
        assert run(program, long, long, stdout=full, stderr=subprocess.DEVNULL)[0] == REFUSED
    read, write = os.pipe()
    os.close(read)
    code = run(program, long, long, stdout=write, stderr=subprocess.DEVNULL)[0]
    assert code == -13, "a pipe that nobody reads ends it as any other filter"


def test_libraries(program, _):
    libraries = subprocess.run(["ldd", program], check=True, capture_output=True, text=True).stdout
    assert "libQt6Core" in libraries
    for window in ("Gui", "Widgets", "Network", "Multimedia", "DBus", "libX11", "libxcb", "libwayland"):
        assert window not in libraries, libraries


for test in [value for name, value in list(globals().items()) if name.startswith("test_")]:
    with tempfile.TemporaryDirectory() as temporary:
        os.chdir(temporary)
        test(sys.argv[1], pathlib.Path.cwd())
