#!/usr/bin/env bash
# Builds the fuzz targets and runs each for so many seconds, two at a time, from its corpus in tests/fuzz/corpus.
# Logs, the inputs found on the way and those that break a law stay in build/fuzz/found.
# Usage: tools/fuzz.sh [SECONDS [TARGET...]]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/packages.sh

export seconds=${1:-5}
targets=("${@:2}")
((${#targets[@]})) || targets=(tests/fuzz/corpus/*)
configure fuzz && cmake --build --preset fuzz || exit

run_target() { # run_target NAME
    local found=$PWD/build/fuzz/found/$1 outcome=ok
    mkdir -p "$found/corpus"
    # A target that is stopped leaves its temporary folders behind.
    TMPDIR=$found "build/fuzz/tests/fuzz/fuzz_$1" -max_total_time="$seconds" -max_len=1000 -timeout=10 \
        -dict=tests/fuzz/words.dict -print_final_stats=1 -artifact_prefix="$found/" \
        "$found/corpus" "tests/fuzz/corpus/$1" >"$found.log" 2>&1 || outcome=FAILED
    printf '%-8s%s: %s\n' "$outcome" "$1" "$(grep -a '^#.* cov: ' "$found.log" | tail -n 1)"
    [[ $outcome == ok ]] || { tail -n 60 "$found.log" && return 1; }
}
export -f run_target

printf '%s\n' "${targets[@]##*/}" | xargs -P 2 -I{} bash -c 'run_target {}'
