#!/usr/bin/env python3
"""Whether every function that a header for hosts declares is in a library: exports.py INCLUDE LIBRARY...
Prints those that are not, with their places. castxml reads the headers, nm the libraries.
"""
import collections
import os
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree


def declarations(include):
    """The XML of everything that the installed headers declare."""
    headers = []
    for folder, _, names in os.walk(include + "/kwgantt"):
        headers += (os.path.relpath(f"{folder}/{name}", include) for name in names if name.endswith(".h"))
    flags = subprocess.run(["pkg-config", "--cflags", "Qt5Core", "Qt5Gui", "Qt5Xml"], check=True, text=True,
                           stdout=subprocess.PIPE).stdout.split()
    with tempfile.TemporaryDirectory() as folder:
        with open(folder + "/all.cpp", "w", encoding="utf-8") as source:
            source.writelines(f"#include <{header}>\n" for header in sorted(headers))
        subprocess.run(["castxml", "--castxml-output=1", "-std=c++17", "-fPIC", *flags, "-I", include,
                        "-o", folder + "/all.xml", folder + "/all.cpp"], check=True)
        return ElementTree.parse(folder + "/all.xml").getroot()


def symbols(libraries):
    listed = [subprocess.run(["nm", "-D", "--defined-only", *demangled, *libraries], check=True, text=True,
                             stdout=subprocess.PIPE).stdout.splitlines() for demangled in ([], ["-C"])]
    mangled = {line.split()[-1] for line in listed[0] if line}
    # Constructors are told by their class only: "KWDocument::KWDocument", and how many different ones there are.
    named = {line.split(" ", 2)[2] for line in listed[1] if line.count(" ") > 1}
    return mangled, collections.Counter(name.split("(")[0] for name in named)


def qualified(element, by_id):
    names = [element.get("name")]
    while (context := by_id.get(element.get("context"))) is not None and context.get("name") != "::":
        names.insert(0, context.get("name"))
        element = context
    return "::".join(names)


def main():
    include, libraries = os.path.abspath(sys.argv[1]), sys.argv[2:]
    root = declarations(include)
    mangled, named = symbols(libraries)
    by_id = {element.get("id"): element for element in root if element.get("id")}
    inner = os.path.join(include, "kwgantt", "inner") + os.sep
    places = {file.get("id"): file.get("name") for file in root.iter("File")}
    structors = collections.defaultdict(list)
    missing, seen = [], 0
    for element in root:
        place = os.path.normpath(places.get(element.get("file"), ""))
        if not place.startswith(include + os.sep) or place.startswith(inner) or element.get("access") == "private":
            continue
        if any(element.get(mark) == "1" for mark in ("inline", "artificial", "pure_virtual", "deleted")):
            continue
        where = f"{os.path.relpath(place, include)}:{element.get('line')}"
        if element.tag in ("Constructor", "Destructor"):
            owner = by_id[element.get("context")]
            tilde = "~" if element.tag == "Destructor" else ""
            structors[f"{qualified(owner, by_id)}::{tilde}{owner.get('name')}"].append(where)
        elif element.tag in ("Function", "Method", "OperatorFunction", "OperatorMethod", "Converter") or (
                element.tag == "Variable" and element.get("init") is None and element.get("mangled")):
            seen += 1
            if element.get("mangled") not in mangled:
                missing.append(f"{where}: {qualified(element, by_id)}")
    for name, where in structors.items():
        seen += len(where)
        if named[name] < len(where):
            missing.append(f"{where[0]}: {name}")
    print("\n".join(sorted(missing)), end="\n" if missing else "")
    print(f"{seen} functions and variables are declared, {len(missing)} of them are not exported")
    # Far fewer mean that the headers were not read.
    sys.exit(bool(missing) or seen < 500)


main()
