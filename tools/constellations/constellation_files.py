#!/usr/bin/env python3
"""Makes the planetarium's constellation files from public sources.

Writes three text files, every constellation in the order of the name list (constnam.txt):

  constnod.txt  figure lines, one a line: abbreviation, RA and Dec of both ends in decimal
                degrees (J2000), and the SAO numbers of the two stars (0 when a star has none).
                From Stellarium's western figures (constellationship.fab, pairs of Hipparcos
                numbers) with the Hipparcos positions of d3-celestial's star extract and the
                SAO numbers of Stellarium's cross-index.
  constct.txt   one line per constellation: abbreviation, centre RA and Dec, label RA and Dec,
                decimal degrees with six significant digits (the form the planetarium itself
                writes). The centre is the centre of mass of the constellation's area, worked
                out from its boundary; the label point is d3-celestial's.
  constbd.txt   the IAU boundaries (J2000, KStars' cbounds.dat), one point a line: RA in
                decimal hours from 0 to 24, Dec in decimal degrees, abbreviation. Each
                constellation is one closed polygon in the file's order, its first point not
                repeated at the end. The rings of Ursa Minor and Octans, which hold a pole,
                go round it: the source's detour to the pole and back along 0 h is left out,
                since drawn it would be a line where the sky has no border.

Serpens is two areas on the sky, on either side of Ophiuchus, but one polygon in the file: the
walk round Serpens Cauda crosses to Serpens Caput along the border of Ophiuchus, goes round
the head and comes back the same way. The crossing runs over boundary that is drawn anyway,
so no line appears where the sky has none.

The script checks what it writes: 88 constellations, every figure star found, every label
point inside its own constellation, and every point of a coarse grid of the sky inside exactly
one boundary. It stops with a message when a check fails.

Usage: constellation_files.py OUTDIR --names FILE --figures FILE --crossid FILE --hip FILE
                              --labels FILE --bounds FILE
"""
import argparse
import json
import math
import sys


def fail(message):
    print("constellation_files: " + message, file=sys.stderr)
    sys.exit(1)


def read_names(path):
    """[(full name, abbreviation)] in file order."""
    names = []
    with open(path, encoding="latin-1") as f:
        for line in f:
            fields = [x.strip() for x in line.split(",")]
            if len(fields) < 2 or not fields[0] or not fields[1]:
                break
            names.append((fields[0], fields[1]))
    return names


def read_hipparcos(path):
    """HIP -> (RA degrees 0..360, Dec degrees)."""
    with open(path, encoding="utf-8") as f:
        data = json.load(f)
    stars = {}
    for feature in data["features"]:
        lon, lat = feature["geometry"]["coordinates"]
        stars[int(feature["id"])] = (lon % 360.0, lat)
    return stars


def read_crossid(path):
    """HIP -> SAO, the first SAO number given for the HIP number."""
    sao_of = {}
    with open(path, encoding="latin-1") as f:
        for line in f:
            if line.startswith("#"):
                continue
            cols = line.rstrip("\n").split("\t") + ["", "", ""]
            hip, sao = cols[0].strip(), cols[2].strip()
            if hip.isdigit() and sao.isdigit() and int(sao) > 0:
                sao_of.setdefault(int(hip), int(sao))
    return sao_of


def read_figures(path):
    """abbreviation (lower case) -> [(hip, hip)] line by line."""
    figures = {}
    with open(path, encoding="utf-8") as f:
        for line in f:
            parts = line.split()
            if len(parts) < 2:
                continue
            count = int(parts[1])
            hips = [int(x) for x in parts[2:]]
            if len(hips) != 2 * count:
                fail("%s: %d lines announced, %d numbers given" % (parts[0], count, len(hips)))
            figures[parts[0].lower()] = list(zip(hips[0::2], hips[1::2]))
    return figures


def read_boundaries(path):
    """[(section name, [(RA hours 0..24, Dec degrees)])] in file order, each ring without a
    closing repeat of its first point and without points written twice in a row."""
    sections = []
    with open(path, encoding="latin-1") as f:
        for line in f:
            if line.startswith(":"):
                sections.append((line[1:].strip(), []))
                continue
            parts = line.split()
            if len(parts) < 2 or not sections:
                continue
            ra, dec = float(parts[0]), float(parts[1])
            # A pole keeps its 0 h and 24 h, the two ends of the cap's edge along it.
            point = (ra if abs(dec) == 90.0 else ra % 24.0, dec)
            ring = sections[-1][1]
            if not ring or not repeated(ring[-1], point):
                ring.append(point)
    for _, ring in sections:
        while len(ring) > 1 and repeated(ring[0], ring[-1]):
            ring.pop()
    return sections


def repeated(a, b):
    """The same point written twice."""
    return abs(a[0] - b[0]) * 15.0 < 1e-3 and abs(a[1] - b[1]) < 1e-3


def same_point(a, b):
    """Equal to a thousandth of a degree, RA across the seam too, any RA at a pole."""
    if abs(a[1] - b[1]) > 1e-3:
        return False
    if abs(abs(a[1]) - 90.0) < 1e-6:
        return True
    d = abs(a[0] - b[0]) * 15.0
    return min(d, 360.0 - d) < 1e-3


def read_labels(path):
    """abbreviation (lower case) -> [(RA degrees, Dec degrees)], in file order."""
    with open(path, encoding="utf-8") as f:
        data = json.load(f)
    labels = {}
    for feature in data["features"]:
        lon, lat = feature["geometry"]["coordinates"]
        labels.setdefault(feature["id"].lower(), []).append((lon % 360.0, lat))
    return labels


def bridge_serpens(cauda, caput, ophiuchus):
    """One ring for both parts of Serpens, joined along the border of Ophiuchus."""
    def shared(ring):
        return [(i, j) for i, p in enumerate(ring) for j, q in enumerate(ophiuchus)
                if same_point(p, q)]
    cauda_shared, caput_shared = shared(cauda), shared(caput)
    if not cauda_shared or not caput_shared:
        fail("Serpens does not border Ophiuchus in the boundary file")
    n = len(ophiuchus)
    best = None
    for i, j in cauda_shared:
        for k, m in caput_shared:
            forward = (m - j) % n
            for steps, direction in ((forward, 1), (n - forward, -1)):
                if best is None or steps < best[0]:
                    best = (steps, i, j, k, direction)
    steps, i, j, k, direction = best
    path = [ophiuchus[(j + direction * s) % n] for s in range(steps + 1)]
    tail = cauda[i:] + cauda[:i]   # starts at the shared point
    head = caput[k:] + caput[:k]   # starts at the shared point, which ends the path
    inner = path[1:-1]
    return tail + [tail[0]] + inner + head + [head[0]] + inner[::-1]


def unit_vector(ra_deg, dec_deg):
    a, d = math.radians(ra_deg), math.radians(dec_deg)
    return (math.cos(d) * math.cos(a), math.cos(d) * math.sin(a), math.sin(d))


def cross(u, v):
    return (u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0])


def centre_of_area(rings):
    """The direction of the centre of mass of the areas inside the rings (RA hours, Dec), as
    RA and Dec in degrees.

    The integral of the position vector over a region of the unit sphere is half the sum,
    over the edges of its boundary taken as great-circle arcs, of each arc's length times the
    unit normal of its plane. The rings' points lie a degree apart or closer, so the arcs
    stand for the boundary's parallels closely enough. Each ring's sign is taken so that its
    part points into its area, which is smaller than a hemisphere.
    """
    total = [0.0, 0.0, 0.0]
    for ring in rings:
        vectors = [unit_vector(ra * 15.0, dec) for ra, dec in ring]
        moment = [0.0, 0.0, 0.0]
        for a, b in zip(vectors, vectors[1:] + vectors[:1]):
            n = cross(a, b)
            length = math.sqrt(sum(x * x for x in n))
            if length < 1e-15:
                continue
            arc = math.atan2(length, sum(x * y for x, y in zip(a, b)))
            for axis in range(3):
                moment[axis] += 0.5 * arc * n[axis] / length
        mean = [sum(v[axis] for v in vectors) for axis in range(3)]
        sign = 1.0 if sum(x * y for x, y in zip(moment, mean)) >= 0 else -1.0
        for axis in range(3):
            total[axis] += sign * moment[axis]
    x, y, z = total
    ra = math.degrees(math.atan2(y, x)) % 360.0
    dec = math.degrees(math.atan2(z, math.hypot(x, y)))
    return ra, dec


def inside(ring, ra_deg, dec_deg):
    """Whether the direction lies inside the ring, by crossings in the plane of RA and Dec
    with RA unwrapped along the ring, except along a pole, where a cap's ring goes back over
    the whole turn; tried a turn to either side as well."""
    points = [(ring[0][0] * 15.0, ring[0][1])]
    for ra, dec in ring[1:]:
        x = ra * 15.0
        if abs(dec) == 90.0 and abs(points[-1][1]) == 90.0:
            # Along a pole the ring runs the whole turn back: 24 h to 0 h.
            points.append((x, dec))
            continue
        while x - points[-1][0] > 180.0:
            x -= 360.0
        while x - points[-1][0] < -180.0:
            x += 360.0
        points.append((x, dec))
    for shift in (-360.0, 0.0, 360.0):
        x, y = ra_deg + shift, dec_deg
        crossings = 0
        for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
            if (y1 > y) != (y2 > y):
                if x < x1 + (y - y1) * (x2 - x1) / (y2 - y1):
                    crossings += 1
        if crossings % 2 == 1:
            return True
    return False


def number(value):
    """Six significant digits, as a C++ stream writes a double by default."""
    text = "%.6g" % value
    return "0" if text == "-0" else text


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("outdir")
    for option in ("names", "figures", "crossid", "hip", "labels", "bounds"):
        parser.add_argument("--" + option, required=True)
    args = parser.parse_args()

    names = read_names(args.names)
    if len(names) != 88:
        fail("%d constellations in %s, 88 expected" % (len(names), args.names))
    stars = read_hipparcos(args.hip)
    sao_of = read_crossid(args.crossid)
    figures = read_figures(args.figures)
    labels = read_labels(args.labels)

    by_name = {full.lower(): abbr for full, abbr in names}
    rings = {}
    sections = read_boundaries(args.bounds)
    for name, ring in sections:
        key = name.lower()
        if key.startswith("serpens"):
            key = "serpens"
        if key not in by_name:
            fail("boundary of an unknown constellation: " + name)
        rings.setdefault(by_name[key].lower(), []).append((name, ring))
    section_rings = {name: ring for name, ring in sections}

    lines, missing_sao = 0, 0
    with open(args.outdir + "/constnod.txt", "w", newline="\n") as out:
        for _, abbr in names:
            for a, b in figures.get(abbr.lower(), []):
                if a not in stars or b not in stars:
                    fail("%s: star HIP %d or %d has no position" % (abbr, a, b))
                sao_a, sao_b = sao_of.get(a, 0), sao_of.get(b, 0)
                missing_sao += (sao_a == 0) + (sao_b == 0)
                out.write("%s,%.5f,%.5f,%.5f,%.5f,%d,%d\n" % (abbr, *stars[a], *stars[b], sao_a,
                                                            sao_b))
                lines += 1

    points = 0
    with open(args.outdir + "/constbd.txt", "w", newline="\n") as out:
        for _, abbr in names:
            pieces = rings.get(abbr.lower())
            if not pieces:
                fail("no boundary for " + abbr)
            if len(pieces) == 2:
                parts = dict(pieces)
                ring = bridge_serpens(parts["Serpens Cauda"], parts["Serpens Caput"],
                                      section_rings["Ophiuchus"])
            else:
                ring = pieces[0][1]
            # A cap's ring runs up to its pole and back along 0 h: a cut, not a border.
            ring = [p for p in ring if abs(p[1]) != 90.0]
            for ra, dec in ring:
                out.write("%.7f %.7f %s\n" % (ra, dec, abbr))
            points += len(ring)

    outside = []
    with open(args.outdir + "/constct.txt", "w", newline="\n") as out:
        for _, abbr in names:
            pieces = dict(rings[abbr.lower()])
            areas = list(pieces.values())
            centre = centre_of_area(areas)
            candidates = labels.get(abbr.lower(), [])
            # Serpens has a label point in each part: the head's is the one taken.
            label_area = [pieces.get("Serpens Caput")] if "Serpens Caput" in pieces else areas
            label = next((p for p in candidates if any(inside(r, *p) for r in label_area)),
                         candidates[0] if candidates else centre)
            if not any(inside(r, *label) for r in areas):
                outside.append(abbr)
            out.write("%s,%s,%s,%s,%s\n" % (abbr, number(centre[0]), number(centre[1]),
                                            number(label[0]), number(label[1])))
    if outside:
        fail("label points outside their constellation: " + ", ".join(outside))

    # Every point of a 5 degree grid lies in exactly one section.
    boxes = []
    for name, ring in sections:
        decs = [p[1] for p in ring]
        boxes.append((min(decs), max(decs), ring))
    wrong = 0
    for i in range(72):
        for j in range(35):
            ra, dec = 2.5 + 5.0 * i, -85.0 + 5.0 * j + 0.123
            hits = sum(1 for low, high, ring in boxes if low <= dec <= high and inside(ring, ra, dec))
            wrong += hits != 1
    if wrong:
        fail("%d grid points are not in exactly one constellation" % wrong)

    section_points = sum(1 for _, ring in sections for p in ring if abs(p[1]) != 90.0)
    print("constellation_files: %d constellations, %d figure lines (%d stars without an SAO "
          "number), %d boundary points: %d of %d sections and %d joining the parts of Serpens"
          % (len(names), lines, missing_sao, points, section_points, len(sections),
             points - section_points), file=sys.stderr)


if __name__ == "__main__":
    main()
