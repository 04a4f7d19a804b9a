#!/usr/bin/env python3
"""Joins public star catalogues into the component's text star catalogue form.

Writes two files of comma-separated star lines (SAO, V, RA h, m, s, Dec sign, d, m, s, HR, HD,
HIP, popular name), the form the component's text catalogue reader takes:

  stars.txt   the large catalogue: every Hipparcos star with an SAO number, every Hipparcos
              star without one down to the completeness magnitude, and the Bright Star
              Catalogue stars that Hipparcos lacks;
  bright.txt  the same stars down to the bright limit, so that the small file is the large one
              cut at its own depth.

One rule for each field:
  position, V   from Hipparcos (d3-celestial's extract); V there is a mean for a variable star.
                A BSC star with no Hipparcos star within 1' keeps the BSC's own values.
  SAO number    from Stellarium's cross-index, each pair checked against the SAO's own order
                (see sao_pairs_in_order), and from the BSC for the Hipparcos star at its place.
                A Hipparcos star that stands for several SAO numbers (the components of a pair
                it does not separate) is written once, with its combined light, on the number
                of the brightest component. A star without any SAO number is written with 0.
  name          the IAU's approved name for the Hipparcos number, so that each name is on one
                star.

Usage: gather_stars.py OUTDIR --hip FILE [--bsc FILE] [--crossid FILE] [--names FILE]
                       [--bright-limit M] [--complete M]
"""
import argparse
import bisect
import collections
import json
import math
import os
import re
import sys
import unicodedata

BSC_DEFAULT = os.path.join(os.path.dirname(__file__), "../../../shared/data-sources/bsc5.dat")
CROSSID_DEFAULT = "/usr/share/stellarium/stars/default/cross-id.dat"
NAMES_DEFAULT = "/usr/share/stellarium/skycultures/western/star_names.fab"

# Stellarium's reference numbers (skycultures/western/reference.fab) of the IAU's own lists:
# 12 "IAU Naming Stars" (the Working Group on Star Names), 4 and 36 the IAU's NameExoWorlds
# campaigns of 2015 and 2019.
IAU_REFERENCES = {"4", "12", "36"}

# A catalogue star and its counterpart in another catalogue lie within this angle (degrees):
# BSC positions are given to 0.1 s and 1", and proper motion between the epochs of the
# catalogues moves the fastest bright stars by some tens of seconds of arc.
MATCH_RADIUS = 1.0 / 60.0

# A Hipparcos star whose own BSC entry is fainter than this (mag) was measured together with
# its neighbours: its light is already in the file under their numbers.
BLEND_EXCESS = 0.3


def separation(ra1, dec1, ra2, dec2):
    """Angle between two directions, degrees (haversine)."""
    ra1, dec1, ra2, dec2 = map(math.radians, (ra1, dec1, ra2, dec2))
    h = math.sin((dec2 - dec1) / 2) ** 2 + \
        math.cos(dec1) * math.cos(dec2) * math.sin((ra2 - ra1) / 2) ** 2
    return math.degrees(2 * math.asin(min(1.0, math.sqrt(h))))


class SkyGrid:
    """Points on the sky in one-degree cells, for finding neighbours within a small radius."""

    def __init__(self):
        self.cells = collections.defaultdict(list)

    def add(self, key, ra, dec):
        self.cells[(int(math.floor(dec)), int(math.floor(ra)) % 360)].append((key, ra, dec))

    def near(self, ra, dec, radius):
        """(separation, key) of the points within radius of (ra, dec), nearest first."""
        row = int(math.floor(dec))
        # Near the poles a degree of RA is short: look all the way round.
        span = 360 if abs(dec) > 80 else int(math.ceil(radius / math.cos(math.radians(dec)))) + 1
        found = []
        for d in range(row - 1, row + 2):
            for r in range(int(math.floor(ra)) - span, int(math.floor(ra)) + span + 1):
                for key, pra, pdec in self.cells.get((d, r % 360), ()):
                    s = separation(ra, dec, pra, pdec)
                    if s <= radius:
                        found.append((s, key))
        found.sort()
        # A full circle of RA visits cells more than once.
        seen, unique = set(), []
        for s, key in found:
            if key not in seen:
                seen.add(key)
                unique.append((s, key))
        return unique


def read_bsc(path):
    """HR -> dict(sao, hd, ra, dec, v, var) for rows with a position and a V magnitude."""
    stars = {}
    with open(path, encoding="latin-1") as f:
        for line in f:
            line = line.rstrip("\n").ljust(110)
            ra, dec, vmag = line[75:83], line[83:90], line[102:107].strip()
            if not ra.strip() or not vmag:
                continue
            sign = -1 if dec[0] == "-" else 1
            stars[int(line[0:4])] = dict(
                sao=int(line[31:37]) if line[31:37].strip() else 0,
                hd=int(line[25:31]) if line[25:31].strip() else 0,
                ra=(int(ra[0:2]) + int(ra[2:4]) / 60 + float(ra[4:8]) / 3600) * 15,
                dec=sign * (int(dec[1:3]) + int(dec[3:5]) / 60 + int(dec[5:7]) / 3600),
                v=float(vmag),
                var=line[51:60].strip())
    return stars


def read_crossid(path):
    """Rows of (hip, component, sao, hd, hr), numbers 0 where empty."""
    rows = []
    with open(path, encoding="latin-1") as f:
        for line in f:
            if line.startswith("#"):
                continue
            cols = line.rstrip("\n").split("\t") + [""] * 5
            num = [int(c) if c.strip().isdigit() else 0 for c in (cols[0], cols[2], cols[3], cols[4])]
            rows.append((num[0], cols[1].strip(), num[1], num[2], num[3]))
    return rows


def latin1(text):
    """The name in Latin-1: letters outside it lose their accents."""
    out = []
    for ch in text:
        try:
            ch.encode("latin-1")
            out.append(ch)
        except UnicodeEncodeError:
            out.append("".join(c for c in unicodedata.normalize("NFKD", ch)
                               if not unicodedata.combining(c)))
    return "".join(out)


def read_iau_names(path):
    """HIP -> the IAU name of that star."""
    names = {}
    with open(path, encoding="utf-8") as f:
        for line in f:
            if line.startswith("#") or "|" not in line:
                continue
            hip, rest = line.split("|", 1)
            m = re.match(r'\s*_\("([^"]+)"\)\s*(.*)', rest)
            if not m or not hip.strip().isdigit():
                continue
            references = {r.strip() for r in m.group(2).split(",")}
            if references & IAU_REFERENCES:
                names.setdefault(int(hip), latin1(m.group(1)))
    return names


def read_hipparcos(path):
    """HIP -> (ra 0..360, dec, V)."""
    with open(path, encoding="utf-8") as f:
        data = json.load(f)
    stars = {}
    for feature in data["features"]:
        lon, lat = feature["geometry"]["coordinates"]
        mag = feature["properties"].get("mag")
        if mag is not None:
            stars[int(feature["id"])] = (lon % 360.0, lat, float(mag))
    return stars


def b1950(ra, dec):
    """The J2000 direction in the equinox B1950, near enough for the SAO's zones (degrees)."""
    years = -50.0
    dec_clamped = max(-89.0, min(89.0, dec))
    ra_seconds = (3.075 + 1.336 * math.sin(math.radians(ra)) *
                  math.tan(math.radians(dec_clamped))) * years
    dec_arcsec = 20.04 * math.cos(math.radians(ra)) * years
    return (ra + ra_seconds * 15 / 3600) % 360, dec + dec_arcsec / 3600


def sao_pairs_in_order(pairs, hip):
    """The (sao, hip) pairs whose star fits the SAO catalogue's order.

    The SAO numbers its stars in 18 zones of 10 degrees of declination (equinox B1950) from the
    north pole down, and within a zone in order of right ascension. A pair whose star lies
    outside the zone of its number, or far out of RA order with the numbers around it, joins
    the wrong star. The first number of each zone is where most pairs change zone.
    """
    numbers = sorted(pairs)
    place = {s: b1950(*hip[pairs[s]][:2]) for s in numbers}
    zone_of_star = {s: int((90 - place[s][1]) // 10) for s in numbers}
    starts = [1]
    for z in range(1, 18):
        candidates = [s for s in numbers if zone_of_star[s] in (z - 1, z)]
        wrong_after = sum(1 for s in candidates if zone_of_star[s] < z)
        wrong_before = 0
        best = None
        for s in candidates:
            if best is None or wrong_before + wrong_after < best[0]:
                best = (wrong_before + wrong_after, s)
            if zone_of_star[s] >= z:
                wrong_before += 1
            else:
                wrong_after -= 1
        starts.append(best[1])

    def zone(s):
        return bisect.bisect_right(starts, s) - 1

    kept = {}
    for i, s in enumerate(numbers):
        z = zone(s)
        ra, dec = place[s]
        top = 90 - 10 * z
        if dec > top + 0.5 or dec < top - 10.5:  # the B1950 place above is rough
            continue
        around = [place[numbers[j]][0] for j in range(max(0, i - 3), min(len(numbers), i + 4))
                  if j != i and zone(numbers[j]) == z]
        steps = sorted((ra - other + 180) % 360 - 180 for other in around)
        if steps and abs(steps[len(steps) // 2]) > 2.0 / max(math.cos(math.radians(dec)), 0.05):
            continue
        kept[s] = pairs[s]
    return kept


def build(bsc, cross, hip, names, complete):
    """The star rows of the large catalogue: (sao, v, ra, dec, hr, hd, hip, name)."""
    pairs = {}
    component = {}
    for h, comp, sao, hd, hr in cross:
        if sao and h in hip:
            pairs[sao] = h
            component[sao] = comp
    owner = sao_pairs_in_order(pairs, hip)
    dropped = sorted(set(pairs) - set(owner))

    grid = SkyGrid()
    for h, (ra, dec, _) in hip.items():
        grid.add(h, ra, dec)
    hips_of_hr = collections.defaultdict(list)
    hd_of_hip = {}
    for h, comp, sao, hd, hr in cross:
        if hr and h in hip:
            hips_of_hr[hr].append(h)
        if hd and h in hip:
            hd_of_hip.setdefault(h, hd)

    def within(star, h):
        return separation(star["ra"], star["dec"], hip[h][0], hip[h][1]) <= MATCH_RADIUS

    # Each BSC star's Hipparcos counterpart: the cross-index's for its HR or SAO number when
    # that star is at its place, otherwise the nearest Hipparcos star within the radius.
    match, bsc_only = {}, []
    for hr, star in sorted(bsc.items()):
        known = [h for h in hips_of_hr.get(hr, []) if within(star, h)]
        if not known and star["sao"] in owner and within(star, owner[star["sao"]]):
            known = [owner[star["sao"]]]
        if not known:
            known = [h for _, h in grid.near(star["ra"], star["dec"], MATCH_RADIUS)[:1]]
        if known:
            match[hr] = known[0]
        else:
            bsc_only.append(hr)

    # The SAO numbers each Hipparcos star stands for, with what ranks them: the BSC's V of
    # the component, then the cross-index's component letter.
    numbers = collections.defaultdict(dict)
    for sao, h in owner.items():
        numbers[h][sao] = (99.0, component[sao] or "A")
    bsc_of_hip = collections.defaultdict(list)
    for hr, h in match.items():
        bsc_of_hip[h].append(hr)
        sao = bsc[hr]["sao"]
        if sao and owner.setdefault(sao, h) == h:
            numbers[h][sao] = (bsc[hr]["v"], numbers[h].get(sao, (99.0, "A"))[1])

    rows, blended = [], []
    for h, (ra, dec, v) in hip.items():
        hrs = bsc_of_hip.get(h, [])
        hr = min(hrs, key=lambda k: bsc[k]["v"]) if hrs else 0
        if numbers.get(h):
            sao = min(numbers[h], key=lambda s: (numbers[h][s], s))
        elif v <= complete:
            if hrs and min(bsc[k]["v"] for k in hrs) - v > BLEND_EXCESS:
                blended.append(h)
                continue
            sao = 0
        else:
            continue
        rows.append((sao, v, ra, dec, hr, hd_of_hip.get(h, 0), h, names.get(h, "")))
    for hr in bsc_only:
        star = bsc[hr]
        sao = star["sao"] if star["sao"] not in owner else 0
        rows.append((sao, star["v"], star["ra"], star["dec"], hr, star["hd"], 0, ""))
    rows.sort(key=lambda r: (r[0] == 0, r[0], r[6], r[4]))

    report = dict(dropped_pairs=dropped, blended=blended, bsc_only=len(bsc_only),
                  unnamed=sorted(set(names) - {r[6] for r in rows}))
    return rows, report


def star_line(sao, mag, ra_deg, dec_deg, hr, hd, hip, name):
    # Rounded to 0.001 s of time and 0.01" of arc first, so no field ever reads 60.
    ra_ms = round(ra_deg / 15 * 3600 * 1000) % (24 * 3600 * 1000)
    h, rem = divmod(ra_ms, 3600 * 1000)
    m, s_ms = divmod(rem, 60 * 1000)
    dec_cs = round(abs(dec_deg) * 3600 * 100)
    d, rem = divmod(dec_cs, 3600 * 100)
    dm, ds_cs = divmod(rem, 60 * 100)
    sign = "-" if dec_deg < 0 else "+"
    fields = [str(sao), "%.2f" % mag, str(h), str(m), "%.3f" % (s_ms / 1000), sign, str(d),
              str(dm), "%.2f" % (ds_cs / 100), str(hr), str(hd), str(hip)]
    if name:
        fields.append(name)
    return ",".join(fields)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("outdir")
    parser.add_argument("--bsc", default=BSC_DEFAULT)
    parser.add_argument("--crossid", default=CROSSID_DEFAULT)
    parser.add_argument("--names", default=NAMES_DEFAULT)
    parser.add_argument("--hip", required=True, help="d3-celestial data/stars.14.json")
    parser.add_argument("--bright-limit", type=float, default=6.5)
    parser.add_argument("--complete", type=float, default=8.0)
    args = parser.parse_args()

    rows, report = build(read_bsc(args.bsc), read_crossid(args.crossid),
                         read_hipparcos(args.hip), read_iau_names(args.names), args.complete)
    bright = [r for r in rows if r[1] <= args.bright_limit]

    os.makedirs(args.outdir, exist_ok=True)
    for name, chosen in (("bright.txt", bright), ("stars.txt", rows)):
        with open(os.path.join(args.outdir, name), "w", encoding="latin-1") as f:
            for row in chosen:
                f.write(star_line(*row) + "\n")
        print("%s: %d stars, %d named, %d without an SAO number, faintest V %.2f" %
              (name, len(chosen), sum(1 for r in chosen if r[7]),
               sum(1 for r in chosen if r[0] == 0), max(r[1] for r in chosen)), file=sys.stderr)
    print("cross-index pairs out of the SAO's order, left out: %s" % report["dropped_pairs"],
          file=sys.stderr)
    print("Hipparcos stars measured with their neighbours, left out: %s" % report["blended"],
          file=sys.stderr)
    print("BSC stars that Hipparcos lacks, added: %d" % report["bsc_only"], file=sys.stderr)
    print("IAU names on no star of the file: %d" % len(report["unnamed"]), file=sys.stderr)


if __name__ == "__main__":
    main()
