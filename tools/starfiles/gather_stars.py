#!/usr/bin/env python3
"""Joins public star catalogues into the component's text star catalogue form.

Writes two files of comma-separated star lines (SAO, magnitude, RA h, m, s, Dec sign, d, m, s,
HR, HD, HIP, popular name), the form the component's text catalogue reader takes:

  bright.txt  the Yale Bright Star Catalogue, 5th revised edition: every star with an SAO
              number and a V magnitude; J2000 positions from the catalogue itself.
  stars.txt   every Hipparcos star that the Stellarium cross-index gives an SAO number,
              with position and V magnitude from d3-celestial's Hipparcos extract, plus the
              bright stars whose SAO number the cross-index lacks (mostly double stars).

Popular names come from Stellarium's western sky culture (the first name listed for a
Hipparcos number), joined to bright stars through the cross-index's HR column.
Where one SAO number stands for several entries, the brightest is kept.

Usage: gather_stars.py OUTDIR [--bsc FILE] [--crossid FILE] [--names FILE] [--hip FILE]
The defaults are the Debian package stellarium-data, the project's shared/data-sources copy
of the BSC and the npm package d3-celestial unpacked by tools/starfiles/make_star_files.
"""
import argparse
import json
import os
import sys

BSC_DEFAULT = os.path.join(os.path.dirname(__file__), "../../../shared/data-sources/bsc5.dat")
CROSSID_DEFAULT = "/usr/share/stellarium/stars/default/cross-id.dat"
NAMES_DEFAULT = "/usr/share/stellarium/skycultures/western/star_names.fab"


def read_bsc(path):
    """HR -> (sao, hd, ra_deg, dec_deg, vmag) for rows with a position, SAO and V."""
    stars = {}
    with open(path, encoding="latin-1") as f:
        for line in f:
            line = line.rstrip("\n").ljust(110)
            hr = line[0:4].strip()
            sao = line[31:37].strip()
            hd = line[25:31].strip()
            ra = line[75:83]
            dec = line[83:90]
            vmag = line[102:107].strip()
            if not hr or not sao or not vmag or not ra.strip():
                continue
            ra_deg = (int(ra[0:2]) + int(ra[2:4]) / 60 + float(ra[4:8]) / 3600) * 15
            sign = -1 if dec[0] == "-" else 1
            dec_deg = sign * (int(dec[1:3]) + int(dec[3:5]) / 60 + int(dec[5:7]) / 3600)
            stars[int(hr)] = (int(sao), int(hd) if hd else 0, ra_deg, dec_deg, float(vmag))
    return stars


def read_crossid(path):
    """Rows of (hip, sao, hd, hr), numbers 0 where empty."""
    rows = []
    with open(path, encoding="latin-1") as f:
        for line in f:
            if line.startswith("#"):
                continue
            cols = line.rstrip("\n").split("\t")
            cols += [""] * (5 - len(cols))
            num = [int(c) if c.strip().isdigit() else 0 for c in (cols[0], cols[2], cols[3], cols[4])]
            rows.append(tuple(num))
    return rows


def read_names(path):
    """HIP -> primary popular name (the first line given for that number)."""
    names = {}
    with open(path, encoding="utf-8") as f:
        for line in f:
            if line.startswith("#") or "|" not in line:
                continue
            hip, rest = line.split("|", 1)
            start = rest.find('_("')
            end = rest.find('")', start + 3)
            if not hip.strip().isdigit() or start < 0 or end < 0:
                continue
            name = rest[start + 3:end]
            names.setdefault(int(hip), name.encode("latin-1", "replace").decode("latin-1"))
    return names


def read_hipparcos(path):
    """HIP -> (ra_deg 0..360, dec_deg, vmag)."""
    with open(path, encoding="utf-8") as f:
        data = json.load(f)
    stars = {}
    for feature in data["features"]:
        lon, lat = feature["geometry"]["coordinates"]
        mag = feature["properties"].get("mag")
        if mag is None:
            continue
        stars[int(feature["id"])] = (lon % 360.0, lat, float(mag))
    return stars


def star_line(sao, mag, ra_deg, dec_deg, hr, hd, hip, name):
    # Rounded to 0.001 s of time and 0.01" of arc first, so no field ever reads 60.
    ra_ms = round(ra_deg / 15 * 3600 * 1000) % (24 * 3600 * 1000)
    h, rem = divmod(ra_ms, 3600 * 1000)
    m, s_ms = divmod(rem, 60 * 1000)
    dec_cs = round(abs(dec_deg) * 3600 * 100)
    d, rem = divmod(dec_cs, 3600 * 100)
    dm, ds_cs = divmod(rem, 60 * 100)
    sign = "-" if dec_deg < 0 else "+"
    fields = [str(sao), "%.2f" % mag, str(h), str(m), "%.3f" % (s_ms / 1000), sign, str(d), str(dm),
              "%.2f" % (ds_cs / 100), str(hr), str(hd), str(hip)]
    if name:
        fields.append(name)
    return ",".join(fields)


def keep_brightest(entries):
    """entries: list of (sao, mag, ...); one per SAO, the brightest, sorted by SAO."""
    best = {}
    for e in entries:
        if e[0] not in best or e[1] < best[e[0]][1]:
            best[e[0]] = e
    return [best[k] for k in sorted(best)]


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("outdir")
    parser.add_argument("--bsc", default=BSC_DEFAULT)
    parser.add_argument("--crossid", default=CROSSID_DEFAULT)
    parser.add_argument("--names", default=NAMES_DEFAULT)
    parser.add_argument("--hip", required=True, help="d3-celestial data/stars.14.json")
    args = parser.parse_args()

    bsc = read_bsc(args.bsc)
    cross = read_crossid(args.crossid)
    names = read_names(args.names)
    hip_stars = read_hipparcos(args.hip)

    hip_of_hr = {}
    for hip, sao, hd, hr in cross:
        if hr:
            hip_of_hr.setdefault(hr, hip)

    bright = []
    for hr, (sao, hd, ra, dec, vmag) in bsc.items():
        hip = hip_of_hr.get(hr, 0)
        bright.append((sao, vmag, ra, dec, hr, hd, hip, names.get(hip, "")))
    bright = keep_brightest(bright)

    large = []
    for hip, sao, hd, hr in cross:
        if not sao or hip not in hip_stars:
            continue
        ra, dec, vmag = hip_stars[hip]
        large.append((sao, vmag, ra, dec, hr, hd, hip, names.get(hip, "")))
    large = keep_brightest(large)
    have = {e[0] for e in large}
    added = [e for e in bright if e[0] not in have]
    large = keep_brightest(large + added)

    os.makedirs(args.outdir, exist_ok=True)
    for name, rows in (("bright.txt", bright), ("stars.txt", large)):
        with open(os.path.join(args.outdir, name), "w", encoding="latin-1") as f:
            for row in rows:
                f.write(star_line(*row) + "\n")
        named = sum(1 for r in rows if r[7])
        print("%s: %d stars, %d named, faintest V %.2f" %
              (name, len(rows), named, max(r[1] for r in rows)), file=sys.stderr)
    print("stars.txt: %d bright stars added that the cross-index lacks" % len(added), file=sys.stderr)


if __name__ == "__main__":
    main()
