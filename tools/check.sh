#!/usr/bin/env bash
# The checks of a change beside its tests: format, lint, what a room may see, file sizes, shell scripts.
# clang-tidy reads how files are compiled from build/sanitize, where ten at a time come as one: a fifth of the time.
# shellcheck disable=SC2317  # `check` calls the functions
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
source tools/packages.sh

failures=0
check() { # check NAME COMMAND...: what it prints is a fault, and so is its failure
    local found
    if found=$("${@:2}" 2>&1) && [[ ! $found ]]; then
        echo "ok      $1"
    else
        printf 'FAILED  %s\n%s\n' "$1" "$found"
        failures=$((failures + 1))
    fi
}

# A clone may belong to another user than the one who checks it.
# Files that git doesn't know yet are checked too, those that were deleted aren't.
files() {
    git -c safe.directory="$PWD" ls-files -co --exclude-standard "$@" | sort -u |
        while IFS= read -r file; do [[ ! -f $file ]] || echo "$file"; done
}

mapfile -t code < <(files '*.cpp' '*.h')
mapfile -t scripts < <(files run test .ci/run '*.sh')

format() { clang-format --dry-run --Werror "${code[@]}"; }

qt_outside_toolkit() {
    files '*.cpp' '*.h' | grep -v -e '^toolkit/' -e '^tests/toolkit' |
        xargs -r grep -nE '^ *# *include *[<"]Q[A-Za-z]+(/|>|")' || true
}

# Code and papers of more than 60 KB, and sources of more than 350 lines, want to be divided.
large_files() {
    files ':!*.wav' ':!*.png' ':!*.ts' ':!*.icns' ':!tests/data' |
        xargs -d '\n' -I{} find {} -type f -size +60k -printf '%p has %s bytes\n'
    wc -l "${code[@]}" | awk '$2 != "total" && $1 > 350 { print $2 " has " $1 " lines" }'
}

shell_scripts() { shellcheck -x -P . "${scripts[@]}"; }

# Warnings are errors by .clang-tidy. Its tally of what lies in other people's headers goes to the log.
lint() {
    configure sanitize >/dev/null || return
    sed -n 's/^ *"file": "\(.*\)",\?$/\1/p' build/sanitize/compile_commands.json | grep -vE '/(mocs_compilation|qrc_)' | sort -u |
        xargs -d '\n' -n 1 -P "$(nproc)" clang-tidy -p build/sanitize --quiet 2>build/sanitize/tidy.log | grep -v '^$'
    return "$((PIPESTATUS[3] != 0))"
}

check "clang-format" format
check "Qt is seen by toolkit/ and its tests only" qt_outside_toolkit
check "no room includes what it doesn't link" tools/rooms.py
check "no file is too large" large_files
check "shellcheck" shell_scripts
check "clang-tidy" lint
exit "$((failures > 0))"
