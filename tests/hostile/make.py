#!/usr/bin/env python3
"""Writes documents that ask for more than they show, and the small data that they name.

make.py FOLDER [NAME…]: all of them, or those that are named, each as FOLDER/NAME/NAME.kdx. make.py --list prints their
names and what each asks for. Needs the standard library alone.
"""
import json
import sys
from pathlib import Path

from parts import CASES

for subject in ("drawing", "contents", "sources", "labels"):  # in which they are listed
    __import__(subject)


def write(folder, names=None):
    """Writes the documents into the folder and answers where each lies."""
    written = {}
    for name in names or CASES:
        own = Path(folder) / name
        own.mkdir(parents=True, exist_ok=True)
        done = CASES[name][1](own)
        written[name] = own / f"{name}.kdx"
        if done is not None:
            written[name].write_text(json.dumps(done, separators=(",", ":")))
    return written


if __name__ == "__main__":
    if sys.argv[1:2] == ["--list"]:
        for name, (text_of, *_) in CASES.items():
            print(f"{name:28} {text_of}")
    elif len(sys.argv) > 1 and not set(sys.argv[2:]) - set(CASES):
        write(sys.argv[1], sys.argv[2:])
    else:
        sys.exit("make.py FOLDER [NAME...] or make.py --list")
