#!/usr/bin/env bash
# Makes the pictures of the README anew, with the sample in a folder whose path may be seen.
# Usage: tools/pictures.sh FOLDER      (after ./run --sample, which installs what this needs)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

python3 tools/make_sample.py "$1"
export XDG_DATA_HOME=$1/home/.local/share
mkdir -p docs/pictures
for language in fr en; do
    LANGUAGE=$language LANG=C.UTF-8 tools/screen.sh \
        /usr/bin/python3 tools/show_sample.py "$PWD/build/release/tarnivel" "$PWD/docs/pictures/run_$language.png"
done
