#!/usr/bin/env python3
"""Writes the planetarium's Messier text catalogue from the OpenNGC database.

One line per object, in order of number, fields separated by blanks:

  number, designation (two fields: "NGC 1952", "IC 4715", "Mel 22", "M 40"),
  RA hours minutes seconds, Dec sign degrees minutes seconds (J2000, as OpenNGC gives them),
  V magnitude, class code, and the popular name in double quotes when there is one.

OpenNGC marks 109 objects with their Messier number; M102 is not assigned there and is taken
to be NGC 5866, the galaxy most lists give. OpenNGC's duplicate rows ("Dup") are left out.
OpenNGC's object types become the planetarium's seven class codes:

  OCl open cluster, *Ass star cloud (M24), ** double star (M40), Other asterism (M73)  -> OCl
  GCl globular cluster                                                                -> GCl
  Cl+N cluster with nebula (M42)                                                      -> C/N
  PN planetary nebula                                                                 -> PlN
  Neb nebula, HII ionised region (M43), RfN reflection nebula (M78)                   -> DfN
  G galaxy                                                                            -> Gal
  SNR supernova remnant (M1)                                                          -> SNR

Popular names: OpenNGC's "Common names" where it has any. Of several names the one that
d3-celestial's messier.json also gives (the same words, in d3-celestial's capitals, or one that
starts with its words) is taken, otherwise the first. Objects without a name in OpenNGC take
d3-celestial's, when it has one. Names are written in ASCII: the acute accent and curly apostrophes of d3-celestial become
straight apostrophes.

Usage: gather_messier.py OUTPUT --ngc OpenNGC_NGC.csv --addendum OpenNGC_addendum.csv
                         [--d3 messier.json]
"""
import argparse
import csv
import json
import re
import sys

TYPE_CODES = {
    "OCl": "OCl", "*Ass": "OCl", "**": "OCl", "Other": "OCl",
    "GCl": "GCl",
    "Cl+N": "C/N",
    "PN": "PlN",
    "Neb": "DfN", "HII": "DfN", "RfN": "DfN", "EmN": "DfN",
    "G": "Gal",
    "SNR": "SNR",
}

# The object OpenNGC does not number: M102.
M102_NAME = "NGC5866"

APOSTROPHES = {"\u00b4": "'", "\u2019": "'", "\u2018": "'"}


def ascii_name(text):
    for old, new in APOSTROPHES.items():
        text = text.replace(old, new)
    text = text.strip()
    if not text.isascii() or '"' in text:
        sys.exit(f"gather_messier: name {text!r} cannot be written")
    return text


def read_openngc(paths):
    """Messier number -> OpenNGC row, and NGC 5866's row as M102."""
    objects = {}
    for path in paths:
        with open(path, encoding="utf-8", newline="") as f:
            for row in csv.DictReader(f, delimiter=";"):
                if row["Type"] == "Dup":
                    continue
                if row["Name"] == M102_NAME:
                    objects.setdefault(102, row)
                if row["M"]:
                    number = int(row["M"])
                    if number in objects and number != 102:
                        sys.exit(f"gather_messier: M{number} appears twice in OpenNGC")
                    objects[number] = row
    return objects


def read_d3_names(path):
    """Messier number -> d3-celestial's popular name."""
    if not path:
        return {}
    with open(path, encoding="utf-8") as f:
        features = json.load(f)["features"]
    names = {}
    for feature in features:
        name = feature["properties"].get("alt", "")
        if name:
            names[int(feature["id"][1:])] = ascii_name(name)
    return names


def choose_name(openngc_names, d3_name):
    listed = [ascii_name(n) for n in openngc_names.split(",") if n.strip()]
    if not listed:
        return d3_name or ""
    if d3_name:
        for name in listed:
            if name.lower() == d3_name.lower():
                return d3_name
        for name in listed:
            if name.lower().startswith(d3_name.lower()):
                return name
    return listed[0]


def designation(name):
    """"NGC0224" -> ("NGC", "224"); "Mel022" -> ("Mel", "22"); "M040" -> ("M", "40")."""
    match = re.fullmatch(r"([A-Za-z]+)0*(\d+)", name)
    if not match:
        sys.exit(f"gather_messier: cannot split the designation {name!r}")
    return match.group(1), match.group(2)


def sexagesimal(text, signed):
    parts = text.split(":")
    if len(parts) != 3:
        sys.exit(f"gather_messier: {text!r} is not h:m:s")
    if signed:
        sign, first = parts[0][0], parts[0][1:]
        if sign not in "+-":
            sys.exit(f"gather_messier: {text!r} has no sign")
        return [sign, first] + parts[1:]
    return parts


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("output")
    parser.add_argument("--ngc", required=True)
    parser.add_argument("--addendum", required=True)
    parser.add_argument("--d3")
    args = parser.parse_args()

    objects = read_openngc([args.ngc, args.addendum])
    d3_names = read_d3_names(args.d3)
    missing = [n for n in range(1, 111) if n not in objects]
    if missing or len(objects) != 110:
        sys.exit(f"gather_messier: objects missing: {missing}")

    lines = []
    named = 0
    types = {}
    for number in range(1, 111):
        row = objects[number]
        code = TYPE_CODES.get(row["Type"])
        if code is None:
            sys.exit(f"gather_messier: M{number} has the type {row['Type']!r}, not mapped")
        magnitude = row["V-Mag"] or row["B-Mag"]
        if not magnitude:
            sys.exit(f"gather_messier: M{number} has no magnitude")
        catalogue, index = designation(row["Name"])
        ra = sexagesimal(row["RA"], False)
        dec = sexagesimal(row["Dec"], True)
        name = choose_name(row["Common names"], d3_names.get(number))
        line = (f"{number:3d} {catalogue:<3} {index:>4} {ra[0]} {ra[1]} {ra[2]:<5} "
                f"{dec[0]} {dec[1]} {dec[2]} {dec[3]:<4} {float(magnitude):5.2f} {code:<3}")
        if name:
            line += f' "{name}"'
            named += 1
        lines.append(line.rstrip())
        types[code] = types.get(code, 0) + 1

    with open(args.output, "w", encoding="ascii", newline="\n") as f:
        f.write("\n".join(lines) + "\n")
    summary = ", ".join(f"{code} {count}" for code, count in sorted(types.items()))
    print(f"{args.output}: {len(lines)} objects, {named} named; {summary}")


if __name__ == "__main__":
    main()
