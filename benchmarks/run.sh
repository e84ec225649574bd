#!/bin/sh
# Builds the benchmarks, generates their inputs, runs everything and writes one table to standard
# output and to build/benchmarks/table.md. The exit status is 1 when a bar does not hold.
#
#   benchmarks/run.sh            everything: 10 to 20 minutes, 6 GB in build/benchmarks
#   benchmarks/run.sh --quick    in two minutes: fewer runs, no file of 1 GB, fewer kinds at 256 MB
set -eu

cd "$(dirname "$0")/.."
scripts/install-packages build report benchmark
{
    cmake --preset benchmarks
    cmake --build --preset benchmarks -- --quiet
} >&2
exec python3 -B benchmarks/measure.py "$@"
