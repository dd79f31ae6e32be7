#!/usr/bin/env bash
# Builds with gcov in build/coverage, runs the tests of the rooms, and prints how many lines of the logic they reach in
# each file, and the lines that they don't reach.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build=build/coverage
cmake -G Ninja -B $build -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS=--coverage >/dev/null
find $build -name '*.gcda' -delete
cmake --build $build | tail -n 1
tools/ctest.sh coverage -E EndToEnd | tail -n 1

cd $build
for source in ../../{engine,packs,support}/*.cpp ../../preferences/Preferences.cpp ../../specialA/{FoldedText,Treatment}.cpp \
    ../../mainwindow/{ArchiveName,Colouring,ReportSeries,Searching,Sentences,Toggling}.cpp; do
    source=${source#../../}
    gcov -t "${source%/*}"/CMakeFiles/*.dir/"${source##*/}.gcda"
done | awk -F: '
    $2 == 0 && $3 == "Source" { file = sub("^../../", "", $4) && $4 ~ /cpp$/ ? $4 : "" }
    $2 == 0 || !file || $3 == "}" || $1 ~ /-$/ || seen[file, $2]++ { next }
    { lines[file]++ }
    $1 ~ /[#=]$/ { missed[file]++; text = text file ":" $2 + 0 ":" substr($0, 16) "\n" }
    END {
        for (file in lines)
            printf "%-32s %4d of %4d lines\n", file, lines[file] - missed[file], lines[file] | "sort"
        close("sort")
        printf "\n%s", text
    }'
