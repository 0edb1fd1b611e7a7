"""Prints what tools/coverage has measured of the files on standard input:
ROOT LINES.info BRANCHES.json [--lines] [--branches]."""
import collections
import json
import os
import sys

root, lines_file, branches_file = sys.argv[1:4]
wanted = set(sys.stdin.read().split())


# Relative to the root: a compiler cache may have made the path another one.
def short(path):
    return os.path.relpath(os.path.normpath(path), root)


lines = collections.defaultdict(dict)
name = None
for row in open(lines_file):
    if row.startswith("SF:"):
        name = short(row[3:].strip())
    elif row.startswith("DA:") and name in wanted:
        number, count = row[3:].split(",")[:2]
        lines[name][int(number)] = lines[name].get(int(number), 0) + int(count)

# A condition of a template counts once, however often it is instantiated.
branches = collections.defaultdict(lambda: collections.defaultdict(lambda: [0, 0]))
for file in json.load(open(branches_file))["data"][0]["files"]:
    for branch in file.get("branches", []):
        sides = branches[short(file["filename"])][tuple(branch[:4])]
        sides[0] += branch[4]
        sides[1] += branch[5]


def share(done, of):
    return f"{done:6} of {of:6} {100 * done / of if of else 100:6.1f} %"


def row(reached, count, taken, sides, text):
    print(share(reached, count), share(taken, sides), text)


print(f"{'lines':>18} {'':7} {'branches':>18}")
sums = [0, 0, 0, 0]
for name in sorted(lines):
    sides = [count for pair in branches[name].values() for count in pair]
    own = [sum(map(bool, lines[name].values())), len(lines[name]), sum(map(bool, sides)), len(sides)]
    sums = [a + b for a, b in zip(sums, own)]
    row(*own, name)
row(*sums, "in all")

for name in sorted(lines):
    source = open(os.path.join(root, name)).read().split("\n")
    if "--lines" in sys.argv:
        for number, count in sorted(lines[name].items()):
            if count == 0:
                print(f"{name}:{number}: {source[number - 1]}")
    if "--branches" in sys.argv:
        for (number, start, _, end), sides in sorted(branches[name].items()):
            if 0 in sides and any(sides):
                print(f"{name}:{number}: never {'false' if sides[0] else 'true'}: "
                      f"{source[number - 1][start - 1:end - 1]}")
