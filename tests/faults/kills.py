#!/usr/bin/env python3
"""Kills saves, exports and a window with unsaved work at random moments, or asks the window to end, and looks at what is
left.

kills.py BUILD [--count N] [--seed N] [WORK…]: after each kill the file is the old or the new one, whole; the next run
leaves nothing beside it; and what the window had not saved is offered at its next start.
"""
import argparse
import json
import os
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import drive


def written(work):
    """One file, and the line that writes it."""
    (result,), _, arguments = drive.WORKS[work]
    return result, arguments


WORKS = {
    "save": written("save"),
    "two saves": ("saved.kdx", ["run", "small.kdx", "save=saved.kdx", "select=Title", "Host_Delete", "save=saved.kdx",
                                "--force"]),
    **{f"export {suffix}": written(f"export-{suffix}") for suffix in ("png", "tif", "pdf", "svg")},
}
WINDOWS = ["window", "large window", "ended window"]


def environment(home):
    return dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8", HOME=str(home), XDG_DATA_HOME=f"{home}/data",
                XDG_CONFIG_HOME=f"{home}/config")


def children(process):
    try:
        return [int(child) for child in Path(f"/proc/{process}/task/{process}/children").read_text().split()]
    except OSError:
        return []


def kill(process, dice):
    """The whole group at once, as a power cut would, or the supervisor or the worker alone."""
    chosen = dice.choice(("group", "group", "supervisor", "worker"))
    workers = children(process.pid)
    try:
        if chosen == "worker" and workers:
            os.kill(workers[0], signal.SIGKILL)
        elif chosen == "supervisor":
            os.kill(process.pid, signal.SIGKILL)
        else:
            os.killpg(process.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass
    process.wait()
    return chosen


class Subcommand:
    """A folder with a small document, in which one piece of work is done and killed."""

    def __init__(self, build, work):
        self.build, (self.result, self.arguments) = build, WORKS[work]
        with tempfile.TemporaryDirectory(prefix="kills-") as name:
            folder = self.prepare(Path(name))
            self.contents = [b"old"]
            for _ in range(2):  # the first has to fetch it all from the disk
                began = time.monotonic()
                if subprocess.run(self.command(), cwd=folder, env=environment(folder / "home"),
                                  stdout=subprocess.DEVNULL).returncode:
                    sys.exit(f"{work} fails without a kill")
                self.seconds = time.monotonic() - began
            self.contents.append((folder / self.result).read_bytes())
            if work == "two saves":
                first = self.arguments[:3] + ["--force"]
                subprocess.run([self.build / "bin/plotvane", *first], cwd=folder, env=environment(folder / "home"), check=True)
                self.contents.append((folder / self.result).read_bytes())

    def command(self):
        return [self.build / "bin/plotvane", *self.arguments]

    def prepare(self, folder):
        for file in ("small.kdx", "picture.png", "aegean.gpkg"):
            shutil.copy(self.build / "faults" / file, folder)
        (folder / self.result).write_bytes(b"old")
        (folder / "home").mkdir()
        return folder

    def try_once(self, dice):
        with tempfile.TemporaryDirectory(prefix="kills-") as name:
            folder = self.prepare(Path(name))
            before = set(os.listdir(folder))
            process = subprocess.Popen(self.command(), cwd=folder, env=environment(folder / "home"),
                                       start_new_session=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            # Late moments are those at which files change.
            at = self.seconds * (dice.uniform(0, 1.1) if dice.random() < 0.3 else dice.uniform(0.6, 1.1))
            time.sleep(at)
            is_over = process.poll() is not None
            who = kill(process, dice)
            time.sleep(0.3)  # a supervisor cleans up after its worker, and a worker ends with its supervisor
            where = f"{who} killed after {at:.3f} s"
            content = (folder / self.result).read_bytes()
            if content not in self.contents:
                return is_over, f"{where}: the file is neither old nor new"
            after = subprocess.run(self.command(), cwd=folder, env=environment(folder / "home"), stdout=subprocess.DEVNULL,
                                   stderr=subprocess.PIPE, text=True)
            if after.returncode or (folder / self.result).read_bytes() != self.contents[1]:
                return is_over, f"{where}: the next run ends with {after.returncode}: {after.stderr}"
            beside = set(os.listdir(folder)) ^ before
            return is_over, f"{where}: the next run leaves {beside}" if beside else ""


class Window:
    """A window with unsaved work; of a large document copies are read between events. One that is asked to end loses
    nothing at all, and leaves no lock."""

    def __init__(self, build, work):
        self.build, self.parts, self.is_asked = build, 6000 if work == "large window" else 0, work == "ended window"
        self.in_slices = 0

    def try_once(self, dice):
        with tempfile.TemporaryDirectory(prefix="kills-") as name:
            folder = Path(name)
            for file in ("small.kdx", "picture.png", "aegean.gpkg"):
                shutil.copy(self.build / "faults" / file, folder)
            (folder / "home").mkdir()
            before = set(os.listdir(folder))
            with open(folder / "home/said", "wb") as said:
                process = subprocess.Popen([self.build / "bin/plotvane_unsaved", "work", "small.kdx"], cwd=folder,
                                           env=dict(environment(folder / "home"), PLOTVANE_PARTS=str(self.parts)),
                                           stdout=said, start_new_session=True,
                                           stderr=subprocess.DEVNULL)
            told = lambda: (folder / "home/said").read_text()
            while "ready" not in told() and process.poll() is None:
                time.sleep(0.01)
            time.sleep(dice.uniform(0, 3 if self.parts else 0.6))
            how = dice.choice((signal.SIGTERM, signal.SIGHUP, signal.SIGINT)) if self.is_asked else signal.SIGKILL
            os.killpg(process.pid, how)
            if process.wait() != -how:
                return False, f"signal {how}: ended with {process.returncode}"
            locks = [str(file) for file in folder.rglob("*.lock")]
            if self.is_asked and locks:
                return False, f"signal {how}: {locks} are left"
            last = {"begun": 0, "reading": 0, "kept": 0, "saved": 0}
            for line in told().splitlines():
                what, step = line.split()
                last[what] = int(step)
            begun, kept, saved = last["begun"], last["kept"], last["saved"]
            self.in_slices += last["reading"] > kept
            saved_file = (folder / "small.kdx").read_bytes()
            document = json.loads(saved_file)
            steps = [int(one["text"].split()[1]) for one in document["elements"]
                     if one["type"] == "text" and one["text"].startswith("step ")]
            in_file = max(steps, default=0)
            if in_file not in (saved, begun if begun % 4 == 0 else saved):
                return False, f"{last}: the file has {in_file} steps"
            after = subprocess.run([self.build / "bin/plotvane_unsaved", "recover", "small.kdx"], cwd=folder,
                                   env=environment(folder / "home"), stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
            if after.returncode:
                return False, f"{last}: the next start ends with {after.returncode}: {after.stderr[-300:]}"
            how, step = after.stdout.splitlines()[0].split()
            was_asked = "asked" in after.stdout and (folder / "small.kdx").read_bytes() == saved_file
            least = begun if self.is_asked else kept if was_asked else max(kept, in_file)
            if int(step) < least or int(step) > begun:
                return False, f"{last}, {in_file} in the file: the next start has {step} steps ({how})"
            left = [str(file) for file in (folder / "home/data").rglob("*") if file.is_file() and "recovery" in str(file)]
            beside = (set(os.listdir(folder)) ^ before) - {"small.kdx~"} | set(left)  # which is the earlier version
            return False, f"{last}: the next start leaves {beside}" if beside else ""


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("build", type=Path)
    parser.add_argument("--count", type=int, default=200)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("works", nargs="*", metavar="WORK", help=", ".join([*WORKS, *WINDOWS]))
    chosen = parser.parse_intermixed_args()
    chosen.build = chosen.build.resolve()
    drive.prepare(chosen.build / "faults")
    works = chosen.works or [*WORKS, "window", *WINDOWS]
    benches = [(work, Window if "window" in work else Subcommand) for work in works]
    benches = [(work, kind(chosen.build, work)) for work, kind in benches]
    dice, wrong, over = random.Random(chosen.seed), 0, 0
    for number in range(chosen.count):
        work, bench = benches[number % len(benches)]
        is_over, problem = bench.try_once(dice)
        over += is_over
        if problem:
            wrong += 1
            print(f"{work}: {problem}", flush=True)
    in_slices = sum(bench.in_slices for _, bench in benches if isinstance(bench, Window))
    print(f"{chosen.count} kills, {over} of them too late, {in_slices} while a copy was read, {wrong} wrong")
    sys.exit(1 if wrong or over == chosen.count else 0)  # what never struck says nothing


if __name__ == "__main__":
    main()
