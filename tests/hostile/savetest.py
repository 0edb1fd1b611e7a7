#!/usr/bin/env python3
"""Kills and starves a saving program at every step and looks at what is left of the file.

    python3 savetest.py -- ./driver
    python3 savetest.py --file autosave/plan.kwpx -- ./driver autosave

The driver knows three commands:
    make FILE     writes the old version of a document to FILE
    save FILE     loads FILE, changes it in a defined way and saves it to FILE; prints result=true or
                  result=false and modified=0 or modified=1, and ends with code 0 in both cases
    check FILE    loads FILE and prints old, new, or anything else when it is neither

strace injects the faults, so nothing has to be built into the library: the program is killed before
each system call that touches the file's folder or the temporary folder, and each such call is made to
fail, once and from then on. After a kill FILE must be the old or the new version, complete. After a
reported failure it must be the old one and the document still modified; after a reported success the new.
Then the program saves with a limit to the length of files, and, where the system lets an ordinary user mount one,
onto disks that are really full.
"""
import argparse
import collections
import os
import re
import resource
import shutil
import signal
import subprocess
import sys
import tempfile

CALLS = {"openat": "EMFILE", "write": "ENOSPC", "pwrite64": "ENOSPC", "writev": "ENOSPC", "ftruncate": "ENOSPC", "fsync": "EIO",
         "fdatasync": "EIO", "rename": "EACCES", "renameat": "EACCES", "renameat2": "EACCES", "link": "EPERM", "linkat": "EPERM",
         "unlink": "EACCES", "unlinkat": "EACCES", "mkdir": "ENOSPC", "mkdirat": "ENOSPC", "fchmod": "EPERM", "chmod": "EPERM",
         "close": "EIO", "copy_file_range": "ENOSPC", "sendfile": "ENOSPC", "fallocate": "ENOSPC", "read": "EIO", "lseek": "EINVAL"}


class Bench:
    def __init__(self, driver, file):
        self.driver, self.file = driver, file
        self.root = tempfile.mkdtemp(prefix="save_")
        self.env = dict(os.environ, QT_HASH_SEED="0", QT_QPA_PLATFORM="offscreen", TZ="UTC")
        self.pristine = os.path.join(self.root, "pristine" + os.path.splitext(file)[1])
        self.call("make", self.pristine)

    def call(self, *args, before=(), env=None, **kw):
        p = subprocess.run(list(before) + self.driver + list(args), stdout=subprocess.PIPE, stderr=subprocess.STDOUT, env=env or self.env,
                           timeout=120, **kw)
        return p.returncode, p.stdout.decode("utf-8", "replace")

    def fresh(self):
        box = tempfile.mkdtemp(dir=self.root)
        target = os.path.join(box, self.file)
        os.mkdir(os.path.dirname(target))
        os.mkdir(os.path.join(box, "tmp"))
        shutil.copyfile(self.pristine, target)
        return box, target, dict(self.env, TMPDIR=os.path.join(box, "tmp"), HOME=box)

    def check(self, target):
        if not os.path.exists(target):
            return "missing"
        code, text = self.call("check", target)
        if code:
            return "check ended with %d" % code
        return (text.strip().splitlines() or ["nothing"])[-1]


# Saves on a small file system of its own, whose content is gone with the process; prints what the driver says.
ON_DISK = """mount -t tmpfs -o size="$1" none "$2" && mkdir "$2/tmp" "$2/$(dirname "$4")" && cp "$3" "$2/$4" && cd "$2" || exit 99
[ "$6" = same ] && export TMPDIR="$2/tmp"
target=$2/$4 copy=$5; shift 6
"$@" save "$target"; code=$?
cat "$target" >"$copy"
exit $code"""


def full_disks(bench, fault):
    """Disks of every size from one that hardly holds the old file; the temporary folder on it or elsewhere."""
    runs = 0
    for pages in range(2, 40):
        for place in ("same", "elsewhere"):
            box, target, env = bench.fresh()
            disk, copy = os.path.join(box, "disk"), os.path.join(box, "copy" + os.path.splitext(bench.file)[1])
            os.mkdir(disk)
            p = subprocess.run(["unshare", "-Urm", "sh", "-c", ON_DISK, "sh", str(pages * 4096), disk, bench.pristine, bench.file, copy,
                                place] + bench.driver, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, env=env, timeout=120)
            text = p.stdout.decode("utf-8", "replace")
            if p.returncode == 99 or not os.path.exists(copy):
                if pages < 8:
                    continue  # not even the old file fits
                print("no full disks: this user may mount none")
                return runs
            runs += 1
            state, where = bench.check(copy), "%d pages, temporary folder %s" % (pages, place)
            if p.returncode:
                fault("full disk: program ended with code %d" % p.returncode, where, text.strip()[-80:])
            if state != ("new" if "result=true" in text else "old"):
                fault("full disk: file does not match the reported result", where, state)
            if "result=true" not in text and "modified=0" in text:
                fault("full disk: failure reported, document no longer modified", where, text.strip()[-80:])
            shutil.rmtree(box, ignore_errors=True)
    return runs


def trace(bench):
    box, target, env = bench.fresh()
    log = os.path.join(box, "trace")
    code, text = bench.call("save", target, before=["strace", "-f", "-y", "-s", "0", "-o", log, "-e", "trace=" + ",".join(CALLS)], env=env)
    places, seen, lines = [], collections.Counter(), []
    for line in open(log, errors="replace"):
        m = re.match(r"\d+\s+(\w+)\((.*)", line)
        if not m:
            continue
        name, rest = m.groups()
        seen[name] += 1
        if box in rest:
            places.append((name, seen[name], rest))
            lines.append((name, rest))
    return box, target, code, text, places, lines


def protocol(target, lines):
    """What can be read off the order of the calls: in-place writing, and renaming before the data is on disk."""
    said, synced, fds, alias = [], set(), {}, {}
    folder = os.path.dirname(target)
    for name, rest in lines:
        for number, path in re.findall(r"\b(\d+)<(/[^>]*)>", rest):
            fds[number] = path
        args = re.findall(r'"([^"]*)"', rest)
        at = re.match(r"\d+<([^>]*)>", rest)
        path = at.group(1) if at else args[0] if args else ""
        if name == "openat" and args and args[0] == target and re.search(r"O_(WRONLY|RDWR|TRUNC)", rest):
            said.append("FAIL  the file itself is opened for writing")
        elif name in ("write", "pwrite64", "writev", "ftruncate", "copy_file_range", "sendfile"):
            synced.discard(path)
        elif name in ("fsync", "fdatasync"):
            synced.add(path)
        elif name in ("unlink", "unlinkat") and args and args[-1] == target:
            said.append("FAIL  the file is removed before its successor stands in its place")
        elif name in ("link", "linkat") and len(args) > 1 and rest.rstrip().endswith("= 0"):
            alias[args[-1]] = fds.get(args[0].rsplit("/", 1)[-1], args[0])
        elif name.startswith("rename") and len(args) > 1 and args[-1] == target:
            if os.path.dirname(args[0]) != folder:
                said.append("FAIL  renamed from another folder: not atomic across file systems")
            if alias.get(args[0], args[0]) not in synced:
                said.append("FAIL  renamed before its data was synced: a power cut can leave an empty file")
            said.append("ok    replaced by renaming a file of its own folder")
            synced.discard(folder)
    if folder not in synced:
        said.append("note  the folder is not synced after renaming: a power cut may bring the old file back")
    return list(dict.fromkeys(said))


def main():
    ap = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    ap.add_argument("--max", type=int, default=400, help="at most this many places of each system call, spread evenly")
    ap.add_argument("--file", default="docs/plan.kwpx", help="where the driver is to save to: a folder and a name")
    own, driver = sys.argv[1:], None
    if "--" in own:
        at = own.index("--")
        own, driver = own[:at], own[at + 1:]
    a = ap.parse_args(own)
    if not driver:
        ap.error("no driver after --")
    bench = Bench([os.path.abspath(x) if os.path.isfile(x) else x for x in driver], a.file)
    faults, runs = collections.Counter(), collections.Counter()
    examples = {}

    def fault(kind, where, what):
        faults[kind] += 1
        examples.setdefault(kind, "%s: %s" % (where, what))

    if bench.check(bench.pristine) != "old":
        sys.exit("check does not know the file that make wrote")
    box, target, code, text, places, lines = trace(bench)
    if code or "result=true" not in text or bench.check(target) != "new":
        sys.exit("undisturbed save failed: code %d, %s, file is %s" % (code, text.strip()[-200:], bench.check(target)))
    left = os.listdir(os.path.join(box, "tmp"))
    if left:
        fault("temporary files left by an undisturbed save", "clean run", ", ".join(left))
    print("%d system calls touch the file's folder or the temporary folder" % len(places))
    rules = protocol(target, lines)
    for r in rules:
        print("  " + r)
        if r.startswith("FAIL"):
            faults["order of calls"] += 1
            examples.setdefault("order of calls", r[6:])
    by = collections.defaultdict(list)
    for name, n, rest in places:
        by[name].append(n)
    for name, ns in by.items():
        if len(ns) > a.max:
            step = len(ns) / a.max
            ns = sorted({ns[int(k * step)] for k in range(a.max)})
        for n in ns:
            for mode in ("kill", "once", "on"):
                if mode != "kill" and name == "close":
                    continue
                how = "signal=KILL" if mode == "kill" else "error=" + CALLS[name]
                when = "%d+" % n if mode == "on" else str(n)
                box, target, env = bench.fresh()
                before = ["strace", "-f", "-qq", "-o", "/dev/null", "-e", "trace=" + name, "-e", "inject=%s:%s:when=%s" % (name, how, when)]
                try:
                    code, text = bench.call("save", target, before=before, env=env)
                except subprocess.TimeoutExpired:
                    fault("hang", "%s %s #%d" % (mode, name, n), "")
                    continue
                runs[mode] += 1
                state = bench.check(target)
                where = "%s %s #%d" % (mode, name, n)
                if mode == "kill":
                    if state not in ("old", "new"):
                        fault("killed: file lost or damaged", where, state)
                elif code:
                    fault("failed call: program ended with code %d" % code, where, text.strip()[-120:])
                    if state not in ("old", "new"):
                        fault("failed call: file lost or damaged", where, state)
                elif "result=true" in text:
                    if state != "new":
                        fault("failed call: success reported, file is not the new one", where, state)
                else:
                    if state != "old":
                        fault("failed call: failure reported, file is not the old one", where, state)
                    if "modified=0" in text:
                        fault("failed call: failure reported, document no longer modified", where, text.strip()[-80:])
                if mode != "kill" and not code and name not in ("unlink", "unlinkat") and mode == "once":
                    extra = [x for x in os.listdir(os.path.dirname(target)) if x != os.path.basename(a.file)]
                    if extra:
                        fault("failed call: files left beside the document", where, ", ".join(extra))
                shutil.rmtree(box, ignore_errors=True)
    size = os.path.getsize(bench.pristine)
    for limit in sorted({0, 1, 100, 511, 512, 513, size // 2, size - 1, size}):
        box, target, env = bench.fresh()

        def cap():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit))
        code, text = bench.call("save", target, env=env, preexec_fn=cap)
        runs["size limit"] += 1
        state = bench.check(target)
        if code:
            fault("size limit: program ended with code %d" % code, "limit %d" % limit, text.strip()[-80:])
        if state != ("new" if "result=true" in text else "old"):
            fault("size limit: file does not match the reported result", "limit %d" % limit, state)
        shutil.rmtree(box, ignore_errors=True)
    runs["full disk"] = full_disks(bench, fault)
    shutil.rmtree(bench.root, ignore_errors=True)
    print("runs:", dict(runs))
    for k, v in faults.most_common():
        print("FAIL %4d  %s   e.g. %s" % (v, k, examples[k]))
    print("no fault found" if not faults else "%d faults" % sum(faults.values()))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
