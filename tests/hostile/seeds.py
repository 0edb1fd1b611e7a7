#!/usr/bin/env python3
"""Takes seeds for a fuzz target out of the corpus of hostile files.

    python3 seeds.py TARGET FOLDER        files of up to 64 kB, named after what they hold
"""
import hashlib
import io
import os
import sys
import tempfile
import zipfile

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import catalog
import gen_kwpx
import gen_xls
import gen_xlsx

LARGEST = 64 << 10


def parts(data, wanted):
    """The parts of an archive whose names the function wants; none of what cannot be read."""
    try:
        with zipfile.ZipFile(io.BytesIO(data)) as z:
            for info in z.infolist():
                if wanted(info.filename) and info.file_size <= LARGEST:
                    yield z.read(info)
    except Exception:
        return


def seeds(target, file, data):
    if target == "zip" and file.startswith(("kwpx/", "xlsx/")):
        yield data
    elif target == "package" and file.startswith("kwpx/"):
        yield from parts(data, lambda name: name == "document.xml")
    elif target == "clipboard" and file.startswith("clip/"):
        yield data
    elif target == "xml" and file.startswith(("kwpx/", "xlsx/")):
        yield from parts(data, lambda name: name.endswith((".xml", ".rels")))
    elif target == "sheet" and file.startswith("xlsx/"):
        yield from parts(data, lambda name: "sheet" in name or "sharedStrings" in name)
    elif target in ("compoundfile", "workbook") and file.startswith("xls/"):
        yield data


def main():
    target, folder = sys.argv[1:]
    with tempfile.TemporaryDirectory() as out:
        cat = catalog.Catalog(out)
        for make in (gen_kwpx.generate, gen_kwpx.clipboard, gen_xlsx.generate, gen_xls.generate):
            make(cat, False)
        count = 0
        for file in sorted(cat.seen):
            with open(os.path.join(out, file), "rb") as f:
                for data in seeds(target, file, f.read()):
                    if len(data) <= LARGEST:
                        with open(os.path.join(folder, hashlib.sha1(data).hexdigest()), "wb") as seed:
                            seed.write(data)
                        count += 1
    print("%d seeds in %s" % (count, folder))


if __name__ == "__main__":
    main()
