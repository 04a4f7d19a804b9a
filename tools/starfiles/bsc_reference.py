#!/usr/bin/env python3
"""Writes the reference that the star file checks compare the shipped files with.

Every Bright Star Catalogue star brighter than V 6.0, and every BSC star within 1' of one (the
companions whose light a check sums with it), one a line:

    HR,RA,Dec,V,range

RA and Dec in degrees (J2000, as the BSC gives them), V as the BSC gives it, and the range of
a variable star in magnitudes: its amplitude in the General Catalogue of Variable Stars, 0 for
a star not known to vary, and "-" for a star that the BSC names as variable but whose range
the GCVS extract lacks.

Usage: bsc_reference.py OUTFILE [--bsc FILE] [--crossid FILE] [--gcvs FILE]
"""
import argparse
import collections
import os

import gather_stars

GCVS_DEFAULT = "/usr/share/stellarium/stars/default/gcvs_hip_part.dat"
REQUIRED_BRIGHTER_THAN = 6.0


def read_gcvs_ranges(path):
    """HIP -> range in magnitudes, from Stellarium's extract of the GCVS."""
    ranges = {}
    with open(path, encoding="utf-8") as f:
        for line in f:
            cols = line.rstrip("\n").split("\t")
            if line.startswith("#") or len(cols) < 6:
                continue
            try:
                brightest, faintest = float(cols[3]), float(cols[5])
            except ValueError:
                continue
            # Code 1: the second value is an amplitude; otherwise a magnitude.
            ranges[int(cols[0])] = faintest if cols[4] == "1" else faintest - brightest
    return ranges


def names_a_variable(var_id):
    """True for a BSC variable star field holding a designation, not "Var" or "Var?" alone."""
    return any(c.isalpha() for c in var_id) and not var_id.startswith("Var")


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("outfile")
    parser.add_argument("--bsc", default=gather_stars.BSC_DEFAULT)
    parser.add_argument("--crossid", default=gather_stars.CROSSID_DEFAULT)
    parser.add_argument("--gcvs", default=GCVS_DEFAULT)
    args = parser.parse_args()

    bsc = gather_stars.read_bsc(args.bsc)
    ranges = read_gcvs_ranges(args.gcvs)
    hips_of_hr = collections.defaultdict(list)
    for hip, _, _, _, hr in gather_stars.read_crossid(args.crossid):
        if hr:
            hips_of_hr[hr].append(hip)

    grid = gather_stars.SkyGrid()
    for hr, star in bsc.items():
        grid.add(hr, star["ra"], star["dec"])
    chosen = set()
    for hr, star in bsc.items():
        if star["v"] < REQUIRED_BRIGHTER_THAN:
            chosen.update(k for _, k in grid.near(star["ra"], star["dec"],
                                                 gather_stars.MATCH_RADIUS))

    os.makedirs(os.path.dirname(os.path.abspath(args.outfile)), exist_ok=True)
    with open(args.outfile, "w", encoding="ascii") as out:
        out.write("# Bright Star Catalogue, 5th revised ed. (Hoffleit & Warren 1991): stars "
                  "brighter than V 6.0\n# and their BSC neighbours within 1'; variable ranges "
                  "from the GCVS. Made by\n# tools/starfiles/bsc_reference.py.\n"
                  "# HR,RA,Dec,V,range\n")
        for hr in sorted(chosen):
            star = bsc[hr]
            known = [ranges[h] for h in hips_of_hr.get(hr, []) if h in ranges]
            if known:
                spread = "%.2f" % max(known)
            elif names_a_variable(star["var"]):
                spread = "-"
            else:
                spread = "0"
            out.write("%d,%.4f,%.4f,%.2f,%s\n" % (hr, star["ra"], star["dec"], star["v"], spread))
    print("%s: %d BSC stars, %d brighter than V %.1f" %
          (args.outfile, len(chosen), sum(1 for hr in chosen if bsc[hr]["v"] < 6.0),
           REQUIRED_BRIGHTER_THAN))


if __name__ == "__main__":
    main()
