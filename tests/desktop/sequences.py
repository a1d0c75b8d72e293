#!/usr/bin/env python3
"""Runs tst_sequences over many seeds, and makes the sequences short that go wrong."""
import argparse
import concurrent.futures
import os
import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SECONDS_A_RUN = 240


class Bench:
    def __init__(self, build, steps):
        self.program, self.steps = ROOT / build / "bin/tst_sequences", steps

    def run(self, seconds=SECONDS_A_RUN, **variables):
        """What was printed, and what went wrong: nothing, a sentence, or how the process ended."""
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8", LANGUAGE="", TZ="UTC",
                           QT_SCALE_FACTOR="1", QTEST_FUNCTION_TIMEOUT="3600000", PLOTVANE_STEPS=str(self.steps),
                           UBSAN_OPTIONS="print_stacktrace=1", ASAN_OPTIONS="detect_leaks=0")
        environment.update({"PLOTVANE_" + name: str(value) for name, value in variables.items()})
        try:
            done = subprocess.run([self.program, "-silent"], env=environment, timeout=seconds, text=True,
                                  errors="replace", stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        except subprocess.TimeoutExpired as ended:
            return (ended.stdout or b"").decode(errors="replace"), f"no end within {seconds} seconds"
        told = re.search(r"returned FALSE\. \((.*)", done.stdout)
        if done.returncode == 0:
            return done.stdout, ""
        crash = re.search(r"ERROR: AddressSanitizer: [^\n]*|[^\n]*runtime error: [^\n]*|ASSERT[^\n]*|QFATAL[^\n]*", done.stdout)
        return done.stdout, told[1] if told else crash[0] if crash else f"ended by {done.returncode}"

    def again(self, sequence):
        return self.run(SEQUENCE=" ".join(sequence))

    def shorten(self, sequence, kind):
        """The fewest steps that go wrong in the same way, by leaving out ever smaller runs of them."""
        document, steps = sequence[0], sequence[1:]
        size = (len(steps) + 1) // 2
        while size > 0:
            place, shorter = 0, False
            while place < len(steps):
                fewer = steps[:place] + steps[place + size:]
                if fewer and kind_of(self.again([document, *fewer])[1]) == kind:
                    steps, shorter = fewer, True
                else:
                    place += size
            size = size // 2 if size > 1 or not shorter else size
        return [document, *steps]


def kind_of(wrong):
    """What went wrong, without where: numbers, names and the step."""
    wrong = re.sub(r"^'?step \d+ of \d+ \(.*?\): (?=[a-z])", "", wrong)
    return re.sub(r"[“\"(].*|\d+", "", wrong)[:60].strip()


def judge(bench, seed, count, shortens):
    """Those of a run of seeds that go wrong: sequence, sentence, output of the last time."""
    found, end = [], seed + count
    while seed < end:
        output, wrong = bench.run(SECONDS_A_RUN + 60 * (end - seed), SEED=seed, SEQUENCES=end - seed)
        if not wrong:
            break
        lines = re.findall(r"^sequence: (.*)$", output, re.MULTILINE)
        if not lines:
            sys.exit(output)
        seed += len(lines)
        sequence = lines[-1].split()
        output, again = bench.again(sequence)
        if again and shortens:
            sequence = bench.shorten(sequence, kind_of(again))
            output, again = bench.again(sequence)
        found.append((seed - 1, sequence, again or wrong + " (not when it is done again alone)", output))
        print(f"\nseed {seed - 1}: {found[-1][2]}\n  scripts/sequences --again '{' '.join(sequence)}'", flush=True)
        for line in re.findall(r"^step .*$", output, re.MULTILINE):
            print("   ", line, flush=True)
    return found


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", default="build-sanitize")
    parser.add_argument("--count", type=int, default=1000)
    parser.add_argument("--steps", type=int, default=40)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--whole", action="store_true", help="don't make them short")
    parser.add_argument("--again", metavar="SEQUENCE")
    chosen = parser.parse_args()
    bench = Bench(chosen.build, chosen.steps)
    if chosen.again:
        output, wrong = bench.again(chosen.again.split())
        print(output)
        sys.exit(1 if wrong else 0)
    block = 10
    blocks = [(seed, min(block, chosen.seed + chosen.count - seed))
              for seed in range(chosen.seed, chosen.seed + chosen.count, block)]
    with concurrent.futures.ThreadPoolExecutor(chosen.jobs) as pool:
        results = list(pool.map(lambda one: judge(bench, *one, not chosen.whole), blocks))
    wrong = sum(map(len, results))
    print(f"{chosen.count} sequences of {chosen.steps} steps, {wrong} wrong")
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()
