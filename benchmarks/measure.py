"""Measures the program on generated inputs and prints one markdown table. See run.sh."""

import json
import os
import pathlib
import platform
import statistics
import subprocess
import sys
from dataclasses import dataclass

import processes
from processes import Program, interleaved, median_ratio

BUILD = pathlib.Path(__file__).resolve().parent.parent / "build" / "benchmarks"
DATA = BUILD / "data"
CONVERTER = BUILD / "ctables" / "recastor" / "recastor"
GENERATOR = BUILD / "benchmarks" / "inputs" / "generate-input"
STAGES = BUILD / "benchmarks" / "stages" / "stage-benchmarks"
SEED = 1
MB = 1_000_000

# MB of input a second that each kind must reach.
THROUGHPUT_BARS = {"ordinary": 150, "tables-small": 40, "tables-banner": 40, "tables-wide": 40,
                   "igraph": 25}


@dataclass
class Row:
    """A line of the table. `holds` is None where there is no bar."""
    what: str
    measured: str
    bar: str = ""
    holds: bool | None = None


@dataclass
class Effort:
    """How much is measured."""
    rounds: int
    size: int  # of the input of each kind, in MB
    starts: int
    kinds_at_256: list
    largest: bool  # whether 1 GB is converted
    stage_seconds: float


QUICK = Effort(rounds=3, size=4, starts=100, kinds_at_256=["ordinary"], largest=False,
               stage_seconds=0.05)
FULL = Effort(rounds=7, size=16, starts=500, kinds_at_256=["ordinary", "tables-banner", "igraph"],
              largest=True, stage_seconds=0.5)


def generated(kind, size):
    """The input file of that kind and size, made anew when the generator is newer."""
    path = DATA / f"{kind}-{size}.txt"
    if not path.exists() or path.stat().st_mtime < GENERATOR.stat().st_mtime:
        part = path.with_suffix(".part")  # what an interrupted run leaves is not taken for whole
        with open(part, "wb") as file:
            subprocess.run([GENERATOR, kind, str(size), str(SEED)], stdout=file, check=True)
        part.replace(path)
    return path


def converter(path):
    output = DATA / "converted"
    return Program([CONVERTER, path, output], output, writes_itself=True)


def filter_program(*command):
    return Program(command, DATA / "filtered")


def rate(size, times):
    """MB a second."""
    return size / MB / statistics.median(times)


def throughput_rows(kind, effort):
    """Speed and memory on one kind of input, beside cat and sed on the same bytes."""
    path = generated(kind, effort.size * MB)
    size = path.stat().st_size
    times = interleaved({"converter": converter(path), "cat": filter_program("cat", path),
                         "sed": filter_program("sed", "-e", "s/zzz/yyy/", path)}, effort.rounds)
    speed = rate(size, times["converter"])
    bar = THROUGHPUT_BARS[kind]
    yield Row(f"{kind}, {effort.size} MB: speed", f"{speed:.1f} MB/s", f"at least {bar} MB/s",
              speed >= bar)
    yield Row(f"{kind}, {effort.size} MB: peak memory",
              f"{converter(path).peak_memory(DATA / 'memory'):.1f} MB")
    if kind == "ordinary":
        to_sed = median_ratio(times["converter"], times["sed"])
        yield Row("ordinary: time, in times of `sed -e s/zzz/yyy/`",
                  f"{to_sed:.2f} ({rate(size, times['sed']):.0f} MB/s)", "at most 3", to_sed <= 3)
        yield Row("ordinary: time, in times of `cat`",
                  f"{median_ratio(times['converter'], times['cat']):.1f} "
                  f"({rate(size, times['cat']):.0f} MB/s)")


def formatter_rows(effort):
    """Converting, beside a formatter of another language on as many bytes of its own."""
    programs = {kind: converter(generated(kind, MB)) for kind in THROUGHPUT_BARS
                if kind != "ordinary"}
    code = generated("cplusplus", MB)
    programs["clang-format"] = filter_program("clang-format", code)
    times = interleaved(programs, effort.rounds)
    formatter = times.pop("clang-format")
    for kind, converting in times.items():
        yield Row(f"{kind}, 1 MB: time, in times of `clang-format` on 1 MB of C++",
                  f"{median_ratio(converting, formatter):.2f} "
                  f"({rate(code.stat().st_size, formatter):.2f} MB/s)")


def start_rows(effort):
    """What a run costs that has next to nothing to do."""
    program = converter(generated("tables-small", 1000))
    cat = filter_program("cat", generated("tables-small", 1000))
    times = interleaved({"converter": program, "cat": cat}, effort.starts, clock="elapsed")
    median = statistics.median(times["converter"]) * 1000
    yield Row(f"1 KB of tables, start to end, median of {effort.starts} (best)",
              f"{median:.2f} ms ({min(times['converter']) * 1000:.2f} ms)", "under 3 ms",
              median < 3)
    yield Row("the same of `cat`", f"{statistics.median(times['cat']) * 1000:.2f} ms "
              f"({min(times['cat']) * 1000:.2f} ms)")


def size_rows(kind, effort):
    """Whether time grows as the input does; what the start takes is not counted."""
    empty = generated(kind, 0)
    repeated = {1: 8, 16: 2, 256: 1}
    programs = {size: converter(generated(kind, size * MB)) for size in repeated}
    starts, each = [], {size: [] for size in repeated}
    for _ in range(5):
        starts += interleaved({"": converter(empty)}, 8)[""]
        start = statistics.median(starts)
        for size, runs in repeated.items():
            time = statistics.median(interleaved({"": programs[size]}, runs)[""])
            each[size].append((time - start) / size * 1000)
    ratios = [median_ratio(times, each[16]) for times in each.values()]
    spread = max(ratios) / min(ratios) - 1
    yield Row(f"{kind}: time per MB at 1, 16, 256 MB, less {start * 1000:.2f} ms of an empty file",
              ", ".join(f"{statistics.median(times):.2f}" for times in each.values())
              + f" ms ({spread:.0%} apart, in times of 16 MB beside each other)",
              "at most 15 % apart", spread <= 0.15)


def largest_rows():
    path = generated("ordinary", 1000 * MB)
    program = converter(path)
    figures = program.run()
    memory = program.peak_memory(DATA / "memory")
    yield Row("ordinary, 1 GB: peak memory", f"{memory:.1f} MB", "under 20 MB", memory < 20)
    yield Row("ordinary, 1 GB: time", f"{figures.processor:.1f} s of the processor, "
              f"{figures.elapsed:.1f} s ({1000 / figures.processor:.0f} MB/s)")


def product_rows(effort):
    for terms, bar in ((10_000, 1), (100_000, 15)):
        program = converter(generated("product", terms))
        seconds = statistics.median(interleaved({"": program}, min(effort.rounds, 3))[""])
        yield Row(f"columns that multiply out to {terms:,} terms: time", f"{seconds:.2f} s",
                  f"under {bar} s", seconds < bar)
        yield Row(f"columns that multiply out to {terms:,} terms: peak memory",
                  f"{program.peak_memory(DATA / 'memory'):.0f} MB")


def stage_rows(effort):
    """The benchmarks of the stages: a line for each stage and kind of input."""
    command = [STAGES, "--benchmark_repetitions=3", "--benchmark_report_aggregates_only=true",
               f"--benchmark_min_time={effort.stage_seconds}"]
    report = subprocess.run(command, env=processes.ENVIRONMENT, stdout=subprocess.PIPE,
                            check=True).stdout
    for benchmark in json.loads(report)["benchmarks"]:
        if benchmark["aggregate_name"] == "median":
            stage, kind = benchmark["run_name"].split("/")[:2]
            yield Row(f"stage {stage}: {kind}", f"{benchmark['bytes_per_second'] / MB:.1f} MB/s")


def all_rows(effort):
    for kind in THROUGHPUT_BARS:
        yield from throughput_rows(kind, effort)
    yield from formatter_rows(effort)
    yield from start_rows(effort)
    for kind in effort.kinds_at_256:
        yield from size_rows(kind, effort)
    if effort.largest:
        yield from largest_rows()
    yield from product_rows(effort)
    yield from stage_rows(effort)


def machine():
    """The place and the time of a run, in two lines."""
    with open("/proc/cpuinfo", encoding="utf-8") as lines:
        model = next((line.split(":")[1].strip() for line in lines if "model name" in line),
                     platform.machine())
    commit = subprocess.run(["git", "-C", BUILD, "describe", "--always", "--dirty"],
                            capture_output=True, text=True, check=False).stdout.strip()
    return (f"{model}, {os.cpu_count()} cores, one used; Linux {platform.release()}; "
            f"locale C.UTF-8; commit {commit or 'unknown'}.\n"
            "Times are the processor's, user and system; start to end is by the clock.")


def line_of(row):
    holds = {None: "", True: "yes", False: "NO"}[row.holds]
    return f"| {row.what} | {row.measured} | {row.bar} | {holds} |"


def main(arguments):
    if arguments not in ([], ["--quick"]):
        print("usage: benchmarks/run.sh [--quick]", file=sys.stderr)
        return 2
    DATA.mkdir(exist_ok=True)
    lines = [machine(), "", "| what | measured | bar | holds |", "|---|---|---|---|"]
    print("\n".join(lines))
    processes.pin_to_one_core()
    all_hold = True
    for row in all_rows(QUICK if arguments else FULL):
        lines.append(line_of(row))
        print(lines[-1], flush=True)
        all_hold = all_hold and row.holds is not False
    (BUILD / "table.md").write_text("\n".join(lines) + "\n", encoding="utf-8")
    return 0 if all_hold else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
