#!/usr/bin/python3
"""Compares our XLS workbooks with other programs, cell by cell. Not a part of the test run: it needs the programs.

    readers.py written KWXLS FOLDER          what we write is read by xlrd, LibreOffice and Gnumeric without a word
    readers.py read KWXLS FOLDER ORACLES     the workbooks of a manifest.csv against the JSON dumps of another reader;
                                             "refuse" must fail, "any" must end
"""
import csv
import glob
import io
import json
import os
import subprocess
import sys
import time


def ours(tool, path, what="cells"):
    """None and the reason, or the lines."""
    run = subprocess.run([tool, what, path], capture_output=True, text=True, timeout=60)
    if run.returncode not in (0, 1):
        raise SystemExit("%s: ended with %d\n%s" % (path, run.returncode, run.stderr))
    return (run.stderr, None) if run.returncode else ("", [json.loads(line) for line in run.stdout.splitlines()])


def by_sheet(lines):
    sheets = []
    for line in lines:
        if line[0] == "sheet":
            sheets.append((line[1], {}))
        else:
            sheets[-1][1][line[0], line[1]] = line[3]
    return sheets


def of_csv(path):
    csv.field_size_limit(1 << 30)
    with open(path, newline="", encoding="utf-8") as file:
        return {(r, c): text for r, row in enumerate(csv.reader(file)) for c, text in enumerate(row) if text != ""}


def of_xlrd(path, _):
    import xlrd
    log = io.StringIO()
    book = xlrd.open_workbook(path, logfile=log)
    sheets = [(s.name, {(r, c): s.cell_value(r, c) for r in range(s.nrows) for c in range(s.ncols)
                        if s.cell_type(r, c) != xlrd.XL_CELL_EMPTY}) for s in book.sheets()]
    return sheets, log.getvalue()


def converted(command, folder, pattern):
    run = subprocess.run(command, capture_output=True, text=True, timeout=300)
    names = glob.glob(os.path.join(folder, pattern))
    said = [line for line in run.stderr.splitlines() if "javaldx" not in line]
    return names, "\n".join(said) + ("" if run.returncode == 0 else "ended with %d" % run.returncode)


def of_libreoffice(path, folder):
    stem = os.path.basename(path)[:-4]
    names, log = converted(["soffice", "--headless", "-env:UserInstallation=file://" + os.path.abspath(folder) + "/profile",
                            "--convert-to", "csv:Text - txt - csv (StarCalc):44,34,76,1,,0,true,false,false,false,false,-1",
                            "--outdir", folder, path], folder, stem + "-*.csv")
    order = {"%s-%s.csv" % (stem, name): i for i, name in enumerate(n for n, _ in of_xlrd(path, folder)[0])}
    names.sort(key=lambda name: order[os.path.basename(name)])
    return [(os.path.basename(name)[len(stem) + 1:-4], of_csv(name)) for name in names], log


def of_gnumeric(path, folder):
    stem = os.path.join(folder, os.path.basename(path)[:-4])
    names, log = converted(["ssconvert", "-T", "Gnumeric_stf:stf_assistant", "-S", "-O",
                            "format=raw separator=, quoting-mode=auto", path, stem + ".%n.gcsv"], folder,
                           os.path.basename(stem) + ".*.gcsv")
    names.sort(key=lambda name: int(name.split(".")[-2]))
    return [(None, of_csv(name)) for name in names], log


def same(a, b):
    if isinstance(a, str) or not isinstance(b, str):
        return a == b or (isinstance(a, float) and isinstance(b, float) and abs(a - b) <= 1e-15 * abs(a))
    try:
        return abs(float(b) - a) <= 1e-15 * abs(a)
    except ValueError:
        return False


def differences(mine, theirs):
    found = []
    if len(mine) != len(theirs):
        found.append("%d sheets for %d" % (len(theirs), len(mine)))
    for (name, cells), (other_name, others) in zip(mine, theirs):
        if other_name is not None and other_name != name:
            found.append("sheet %r for %r" % (other_name, name))
        for place in sorted(set(cells) | set(others)):
            a, b = cells.get(place, ""), others.get(place, "")
            if not same(a, b):
                found.append("%s %s: %.60r for %.60r" % (name, place, b, a))
    return found


def written(tool, folder):
    os.makedirs(folder, exist_ok=True)
    subprocess.run([tool, "samples", folder], check=True)
    faults = 0
    for path in sorted(glob.glob(os.path.join(folder, "*.xls"))):
        mine = by_sheet(ours(tool, path)[1])
        for reader in (of_xlrd, of_libreoffice, of_gnumeric):
            begin = time.time()
            theirs, log = reader(path, folder)
            found = differences(mine, theirs) + (["said: " + log.strip()] if log.strip() else [])
            faults += len(found)
            print("%-12s %-15s %2d sheets %7d cells %5.1f s %s" % (
                os.path.basename(path), reader.__name__[3:], len(mine), sum(len(c) for _, c in mine), time.time() - begin,
                "\n    ".join([""] + found[:9]) if found else "equal"), flush=True)
    return faults


def oracle_of(folder, name):
    with open(os.path.join(folder, name + ".json"), encoding="utf-8") as file:
        dump = json.load(file)
    sheets = [(s["name"], {(r, c): v for r, c, _, v in s["cells"]}) for s in dump["sheets"]]
    return dump.get("sheet_names", [s["name"] for s in dump["sheets"]]), sheets


def read(tool, folder, oracles):
    faults = 0
    for row in csv.DictReader(open(os.path.join(folder, "manifest.csv"), encoding="utf-8")):
        path = os.path.join(folder, row["file"])
        container = row["exercises"].startswith("contain")
        error, lines = ours(tool, path, "streams" if container else "cells")
        found = []
        if row["kind"] == "ok" and lines is None or row["kind"] == "refuse" and lines is not None:
            found.append("expected: " + row["kind"])
        elif row["kind"] == "ok" and not container:
            mine = by_sheet(lines)
            names, theirs = oracle_of(oracles, row["file"])
            inside = [(n, {p: v for p, v in cells.items() if p in others or p[0] < 200 and p[1] < 30})
                      for (n, cells), (_, others) in zip(mine, theirs)]
            found = differences(inside, theirs)
            if [n for n, _ in mine] != names:
                found.append("sheets %s for %s" % ([n for n, _ in mine], names))
        faults += len(found)
        print("%-45s %-7s %s" % (row["file"], row["kind"], error.strip() or ("streams %s" % lines if container else "read")))
        print("".join("    %s\n" % line for line in found[:20]), end="")
    return faults


if __name__ == "__main__":
    work = {"written": written, "read": read}.get(sys.argv[1] if len(sys.argv) > 1 else "")
    if not work:
        raise SystemExit(__doc__)
    sys.exit(1 if work(*sys.argv[2:]) else 0)
