#!/bin/sh
# Fuzzes the converter: every target for the given number of seconds, one for each processor at a
# time.
#
#   tests/fuzz/run.sh SECONDS [TARGET...]
#
# Targets: file, batch_file, tokens, tables, igraph. Each starts from the inputs of the golden files
# and what earlier runs have found under build/fuzz/corpus, and knows the words of the language. A
# finding is left in build/fuzz/findings and the exit status is 1. SEED in the environment draws
# other inputs; 0 draws new ones each time. Without it they are the same ones, so that a change is
# not refused by luck.
set -eu

cd "$(dirname "$0")/../.."
seconds=$1
shift
[ $# -gt 0 ] || set -- file batch_file tokens tables igraph

scripts/install-packages build fuzz
cmake --preset fuzz >/dev/null
# shellcheck disable=SC2046 # words on purpose
cmake --build --preset fuzz --target $(printf 'fuzz_%s ' "$@") -- --quiet

corpus=build/fuzz/corpus
mkdir -p build/fuzz/findings "$corpus/seeds"
for input in tests/golden/*/input.syn; do
    cp "$input" "$corpus/seeds/$(basename "$(dirname "$input")")"
done

# The dictionary: each quoted word of the sources' tables of keywords, operators and functions.
find ctables platform -name "*.cpp" -exec cat {} + |
    grep -oE '"[A-Za-z$][A-Za-z0-9.$]+"' | sort -u >build/fuzz/words

# An input counts as a hang after two minutes: the largest table that is still multiplied out takes
# half of one under the sanitizers, and less than a second without.
fuzz() {
    target=$1
    mkdir -p "$corpus/$target"
    log=build/fuzz/$target.log
    if "build/fuzz/tests/fuzz/fuzz_$target" "$corpus/$target" "$corpus/seeds" \
        -seed="${SEED:-1}" -max_total_time="$seconds" -max_len=4096 -dict=build/fuzz/words \
        -timeout=120 -rss_limit_mb=4096 -artifact_prefix="build/fuzz/findings/$target-" \
        -print_final_stats=1 >"$log" 2>&1; then
        runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
        echo "$target: $runs executions, no finding"
    else
        grep -vE '^ *#|^INFO|^stat|^Dict|^NOTE|^ *Combine' "$log" | tail -n 20
        echo "$target: a finding, see $log"
        return 1
    fi
}

failed=0
running=""
for target in "$@"; do
    # shellcheck disable=SC2086 # process numbers on purpose
    if [ "$(echo $running | wc -w)" -ge "$(nproc)" ]; then
        wait "${running%% *}" || failed=1
        case $running in *' '*) running=${running#* } ;; *) running= ;; esac
    fi
    fuzz "$target" &
    running="${running:+$running }$!"
done
for process in $running; do
    wait "$process" || failed=1
done
exit "$failed"
