#!/usr/bin/env python3
"""Makes one system call after the other fail, and looks at what is left.

drive.py BUILD [--every N] [--jobs N] [WORK…]: for each piece of work and each kind of call that it makes, the first,
the Nth and so on fail, in several ways. Each run has to end with status 0 and the right file, or with status 1, a
sentence, the old file and nothing beside it. What does not is printed with the line that repeats it.
"""
import argparse
import concurrent.futures
import errno
import json
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]

# A kind of call, and how it fails.
WAYS = [
    ("open", errno.EMFILE, ""), ("open", errno.EMFILE, "on"), ("open", errno.EACCES, ""),
    ("read", errno.EIO, ""), ("read", errno.EIO, "on"), ("read", errno.EINTR, ""), ("write", errno.EINTR, ""),
    ("write", errno.ENOSPC, ""), ("write", errno.ENOSPC, "on"), ("write", errno.EIO, ""), ("write", 0, "short"),
    ("fsync", errno.EIO, ""), ("link", errno.EACCES, ""), ("rename", errno.EACCES, ""),
    ("mkdir", errno.ENOSPC, ""), ("unlink", errno.EACCES, ""),
    ("close", errno.EIO, ""), ("truncate", errno.EIO, ""), ("mmap", errno.ENOMEM, ""), ("allocate", errno.ENOMEM, ""),
]

# What is written, and by which program and line.
EXPORTS = {f"export-{suffix}": (["page." + suffix], "plotvane", ["export", "small.kdx", "page." + suffix, "--dpi", "60"])
           for suffix in ("png", "jpg", "tif", "bmp", "webp", "pdf", "svg")}
SAVE = (["saved.kdx"], "plotvane", ["run", "small.kdx", "select=Title", "Host_Delete", "save=saved.kdx", "--force"])
WORKS = {**EXPORTS, "save": SAVE, "save-link": SAVE,
         "jobs": (["01.png", "02.png"], "plotvane",
                  ["export", "small-series.kdx", "[page].png", "--dpi", "60", "--pages", "1,2", "--jobs", "2"]),
         "autosave": (["home/copy.kdx"], "plotvane_unsaved", ["keep", "small.kdx"])}


class Bench:
    """A folder with a small document, in which one piece of work is done again and again."""

    def __init__(self, build, work):
        self.build, self.work = build, work
        self.results, self.program, self.arguments = WORKS[work]
        self.expected = None

    def prepare(self, folder):
        for file in ("small.kdx", "small-series.kdx", "picture.png", "aegean.gpkg"):
            shutil.copy(self.build / "faults" / file, folder)
        for name in ("home", "behind"):
            (folder / name).mkdir()
        for result in self.results:
            if self.work == "save-link":
                (folder / result).symlink_to("behind/" + result)
            (folder / result).write_text("old")

    def take_copy(self, folder):
        """What the window has kept, under a name that stays; a copy without a description counts as none."""
        kept = folder / "home/data/plotvane/plotvane/recovery"
        for description in kept.glob("*.json"):
            text = description.with_suffix(".kdx").read_bytes().replace(os.fsencode(folder), b"FOLDER")
            (folder / "home/copy.kdx").write_bytes(text)

    def run(self, fault=None, counts=None):
        """Status, what was said, what the results hold, and what lies beside them."""
        with tempfile.TemporaryDirectory(prefix="faults-") as name:
            folder = Path(name)
            self.prepare(folder)
            there = lambda: set(os.listdir(folder)) | set(os.listdir(folder / "behind"))
            before = there()
            environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", HOME=name + "/home", TMPDIR="/tmp",
                               XDG_DATA_HOME=name + "/home/data", LC_ALL="C.UTF-8",
                               LD_PRELOAD=str(self.build / "lib/libplotvane_faults.so"),
                               PLOTVANE_FAULT_FROM="small")
            if fault:
                environment["PLOTVANE_FAULT"] = fault
            if counts:
                environment["PLOTVANE_FAULT_COUNTS"] = str(counts)
            try:
                done = subprocess.run([self.build / "bin" / self.program, *self.arguments], cwd=folder, env=environment,
                                      capture_output=True, timeout=120)
                status, said = done.returncode, done.stderr.decode(errors="replace")
            except subprocess.TimeoutExpired:
                status, said = "no end", ""
            self.take_copy(folder)
            # A lock that could not be removed belongs to a process that has gone, and is taken over.
            beside = sorted((there() ^ before) - {".saved.kdx.lock", ".small.kdx.lock"})
            if self.work == "save-link" and not (folder / self.results[0]).is_symlink():
                beside.append("no link any more")
            return status, said, [(folder / result).read_bytes() for result in self.results], beside

    def judge(self, fault):
        """Empty, or what is wrong."""
        status, said, content, beside = self.run(fault)
        if beside:
            return f"left behind: {beside}, status {status}"
        if status == 0:
            return "" if content == self.expected else "status 0 over a wrong file"
        if status != 1:
            return f"status {status}"
        if any(one not in (b"old", *self.may_be_new(two)) for one, two in zip(content, self.expected)):
            return "status 1, and the old file has gone"
        return "" if said.startswith("plotvane: ") or "\nplotvane: " in said else f"status 1 without a sentence: {said!r}"


    def may_be_new(self, expected):
        """Of several pages each is a file of its own; and a copy may be whole where the window could not tell so."""
        return [expected] if self.work in ("jobs", "autosave") else []


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("build", type=Path)
    parser.add_argument("--every", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("works", nargs="*", metavar="WORK", help=", ".join(WORKS))
    chosen = parser.parse_intermixed_args()
    chosen.build = chosen.build.resolve()
    prepare(chosen.build / "faults")
    tried, wrong = 0, []
    for work in chosen.works or WORKS:
        bench = Bench(chosen.build, work)
        with tempfile.NamedTemporaryFile() as counts:
            status, said, bench.expected, _ = bench.run(counts=counts.name)
            if status != 0:
                sys.exit(f"{work} fails without a fault: {said}")
            made = {}
            for kind, count in (line.split() for line in open(counts.name)):
                made[kind] = max(made.get(kind, 0), int(count))  # of the process that makes most
        if not made:
            sys.exit("no call is noticed; build all, lib/libplotvane_faults.so too")
        faults = [f"{kind} {number} {error} {mode}".strip()
                  for way, (kind, error, mode) in enumerate(WAYS)
                  for number in numbers(made.get(kind, 0), chosen.every, way + list(WORKS).index(work))]
        with concurrent.futures.ThreadPoolExecutor(chosen.jobs) as pool:
            for fault, problem in zip(faults, pool.map(bench.judge, faults)):
                tried += 1
                if problem:
                    wrong.append((work, fault, problem))
                    print(f"{work}: PLOTVANE_FAULT='{fault}': {problem}", flush=True)
        print(f"{work}: {len(faults)} faults; calls: {made}", flush=True)
    print(f"{tried} runs, {len(wrong)} wrong")
    sys.exit(1 if wrong else 0)


def numbers(count, every, way):
    """Every so manieth of a count, from another one for each way."""
    step = min(every, max(count, 1))
    return range(1 + 37 * way % step, count + 1, every)


def prepare(folder):
    """A page of a few centimetres with a layer, labels, a picture and a text."""
    folder.mkdir(exist_ok=True)
    shutil.copy(ROOT / "samples/data/aegean.gpkg", folder)
    shutil.copy(ROOT / "tests/faults/small.kdx", folder)
    document = json.loads((ROOT / "tests/faults/small.kdx").read_text())
    document["series"] = {"layer": "Towns"}
    (folder / "small-series.kdx").write_text(json.dumps(document))
    shutil.copy(ROOT / "docs/world.png", folder / "picture.png")


if __name__ == "__main__":
    main()
