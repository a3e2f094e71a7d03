#!/usr/bin/env python3
"""Checks the floss catalogues in this folder. Exit status 0: no fault; 1: faults (listed)."""
import csv
import os
import re
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
HEADER = ["FlossID", "Description", "Red", "Green", "Blue", "MasterID"]
# own MasterID range of each catalogue; dmc.csv owns 1..9999
RANGES = {
    "dmc.csv": (1, 9999),
    "anchor.csv": (10001, 11999),
    "jpcoats.csv": (12001, 13999),
    "madeira.csv": (14001, 15999),
    "cosmo.csv": (16001, 17999),
    "sullivans.csv": (18001, 19999),
    "dmc-light-effects.csv": (22001, 23999),
}
LEAST = {  # a file shorter than this has lost rows
    "dmc.csv": 489, "anchor.csv": 444, "jpcoats.csv": 200, "madeira.csv": 350,
    "cosmo.csv": 500, "sullivans.csv": 450, "dmc-light-effects.csv": 30,
}
SANITY = {  # DMC number: expected colour, each channel within 6
    "310": (0, 0, 0), "B5200": (255, 255, 255), "White": (252, 251, 248), "321": (199, 43, 59),
    "666": (227, 29, 66), "702": (71, 167, 47), "820": (14, 54, 92), "743": (254, 211, 118),
    "550": (92, 24, 78), "995": (38, 150, 182),
}
MAKERS = "makers.csv"  # the table of the build: which catalogue is made of which file
faults = []


def fault(where, text):
    faults.append("%s: %s" % (where, text))


def read(name):
    path = os.path.join(HERE, name)
    raw = open(path, "rb").read()
    for n, line in enumerate(raw.split(b"\n"), 1):
        if any(b > 126 or b < 32 for b in line):
            fault("%s:%d" % (name, n), "a byte outside printable ASCII")
    if not raw.endswith(b"\n"):
        fault(name, "no newline at the end")
    if b'"' in raw:
        fault(name, "a quoted field; a comma may be inside a text")
    rows = list(csv.reader(raw.decode("latin-1").splitlines()))
    if not rows or rows[0] != HEADER:
        fault(name, "wrong header")
        return []
    out, seen = [], {}
    for n, row in enumerate(rows[1:], 2):
        where = "%s:%d" % (name, n)
        if len(row) != 6:
            fault(where, "%d fields instead of 6" % len(row))
            continue
        floss, desc, red, green, blue, master = row
        if not re.fullmatch(r"[0-9A-Za-z]{1,10}", floss):
            fault(where, "FlossID %r" % floss)
        if floss.lower() in seen:
            fault(where, "FlossID %s also in line %d" % (floss, seen[floss.lower()]))
        seen[floss.lower()] = n
        if not 1 <= len(desc) <= 30 or desc != desc.strip() or "  " in desc:
            fault(where, "Description %r" % desc)
        for channel in (red, green, blue):
            if not re.fullmatch(r"\d{1,3}", channel) or int(channel) > 255:
                fault(where, "colour value %r" % channel)
        if not re.fullmatch(r"\d{1,5}", master) or not 1 <= int(master) <= 32000:
            fault(where, "MasterID %r" % master)
            continue
        out.append((where, floss, desc, (red, green, blue), int(master)))
    if len(out) < LEAST.get(name, 1):
        fault(name, "only %d rows" % len(out))
    return out


def check_makers(catalogues):
    """The table names every catalogue once, under names that fit a palette's fields."""
    rows = list(csv.reader(open(os.path.join(HERE, MAKERS))))
    if rows[0] != ["Name", "ShortName", "File", "BaseID"]:
        fault(MAKERS, "wrong header")
        return
    for n, row in enumerate(rows[1:], 2):
        where = "%s:%d" % (MAKERS, n)
        if len(row) != 4:
            fault(where, "%d fields instead of 4" % len(row))
            continue
        name, short, file, base = row
        source = re.sub(r"\.col$", ".csv", file)
        if name != short or not 1 <= len(name) <= 10:
            fault(where, "name %r and short name %r: must be equal, at most 10 characters" % (name, short))
        if source not in RANGES or int(base) != RANGES[source][0]:
            fault(where, "%s does not begin at %s" % (source, base))
    files = [re.sub(r"\.col$", ".csv", row[2]) for row in rows[1:] if len(row) == 4]
    if sorted(files) != sorted(catalogues):
        fault(MAKERS, "does not name every catalogue once")


def order(floss):
    return (0, int(floss), "") if floss.isdigit() else (1, 0, floss)


def main():
    names = sorted(f for f in os.listdir(HERE) if f.lower().endswith(".csv") and f != MAKERS)
    for name in names:
        if name not in RANGES:
            fault(name, "no MasterID range is set for this file in check.py")
    for name in RANGES:
        if name not in names:
            fault(name, "missing")
    data = {name: read(name) for name in names}
    check_makers(names)

    dmc = data.get("dmc.csv", [])
    masters = [row[4] for row in dmc]
    if masters != list(range(1, len(dmc) + 1)):
        fault("dmc.csv", "MasterIDs are not 1..N in row order")
    ids = [row[1] for row in dmc]
    if ids != sorted(ids, key=order):
        fault("dmc.csv", "rows are not in order of number with text IDs at the end")
    colours = {row[1]: row[3] for row in dmc}
    for floss, want in SANITY.items():
        have = colours.get(floss)
        if have is None or any(abs(int(a) - b) > 6 for a, b in zip(have, want)):
            fault("dmc.csv", "%s is %s, expected about %s" % (floss, have, want))

    known, owner = set(masters), {}
    for name in names:
        if name == "dmc.csv" or name not in RANGES:
            continue
        low, high = RANGES[name]
        for where, floss, desc, rgb, master in data[name]:
            if master in known:
                continue
            if not low <= master <= high:
                fault(where, "MasterID %d is no DMC row and outside %d..%d" % (master, low, high))
            elif master in owner:
                fault(where, "MasterID %d of the maker's range used again (%s)" % (master, owner[master]))
            owner[master] = where

    path = os.path.join(HERE, "dmc-equivalents.tsv")
    if os.path.exists(path):
        files = {"DMC": "dmc.csv", "Anchor": "anchor.csv", "JPCoats": "jpcoats.csv", "Madeira": "madeira.csv",
                 "Cosmo": "cosmo.csv", "Sullivans": "sullivans.csv"}
        lines = open(path).read().splitlines()
        head = lines[0].split("\t")
        if head != list(files):
            fault("dmc-equivalents.tsv", "wrong header")
        else:
            have = [set(row[1] for row in data.get(files[h], [])) for h in head]
            for n, line in enumerate(lines[1:], 2):
                for h, known_ids, cell in zip(head, have, line.split("\t")):
                    if cell and cell not in known_ids:
                        fault("dmc-equivalents.tsv:%d" % n, "%s %s is no row of %s" % (h, cell, files[h]))
            if [line.split("\t")[0] for line in lines[1:]] != ids:
                fault("dmc-equivalents.tsv", "the DMC column is not the one of dmc.csv")

    for name in names:
        rows = data[name]
        shared = len(set(r[4] for r in rows) & known)
        print("%-24s %4d rows, %4d with a DMC identity (%d different), %d of their own"
              % (name, len(rows), sum(r[4] in known for r in rows), shared, sum(r[4] not in known for r in rows)))
    for line in faults:
        print("FAULT " + line)
    print("%d fault(s)" % len(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
