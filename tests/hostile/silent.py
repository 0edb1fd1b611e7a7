#!/usr/bin/env python3
"""Silent loss: damages plans in their content and asks 'kwgantt check' about them. Whatever the file has (counted here,
by readers of its own: tasks, links, resources, assignments, exceptions, intervals) must be in the loaded plan, or there
must be a finding. A plan of which something is missing with exit code 0 is a fault.

    silent.py KWGANTT [--count 300] [--seed 1] [--keep FOLDER]

Prints each fault with the seed that makes it again, and a sum; exit code 1 when there was one.
"""
import argparse
import collections
import csv
import io
import json
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET
import zipfile

WORDS = ["", "x", "-1", "0", "1", "nan", "50", "4294967296", "1e400", "99", ";", "1;1", "28800;", "a;b", "61200;28800",
         "1;1;1;1;1;1;1;1", "\u00e9", "2026-02-30"]
COUNTED = ("tasks", "links", "resources", "assignments", "exceptions", "intervals")


def parts_of(path):
    with zipfile.ZipFile(path) as archive:
        return {i.filename: archive.read(i) for i in archive.infolist()}


def pack(path, parts):
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as archive:
        for name in sorted(parts):
            archive.writestr(name, parts[name])


def filled(texts):
    return [t for t in texts if t.strip()]


# ------------------------------------------------------------------------------------------------ packages

def count_package(path):
    root = ET.fromstring(parts_of(path)["document.xml"])
    counts = collections.Counter()
    parent = {child: node for node in root.iter() for child in node}
    for node in root.iter():
        above = parent.get(node)
        if node.tag == "Task" or (above is not None and above.tag == "TaskList"):
            counts["tasks"] += 1
            counts["links"] += len(filled(node.get("Predecessors", "").split(";")))
        if above is not None and above.tag == "ResourceInfo":
            counts["resources"] += 1
        if above is not None and above.tag == "ResourceList":
            counts["assignments"] += 1
        if node.tag == "CdCalendar":
            counts["exceptions"] += node.get("CdIsException", "0") not in ("", "0")
            counts["intervals"] += len(node.get("CdStartTime", "").split(";")) if node.get("CdStartTime") else 0
        if node.tag == "StartTime":
            counts["intervals"] += len(node.get("V", "").split(";")) if node.get("V") else 0
    return counts


def mutate_package(rng, source, target):
    parts = parts_of(source)
    root = ET.fromstring(parts["document.xml"])
    nodes = [n for n in root.iter() if n is not root]
    parent = {child: node for node in root.iter() for child in node}
    for _ in range(rng.choice((1, 1, 1, 2, 3))):
        node = rng.choice(nodes)
        above = parent[node]
        if node not in list(above):
            continue
        what = rng.randrange(7)
        if what == 0:
            node.tag = rng.choice((node.tag + "x", node.tag[:-1] or "y", node.tag.lower() + "_"))
        elif what == 1 and node.attrib:
            name = rng.choice(sorted(node.attrib))
            node.set(name + "_", node.attrib.pop(name))
        elif what == 2:
            above.remove(node)
        elif what == 3:
            above.insert(rng.randrange(len(above) + 1), ET.fromstring(ET.tostring(node)))
        elif what == 4:
            above.insert(rng.randrange(len(above) + 1), ET.Element(node.tag))
        elif node.attrib:
            node.set(rng.choice(sorted(node.attrib)), rng.choice(WORDS))
    parts["document.xml"] = ET.tostring(root)
    pack(target, parts)
    return [target]


# ------------------------------------------------------------------------------------------------ tables

def links_in(text):
    return len(filled(re.split(r"[;,]", text)))


def count_rows(rows):
    """Tasks and links of a sheet, by its titles."""
    if not rows:
        return collections.Counter()
    titles = [t.strip().lower() for t in rows[0]]
    linked = [i for i, t in enumerate(titles) if t == "predecessors"]
    counts = collections.Counter()
    for row in rows[1:]:
        if filled(row):
            counts["tasks"] += 1
            counts["links"] += sum(links_in(row[i]) for i in linked[:1] if i < len(row))
    return counts


def read_csv(path):
    with open(path, encoding="utf-8-sig", newline="") as file:
        return list(csv.reader(file))


def count_csv(path):
    counts = count_rows(read_csv(path))
    stem = path[:-4]
    for side in ("resources", "assignments"):
        if os.path.exists(f"{stem}.{side}.csv"):
            counts[side] = sum(1 for row in read_csv(f"{stem}.{side}.csv")[1:] if filled(row))
    return counts


def mutate_rows(rng, rows):
    for _ in range(rng.choice((1, 1, 1, 2, 3))):
        at = rng.randrange(len(rows))
        what = rng.randrange(6)
        if what == 0 and len(rows) > 2 and at > 0:
            del rows[at]
        elif what == 1:
            rows.insert(rng.randrange(1, len(rows) + 1), list(rows[at]))
        elif rows[at]:
            column = rng.randrange(len(rows[at]))
            old = rows[at][column]
            rows[at][column] = rng.choice((rng.choice(WORDS), old + "x", old[:-1], old + ";" + old, old + "99"))


def mutate_csv(rng, source, target):
    written = []
    sides = [s for s in (".csv", ".resources.csv", ".assignments.csv") if os.path.exists(source[:-4] + s)]
    hurt = rng.choice(sides + [".csv"] * 2)
    for side in sides:
        rows = read_csv(source[:-4] + side)
        if side == hurt:
            mutate_rows(rng, rows)
        text = io.StringIO()
        csv.writer(text, lineterminator="\n").writerows(rows)
        written.append(target[:-4] + side)
        with open(written[-1], "w", encoding="utf-8", newline="") as file:
            file.write(text.getvalue())
    return written


# ------------------------------------------------------------------------------------------------ workbooks

MAIN = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"


def sheets_of(parts):
    return sorted(n for n in parts if re.fullmatch(r"xl/worksheets/sheet\d+\.xml", n))


def cells_of(parts, name):
    shared = []
    if "xl/sharedStrings.xml" in parts:
        shared = ["".join(t.text or "" for t in si.iter(MAIN + "t"))
                  for si in ET.fromstring(parts["xl/sharedStrings.xml"]).iter(MAIN + "si")]
    rows = []
    for row in ET.fromstring(parts[name]).iter(MAIN + "row"):
        cells = []
        for cell in row.iter(MAIN + "c"):
            value = cell.find(MAIN + "v")
            text = "".join(t.text or "" for t in cell.iter(MAIN + "t")) if value is None else value.text or ""
            if cell.get("t") == "s" and text.isdigit() and int(text) < len(shared):
                text = shared[int(text)]
            letters = re.match(r"[A-Z]*", cell.get("r", "")).group()
            column = 0
            for letter in letters:
                column = column * 26 + ord(letter) - 64
            while len(cells) < column - 1:
                cells.append("")
            cells.append(text)
        rows.append(cells)
    return rows


def count_workbook(path):
    parts = parts_of(path)
    names = sheets_of(parts)
    counts = count_rows(cells_of(parts, names[0])) if names else collections.Counter()
    for name, what in zip(names[1:3], ("resources", "assignments")):
        # A row of the third sheet that names no resource only leads those of its task.
        needed = 2 if what == "assignments" else 1
        counts[what] = sum(1 for row in cells_of(parts, name)[1:] if len(filled(row[:needed])) == needed)
    return counts


def mutate_workbook(rng, source, target):
    parts = parts_of(source)
    name = rng.choice(sheets_of(parts))
    ET.register_namespace("", MAIN[1:-1])
    root = ET.fromstring(parts[name])
    data = root.find(MAIN + "sheetData")
    for _ in range(rng.choice((1, 1, 1, 2, 3))):
        rows = list(data)
        if not rows:
            break
        row = rng.choice(rows)
        cells = list(row)
        what = rng.randrange(6)
        if what == 0:
            data.remove(row)
        elif what == 1 and cells:
            row.remove(rng.choice(cells))
        elif cells:
            cell = rng.choice(cells)
            for child in list(cell):
                cell.remove(child)
            cell.set("t", "inlineStr")
            ET.SubElement(ET.SubElement(cell, MAIN + "is"), MAIN + "t").text = rng.choice(WORDS)
    parts[name] = ET.tostring(root)
    pack(target, parts)
    return [target]


KINDS = {".kwpx": (mutate_package, count_package), ".csv": (mutate_csv, count_csv),
         ".xlsx": (mutate_workbook, count_workbook)}


# ------------------------------------------------------------------------------------------------ asking

def run(program, *arguments):
    return subprocess.run([program, *arguments], capture_output=True, timeout=60)


def answer(program, path):
    """What the program says: its exit code, what the plan holds, how many findings there are."""
    done = run(program, "check", path, "--json")
    if done.returncode < 0 or done.returncode >= 70:
        return done.returncode, None, 0
    try:
        told = json.loads(done.stdout)
    except ValueError:
        return done.returncode, None, 0
    holds = {"tasks": told.get("taskCount", 0), "links": told.get("linkCount", 0)}
    holds.update((name, told.get(name, 0)) for name in COUNTED[2:])
    return done.returncode, holds, told.get("findingCount", 0)


def make_sources(program, folder):
    plan = os.path.join(folder, "plan.kwpx")
    for arguments in (("new", plan, "--sample", "--now", "2026-01-05"),
                      ("edit", plan, "calendar", "holiday", "2026-01-14", "-i"),
                      ("edit", plan, "calendar", "holiday", "2026-02-02..2026-02-06", "-i"),
                      ("convert", plan, os.path.join(folder, "plan.csv")),
                      ("convert", plan, os.path.join(folder, "book.xlsx"), "--force")):
        done = run(program, *arguments)
        if done.returncode not in (0, 1):
            sys.exit(f"silent: kwgantt {' '.join(arguments)}: {done.stderr.decode()}")
    return [plan, os.path.join(folder, "plan.csv"), os.path.join(folder, "book.xlsx")]


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("program")
    parser.add_argument("--count", type=int, default=300)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--keep", help="keeps the files of faults in this folder")
    options = parser.parse_args()
    os.environ["TZ"] = "UTC"
    with tempfile.TemporaryDirectory() as folder:
        sources = make_sources(options.program, folder)
        outcomes = collections.Counter()
        faults = 0
        repeated = {}
        for source in sources:
            code, holds, findings = answer(options.program, source)
            has = KINDS[os.path.splitext(source)[1]][1](source)
            # A workbook lists assignments of subtasks at their summaries once more.
            repeated[source] = max(0, has["assignments"] - holds["assignments"]) if source.endswith(".xlsx") else 0
            has["assignments"] -= repeated[source]
            if code != 0 or any(holds[name] < has[name] for name in COUNTED):
                sys.exit(f"silent: {os.path.basename(source)} itself: code {code}, holds {holds}, has {dict(has)}")
        for number in range(options.count):
            source = sources[number % len(sources)]
            mutate, count = KINDS[os.path.splitext(source)[1]]
            rng = random.Random(f"{options.seed}/{number}")
            target = os.path.join(folder, "mutant" + os.path.splitext(source)[1])
            written = mutate(rng, source, target)
            has = count(target)
            has["assignments"] -= repeated[source]
            code, holds, findings = answer(options.program, target)
            crashed = code < 0 or code >= 70
            lost = holds is not None and code == 0 and findings == 0 and [
                f"{name} {has[name]} -> {holds[name]}" for name in COUNTED if holds[name] < has[name]]
            outcomes["crash" if crashed else "refused" if code == 3 else "told" if code else "as it says"] += 1
            if crashed or lost:
                faults += 1
                print(f"seed {options.seed}/{number} {os.path.basename(source)}: {'crash' if crashed else ', '.join(lost)}")
                if options.keep:
                    os.makedirs(options.keep, exist_ok=True)
                    for path in written:
                        shutil.copy(path, os.path.join(options.keep, f"{number}_{os.path.basename(path)}"))
            for path in written:
                os.remove(path)
        print(f"{options.count} mutants: " + ", ".join(f"{n} {what}" for what, n in sorted(outcomes.items())) +
              f"; {faults} silent or crashed")
    sys.exit(faults > 0)


main()
