#!/usr/bin/env python3
"""Prints each include by which a room sees another one that its link line doesn't reach.

A room is a folder with a house_library or a house_program in its CMakeLists.txt. It sees the rooms that it links, and those
that they link. Files that git doesn't know yet count too.
"""

import pathlib
import re
import subprocess

ROOM = re.compile(r"house_(?:library|program)\(([\w-]+)\s([^)]*)\)")
INCLUDE = re.compile(r'\s*#\s*include\s*"(.+)/[^/"]+"')


def git_files(*patterns):
    listed = ["git", "-c", f"safe.directory={pathlib.Path.cwd()}", "ls-files", "-co", "--exclude-standard", *patterns]
    files = set(subprocess.check_output(listed, text=True).splitlines())
    return [file for file in sorted(files) if pathlib.Path(file).exists()]


def rooms():
    """The folder of each room, and the names of the rooms that its link line has."""
    folders, links = {}, {}
    for file in git_files("*CMakeLists.txt"):
        for name, arguments in ROOM.findall(pathlib.Path(file).read_text("utf-8")):
            folders[str(pathlib.Path(file).parent)] = name
            named = re.search(r"\bLINKS\s+((?:[a-z]\w*\s*)+)", arguments)
            links[name] = named[1].split() if named else []
    return folders, links


def seen_from(name, links):
    seen, found = set(), [name]
    while found:
        room = found.pop()
        if room not in seen:
            seen.add(room)
            found += links.get(room, [])
    return seen


def main():
    folders, links = rooms()
    assert {"toolkit", "toolkit_core", "engine"} <= set(links), "no rooms found"
    for file in git_files("*.cpp", "*.h"):
        room = folders.get(str(pathlib.Path(file).parent))
        if not room:
            continue
        seen = seen_from(room, links)
        for number, line in enumerate(pathlib.Path(file).read_text("utf-8").splitlines(), 1):
            include = INCLUDE.match(line)
            if include and folders.get(include[1], include[1]) not in seen:
                print(f"{file}:{number}: {room} does not link {include[1]}")


main()
