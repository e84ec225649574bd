"""Runs programs and takes their time and memory."""

import os
import statistics
import subprocess
import time
from dataclasses import dataclass

# One locale for every program that is compared: what it costs to look at text as UTF-8 is the same
# for all.
ENVIRONMENT = {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8"}


def pin_to_one_core():
    """Every program that is started from here on runs on the same core."""
    os.sched_setaffinity(0, {max(os.sched_getaffinity(0))})


def check(status, command):
    if status != 0:
        raise RuntimeError(f"status {status} of {' '.join(map(str, command))}")


@dataclass
class Figures:
    """What one run took. The processor's time, spent in the program and for it, hardly depends on
    what else the machine does."""
    elapsed: float
    processor: float


class Program:
    """A command, and the file that it writes: by itself, or as its standard output."""

    def __init__(self, command, output, writes_itself=False):
        self.command = [str(word) for word in command]
        self.output = output
        self.standard_output = "/dev/null" if writes_itself else output

    def run(self):
        """Runs it from start to end."""
        self.output.unlink(missing_ok=True)  # else freeing the last run's blocks is measured, too
        redirection = [(os.POSIX_SPAWN_OPEN, 1, self.standard_output,
                        os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600)]
        start = time.perf_counter()
        child = os.posix_spawnp(self.command[0], self.command, ENVIRONMENT,
                                file_actions=redirection)
        _, status, usage = os.wait4(child, 0)
        elapsed = time.perf_counter() - start
        check(status, self.command)
        return Figures(elapsed, usage.ru_utime + usage.ru_stime)

    def peak_memory(self, note):
        """The largest resident memory of one run in MB; `note` is a file to write it to."""
        # Measured from a small program: the peak of a child of this one would count Python's.
        command = ["/usr/bin/time", "-f", "%M", "-o", note, *self.command]
        with open(self.standard_output, "wb") as output:
            check(subprocess.run(command, stdout=output, env=ENVIRONMENT, check=False).returncode,
                  command)
        return int(note.read_text()) * 1024 / 1e6


def interleaved(programs, rounds, clock="processor"):
    """The seconds of every run of each program, by its name. The programs take turns, so that what
    disturbs the machine disturbs all alike."""
    times = {name: [] for name in programs}
    for _ in range(rounds):
        for name, program in programs.items():
            times[name].append(getattr(program.run(), clock))
    return times


def median_ratio(times, others):
    """How many times as long; of runs beside each other, so that both had the same machine."""
    return statistics.median(mine / other for mine, other in zip(times, others))
