#!/usr/bin/env python3
"""Looks at what a process that works on a stranger's document opens, begins and connects to.

drive.py BUILD [--own] [--work WORK…] [NAME…]: lets `plotvane --confine` export, tell and change each document of
documents.py, of tests/hostile/make.py, of the samples and of the fuzzer's seeds, or of documents.py alone, under
bin/reach, which writes down what each process asks of the system. Whatever is not on the lists below is a fault, and so
is a watch that notices nothing.
"""
import argparse
import collections
import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

import documents
from documents import make

ROOT = Path(__file__).resolve().parent.parent.parent
CANNOT_WATCH = 77
MAX_SECONDS = 60

WORKS = {
    "png": ["export", "{document}", "{out}/page.png", "--dpi", "30", "--allow-missing"],
    "pdf": ["export", "{document}", "{out}/page.pdf", "--allow-missing"],
    "info": ["info", "{document}", "--json"],
    "run": ["run", "{document}", "select-all", "Host_LayoutView", "save={out}/page.kdx"],
}

# What may be read wherever a document lies, and why.
READABLE = [
    (r"/(usr|lib|lib64)/", "libraries, fonts, the databases of PROJ and GDAL"),
    (r"/etc/(ld\.so\.\w+|fonts|gdal|localtime|locale\.alias|nsswitch\.conf|passwd|xdg|machine-id)(/|$)", "what libraries are set to"),
    (r"/proc/(self|\d+)/", "what a process asks of itself, and its supervisor of it"),
    (r"/proc/(sys|meminfo|cpuinfo|mounts|filesystems)", "how much the machine has"),
    (r"/proc/locks$", "whether another program is writing a database"),
    (r"/sys/(devices/system/(cpu|node)|fs/cgroup)", "how much the machine has"),
    (r"/dev/(null|u?random|tty)$", "nothing, chance and the terminal"),
    (r"/dev/disk/by-label(/|$)", "the names of disks, where room is looked for"),
    (r"/var/lib/dbus/machine-id$", "the machine's name, for the lock of a document"),
    (r"/var/cache/fontconfig(/|$)", "the list of fonts"),
    (r"/$", "the root, on the way to others"),
]
WRITABLE = [(r"/dev/(null|tty)$", "nothing, and the terminal")]


def faults_of(lines, inside, out, home, build, works):
    """The lines that are not allowed, with what they are."""
    readable = [pattern for pattern, _ in READABLE]
    readable += [re.escape(str(place)) + "(/|$)" for place in (inside, out, home, build / "bin", build / "lib", works)]
    writable = [pattern for pattern, _ in WRITABLE] + [re.escape(str(place)) + "(/|$)" for place in (out, home)]
    faults, processes, programs = [], 0, 0
    for line in lines:
        kind, what, *found = line.split("\t")
        place = (found or [what])[0]
        if kind == "process":
            processes += 1
            fine = processes <= 1  # the one that is supervised
        elif kind == "execute":
            programs += 1
            fine = programs <= 1  # the program itself
        elif kind in ("socket", "connect"):
            fine = False
        elif kind == "read":
            fine = any(re.match(pattern, place) for pattern in readable)
        else:
            fine = any(re.match(pattern, place) for pattern in writable)
        if not fine:
            faults.append(line)
    return faults


class Watch:
    """A folder in which documents are worked on, one after the other."""

    def __init__(self, build, folder):
        self.build, self.folder = build, folder
        self.home, self.outside = folder / "home", folder / "outside"
        self.home.mkdir()
        documents.fill_outside(self.outside)
        (self.home / "tmp").mkdir(mode=0o700)
        self.opened = self.processes = 0

    def run(self, command, inside, out):
        """The status, what was said, and the faults."""
        log = self.folder / "log"
        environment = {"PATH": "/usr/bin:/bin", "HOME": str(self.home), "TMPDIR": str(self.home / "tmp"), "LC_ALL": "C.UTF-8",
                       "QT_QPA_PLATFORM": "offscreen", "ASAN_OPTIONS": "detect_leaks=0",
                       "XDG_RUNTIME_DIR": str(self.home / "tmp")}  # else libraries ask a service whose home it is
        # What invites to more must not count.
        environment |= {"PROJ_NETWORK": "ON", "OGR_SQLITE_ALLOW_EXTERNAL_ACCESS": "YES", "OGR_SQLITE_LIST_VIRTUAL_OGR": "YES",
                        "LIBKML_EXTERNAL_STYLE": "YES", "GDAL_VRT_ENABLE_PYTHON": "YES"}
        ran = subprocess.run([self.build / "bin/reach", log, *command], cwd=inside, env=environment, capture_output=True,
                             text=True, errors="replace")
        if ran.returncode == CANNOT_WATCH:
            sys.exit(CANNOT_WATCH)
        lines = log.read_text(errors="replace").splitlines()
        self.opened += sum(line.startswith(("read\t", "write\t")) for line in lines)
        self.processes += 1
        return ran, faults_of(lines, inside, out, self.home, self.build, inside)

    def look(self, name, document, work):
        out = self.folder / "out"
        out.mkdir()
        command = [part.format(document=document, out=out) for part in WORKS[work]]
        program = self.build / "bin/plotvane"
        ran, faults = self.run([program, *command, "--confine", "--max-seconds", str(MAX_SECONDS), "--max-memory", "3000"],
                               document.parent, out)
        left = sorted(path.name for path in out.iterdir() if not path.name.startswith("page."))
        shutil.rmtree(out)
        if ran.returncode not in (0, 1):
            faults.append(f"status {ran.returncode}: {ran.stderr.strip()[:300]}")
        faults += ["left " + path for path in left]
        for fault in collections.Counter(faults):
            print(f"{name}, {work}: {fault}", flush=True)
        return bool(faults)

    def notices(self):
        """Whether what is forbidden is noticed, each kind of it."""
        secret = self.outside / "secret"
        script = f"cat {secret}; : > {self.outside}/new; mv {self.outside}/new {self.outside}/newer; rm {self.outside}/newer; exec 3<>/dev/tcp/127.0.0.1/9"
        _, faults = self.run(["/bin/bash", "-c", script], self.home, self.folder / "out")
        kinds = {fault.split("\t")[0] for fault in faults}
        return {"read", "write", "rename", "remove", "process", "execute", "socket", "connect"} <= kinds


def written(watch, names, only_own):
    """(name, path) of each document, which is written when its turn has come."""
    folder = watch.folder / "inside"
    for name in documents.CASES:
        if not names or name in names:
            own = folder / name
            own.mkdir(parents=True)
            yield name, documents.write(name, own, watch.outside)
    if only_own:
        return
    for name in make.CASES:
        if not names or name in names:
            yield name, make.write(folder, [name])[name]
    shutil.copytree(ROOT / "samples", folder / "samples")
    shutil.copytree(ROOT / "fuzz/seeds/document", folder / "seeds")
    for path in sorted([*(folder / "samples").rglob("*.kdx"), *(folder / "seeds").glob("*.kdx")]):
        if not names or path.stem in names:
            yield path.stem, path


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=Path)
    parser.add_argument("names", nargs="*")
    parser.add_argument("--own", action="store_true")
    parser.add_argument("--work", action="append", choices=WORKS)
    options = parser.parse_intermixed_args()
    with tempfile.TemporaryDirectory(prefix="reach-") as folder:
        watch = Watch(options.build.resolve(), Path(folder).resolve())
        if not watch.notices():
            sys.exit("what is forbidden is not noticed")
        watch.opened = watch.processes = found = count = 0
        for name, document in written(watch, options.names, options.own):
            count += 1
            found += sum(watch.look(name, document, work) for work in options.work or WORKS)
            if document.parent.parent == watch.folder / "inside" and document.parent.name == name:
                shutil.rmtree(document.parent)
        print(f"{count} documents, {watch.processes} processes, {watch.opened} files asked for, {found} processes with faults")
    sys.exit(1 if found or not count else 0)


if __name__ == "__main__":
    main()
