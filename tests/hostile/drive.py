#!/usr/bin/env python3
"""Exports documents that ask for too much, and measures what that takes.

drive.py BUILD [--seconds S] [--megabytes M] [--work WORK…] [--markdown] [NAME…]: prints for each document of make.py
the seconds of processor and the megabytes at the peak. A process that takes more, ends by a signal, says nothing where
it failed, or leaves something beside its result, is a fault.
"""
import argparse
import os
import resource
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import make

PATIENCE = 3  # times the seconds of a limit, until a process is killed; by the clock, five times that

WORKS = {
    "png": lambda document: ["export", document, "page.png", "--dpi", "300"],
    "pdf": lambda document: ["export", document, "page.pdf", "--dpi", "300"],
    "svg": lambda document: ["export", document, "page.svg", "--dpi", "300"],
    "info": lambda document: ["info", document],
}


def limit(seconds):
    resource.setrlimit(resource.RLIMIT_CPU, (int(seconds), int(seconds) + 1))


class Run:
    """One process: what it took, how it ended and what it left."""

    def __init__(self, program, document, work, seconds, megabytes, says):
        with tempfile.TemporaryDirectory(prefix="hostile-") as name:
            environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", HOME=name + "/home", LC_ALL="C.UTF-8")
            command = [program, *WORKS[work](document), "--max-memory", str(10 * megabytes)]
            with open(os.path.join(name, "said"), "w+b") as said:
                process = subprocess.Popen(command, cwd=name, env=environment, stdout=subprocess.DEVNULL, stderr=said,
                                           start_new_session=True, preexec_fn=lambda: limit(PATIENCE * seconds))
                self.took_too_long = not self.ends(process, 5 * PATIENCE * seconds)
                if self.took_too_long:
                    os.killpg(process.pid, signal.SIGKILL)
                _, status, usage = os.wait4(process.pid, 0)
                process.returncode = self.status = os.waitstatus_to_exitcode(status)
                said.seek(0)
                self.said = said.read().decode(errors="replace")
            self.left = sorted(set(os.listdir(name)) - {"said", "home", "page." + work})
        self.seconds = usage.ru_utime + usage.ru_stime
        self.megabytes = usage.ru_maxrss / 1024
        self.faults = self.judge(seconds, megabytes)
        if says not in self.said and work != "info":  # which reads no feature
            self.faults.append(f"not told: {says}")

    @staticmethod
    def ends(process, seconds):
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            if os.waitid(os.P_PID, process.pid, os.WEXITED | os.WNOWAIT | os.WNOHANG):
                return True
            time.sleep(0.02)
        return False

    def judge(self, seconds, megabytes):
        if self.took_too_long:
            return ["no end"]
        faults = []
        if self.seconds > seconds:
            faults.append("time")
        if self.megabytes > megabytes:
            faults.append("memory")
        if self.status not in (0, 1) or "signal" in self.said:
            faults.append(f"status {self.status}")
        if self.status == 1 and not self.said.strip():
            faults.append("silence")
        if self.left:
            faults.append("left " + ", ".join(self.left))
        return faults


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=Path)
    parser.add_argument("names", nargs="*")
    parser.add_argument("--seconds", type=float, default=10)
    parser.add_argument("--megabytes", type=int, default=300)
    parser.add_argument("--work", action="append", choices=sorted(WORKS))
    parser.add_argument("--markdown", action="store_true")
    parser.add_argument("--keep", help="a folder for the documents; else they go")
    options = parser.parse_intermixed_args()
    if unknown := set(options.names) - set(make.CASES):
        parser.error("there is no " + ", ".join(sorted(unknown)))
    program = (options.build / "bin/plotvane").resolve()
    works = options.work or list(WORKS)
    found = 0
    columns = [f"{work}: s, MB" for work in works]
    if options.markdown:
        print("| document | " + " | ".join(columns) + " |\n|---|" + "---|" * len(columns))
    with tempfile.TemporaryDirectory(prefix="hostile-documents-") as folder:
        # In a process of its own: what one that forks had taken counts for its children, too.
        subprocess.run([sys.executable, make.__file__, options.keep or folder, *options.names], check=True)
        for name in options.names or make.CASES:
            path = Path(options.keep or folder, name, name + ".kdx").resolve()
            runs = [Run(program, path, work, options.seconds, options.megabytes, make.CASES[name][2]) for work in works]
            found += sum(bool(run.faults) for run in runs)
            if options.markdown:
                cells = [f"{run.seconds:.1f}, {run.megabytes:.0f}" for run in runs]
                print(f"| {make.CASES[name][0]} | " + " | ".join(cells) + " |", flush=True)
                continue
            cells = [f"{work} {run.seconds:6.1f} s {run.megabytes:5.0f} MB" for work, run in zip(works, runs)]
            print(f"{name:28} " + "   ".join(cells), flush=True)
            for work, run in zip(works, runs):
                if run.faults:
                    print(f"    {work}: {'; '.join(run.faults)}; {run.said.strip()[:300]}", flush=True)
    if found:
        sys.exit(f"{found} processes took too much or ended badly")


if __name__ == "__main__":
    main()
