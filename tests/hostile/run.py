#!/usr/bin/env python3
"""Runs a driver over the corpus, each case in a sandbox, and compares with expected.csv.

    python3 run.py corpus -- ./driver            the driver is called as: ./driver ENTRY FILE
    python3 run.py corpus --only xls/ --jobs 2 -- ./driver
    python3 run.py corpus --no-address-limit -- ./driver_asan

The driver performs the call that ENTRY names on FILE, then the follow-up operations, and prints lines
"key=value": result=true or result=false first, then facts (see README.md). It must end with code 0
whatever the file holds; any signal, any other code, a time-out or a file left behind is a fault.
"""
import argparse
import collections
import csv
import itertools
import os
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time
from concurrent.futures import ThreadPoolExecutor

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from catalog import LIMITS

STRAYS = ["/tmp/kwpx_escaped.txt"]


def limits(seconds, mib, address):
    def apply():
        os.setsid()
        resource.setrlimit(resource.RLIMIT_CPU, (int(seconds) + 1, int(seconds) + 2))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        resource.setrlimit(resource.RLIMIT_FSIZE, (1 << 30, 1 << 30))
        if address:
            resource.setrlimit(resource.RLIMIT_AS, (mib << 20, mib << 20))
    return apply


def tree(path):
    found = set()
    for base, dirs, files in os.walk(path):
        for n in dirs + files:
            found.add(os.path.relpath(os.path.join(base, n), path))
    return found


def one(row, a):
    seconds, mib = LIMITS[row["limit"]]
    seconds *= a.slack
    box = tempfile.mkdtemp(prefix="case_", dir=a.sandbox)
    tmp, home, work = (os.path.join(box, d) for d in ("a/b/c/tmp", "home", "work"))
    for d in (tmp, home, work):
        os.makedirs(d)
    before = tree(box)
    # The fonts' cache is shared: a machine with many fonts needs half a second to make it anew for each case.
    env = dict(os.environ, TMPDIR=tmp, HOME=home, XDG_CONFIG_HOME=home, XDG_CACHE_HOME=os.path.join(a.sandbox, "cache"), QT_QPA_PLATFORM="offscreen", TZ="UTC", QT_HASH_SEED="0")
    out_path = os.path.join(a.sandbox, os.path.basename(box) + ".out")
    start = time.monotonic()
    verdict, facts, rss = "", {}, 0
    with open(out_path, "wb") as out:
        p = subprocess.Popen(a.driver + [row["entry"], os.path.join(a.corpus, row["file"])], stdout=out, stderr=subprocess.STDOUT, cwd=work,
                             env=env, preexec_fn=limits(seconds, mib, a.address))
        stop = threading.Timer(seconds, os.killpg, (p.pid, signal.SIGKILL))
        stop.start()
        _, status, usage = os.wait4(p.pid, 0)
        stop.cancel()
        p.returncode = code = os.waitstatus_to_exitcode(status)
        rss = usage.ru_maxrss // 1024
    took = time.monotonic() - start
    text = open(out_path, "rb").read().decode("utf-8", "replace")
    os.unlink(out_path)
    for line in text.splitlines():
        k, eq, v = line.partition("=")
        if eq and k not in facts:
            facts[k] = v
    if not verdict and code in (-signal.SIGXCPU, -signal.SIGKILL):
        verdict = "HANG"
    if not verdict and code < 0:
        verdict = "CRASH %s" % signal.Signals(-code).name
    if not verdict and code:
        verdict = "MEMORY" if "alloc" in text or "MemoryError" in text else "EXIT %d" % code
    left = tree(box) - before
    stray = [x for x in left if not x.startswith(("a/b/c/tmp/", "home/", "work/"))]
    if "nofile" in row["after"]:
        stray += [s for s in STRAYS if os.path.lexists(s)]
    temp = [x for x in left if x.startswith("a/b/c/tmp/")]
    for s in stray:
        if s in STRAYS:
            os.unlink(s)
    subprocess.call(["chmod", "-R", "u+rwx", box], stderr=subprocess.DEVNULL)
    shutil.rmtree(box, ignore_errors=True)
    if not verdict and stray:
        verdict = "ESCAPE " + stray[0]
    if not verdict and temp:
        verdict = "TEMP LEFT " + temp[0]
    if not verdict and row["expected"] != "either":
        want = "true" if row["expected"] == "loads" else "false"
        if facts.get("result") != want:
            verdict = "RESULT %s, expected %s" % (facts.get("result"), want)
    if not verdict and facts.get("result") == "true":
        for f in filter(None, row["with"].split(";")):
            k, _, v = f.partition("=")
            if k in facts and facts[k] != v:
                verdict = "FACT %s=%s, expected %s" % (k, facts[k], v)
                break
    if not verdict and "resave" in row["after"] and facts.get("resave", "same") != "same":
        verdict = "RESAVE " + facts["resave"]
    if not verdict and "unchanged" in row["after"] and facts.get("result") == "false" and facts.get("document", "same") != "same":
        verdict = "DOCUMENT CHANGED by a refused file"
    hard = verdict.startswith(("HANG", "CRASH", "EXIT", "MEMORY", "ESCAPE"))
    kind = "ok" if not verdict else "FAIL" if hard or row["force"] == "must" else "note"
    return dict(row, kind=kind, verdict=verdict, code=code, seconds=round(took, 3), rss=rss, tail=text[-300:])


def main():
    ap = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    ap.add_argument("corpus")
    ap.add_argument("--only", action="append", default=[])
    ap.add_argument("--entry", action="append", default=[], help="only cases of this entry (repeatable)")
    ap.add_argument("--sample", type=int, default=1, help="only one in so many of the cases, spread over all; "
                    "KW_HOSTILE_LONG=1 takes all of them")
    ap.add_argument("--jobs", type=int, default=1)
    ap.add_argument("--slack", type=float, default=1.0, help="multiplies the time limits (sanitizer builds: 5, valgrind: 40)")
    ap.add_argument("--no-address-limit", dest="address", action="store_false")
    ap.add_argument("--under", default="", help="a program to run the driver under, with its options")
    ap.add_argument("--report", default="run.csv")
    ap.add_argument("--quiet", action="store_true")
    own, driver = sys.argv[1:], None
    if "--" in own:
        at = own.index("--")
        own, driver = own[:at], own[at + 1:]
    a = ap.parse_args(own)
    if not driver:
        ap.error("no driver after --")
    a.driver = driver
    a.corpus = os.path.abspath(a.corpus)
    a.driver = a.under.split() + [os.path.abspath(x) if os.path.isfile(x) else x for x in a.driver]
    rows = list(csv.DictReader(open(os.path.join(a.corpus, "expected.csv"), newline="")))
    rows = [r for r in rows if (not a.only or any(r["file"].startswith(p) for p in a.only)) and (not a.entry or r["entry"] in a.entry)]
    if os.environ.get("KW_HOSTILE_LONG", "0") == "0":
        rows = rows[::a.sample]
    a.sandbox = tempfile.mkdtemp(prefix="hostile_")
    results = []
    # Cases that may write outside run alone, so that a stray file is blamed on the right one.
    together = [r for r in rows if "nofile" not in r["after"]]
    alone = [r for r in rows if "nofile" in r["after"]]
    with ThreadPoolExecutor(a.jobs) as pool:
        for r in itertools.chain(pool.map(lambda row: one(row, a), together), (one(row, a) for row in alone)):
            results.append(r)
            if r["kind"] != "ok" and not a.quiet:
                print("%-4s %-48s %-11s %s  (%.2fs, %d MB)" % (r["kind"], r["file"], r["entry"], r["verdict"], r["seconds"], r["rss"]), flush=True)
    shutil.rmtree(a.sandbox, ignore_errors=True)
    with open(a.report, "w", newline="") as f:
        w = csv.DictWriter(f, ["file", "entry", "expected", "force", "kind", "verdict", "code", "seconds", "rss", "tail"],
                           extrasaction="ignore", lineterminator="\n")
        w.writeheader()
        w.writerows(results)
    if not results:
        sys.exit("no such case: " + " ".join(a.only + a.entry))
    count = collections.Counter((r["entry"], r["kind"]) for r in results)
    for entry in sorted({r["entry"] for r in results}):
        print("%-14s ok %4d  note %4d  FAIL %4d" % (entry, count[entry, "ok"], count[entry, "note"], count[entry, "FAIL"]))
    hard = collections.Counter(r["verdict"].split(" ")[0] for r in results if r["verdict"])
    print("verdicts:", dict(hard), " slowest %.2fs, largest %d MB" % (max(r["seconds"] for r in results), max(r["rss"] for r in results)))
    return 1 if any(r["kind"] == "FAIL" for r in results) else 0


if __name__ == "__main__":
    sys.exit(main())
