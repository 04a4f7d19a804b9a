#!/usr/bin/env python3
"""Makes the planetarium's city list (astcity.txt) from the npm package city-timezones.

One city a line, fields separated by "|":

  city | region | latitude | N or S | longitude | W or E | Z and the zone number

The region is the state for a city of the United States and the country elsewhere; where two
cities would then share one name, the region becomes "province, country" (or "state, country").
Latitude and longitude are unsigned decimal degrees with four decimals (about 11 m), their
signs given by the hemisphere letters. The zone number is the line of the zone index file
(timezone.txt) that holds the city's IANA zone; an old zone name that the index does not hold
is first followed through the IANA database's links (the "L" lines of tzdata.zi). A city with
no zone (the Antarctic stations) takes "Z0", zone number 0, which means no zone.

The planetarium shows names as Latin-1 bytes, so the file is Latin-1: a character outside it
loses its accents (Unicode compatibility decomposition with the combining marks dropped), and
the few that have no Latin-1 base (dashes, curly quotes, ligatures, the barred D) take a fixed
plain form. The reader merges runs of "|" and strips blanks, so no field may be empty, begin or
end with a blank, or hold a "|": the script checks every line and stops when one fails.

Two entries of the same name (the source holds Bandar Lampung twice) keep the more populous.
Lines are sorted by name as the planetarium compares names (bytes, with A-Z folded to a-z),
so the output is the same on every run.

Usage: city_list.py CITYMAP.json TIMEZONE.txt TZDATA.zi OUTPUT
"""
import json
import sys
import unicodedata

# Characters outside Latin-1 that decomposition does not bring into it.
PLAIN = {
    "\u2013": "-",  # en dash
    "\u2014": "-",  # em dash
    "\u2018": "'",
    "\u2019": "'",
    "\u0152": "OE",
    "\u0153": "oe",
    "\u0110": "D",  # barred D (Vietnamese)
    "\u0111": "d",
    "\u0141": "L",
    "\u0142": "l",
    "\u0131": "i",  # dotless i
}


def fail(message):
    sys.exit("city_list.py: " + message)


def latin1(text):
    """The text with every character outside Latin-1 replaced by its plain form."""
    out = []
    for ch in text:
        if ord(ch) <= 0xFF:
            out.append(ch)
        elif ch in PLAIN:
            out.append(PLAIN[ch])
        else:
            base = "".join(c for c in unicodedata.normalize("NFKD", ch)
                           if not unicodedata.combining(c))
            if not base or any(ord(c) > 0xFF for c in base):
                fail("no Latin-1 form for %r in %r" % (ch, text))
            out.append(base)
    return " ".join("".join(out).split())


def zone_numbers(index_path):
    """Zone name -> line number of the zone index file (every name of a line counts)."""
    numbers = {}
    with open(index_path, encoding="latin-1") as index:
        for number, line in enumerate(index.read().split("\n")):
            if number == 0:
                continue  # "(no zone)"
            for display in line.split("|"):
                _, sep, name = display.partition(") ")
                if sep:
                    numbers.setdefault(name, number)
    return numbers


def zone_links(tzdata_path):
    """Old zone name -> the name it links to, from the "L target alias" lines."""
    links = {}
    with open(tzdata_path, encoding="utf-8") as tzdata:
        for line in tzdata:
            parts = line.split()
            if len(parts) == 3 and parts[0] == "L":
                links[parts[2]] = parts[1]
    return links


def zone_code(zone, numbers, links, resolved):
    if not zone:
        return "Z0"
    if zone in links:
        resolved.add(zone)
    name, seen = zone, set()
    while name not in numbers and name in links and name not in seen:
        seen.add(name)
        name = links[name]
    if name not in numbers:
        fail("zone %s is not in the zone index" % zone)
    return "Z%d" % numbers[name]


# The planetarium compares names byte by byte with only A-Z folded to a-z; the file follows.
ASCII_FOLD = bytes.maketrans(b"ABCDEFGHIJKLMNOPQRSTUVWXYZ", b"abcdefghijklmnopqrstuvwxyz")


def sort_key(name):
    raw = name.encode("latin-1")
    return (raw.translate(ASCII_FOLD), raw)


def region_of(city):
    if city["country"] == "United States of America" and city["province"].strip():
        return city["province"]
    return city["country"]


def degrees(value, positive, negative, zero):
    """Unsigned degrees and their letter; a value that rounds to 0 takes `zero`."""
    text = "%.4f" % abs(value)
    if float(text) == 0:
        return text + "|" + zero
    return text + "|" + (positive if value > 0 else negative)


def main():
    if len(sys.argv) != 5:
        fail("usage: city_list.py CITYMAP.json TIMEZONE.txt TZDATA.zi OUTPUT")
    with open(sys.argv[1], encoding="utf-8") as source:
        cities = json.load(source)
    numbers = zone_numbers(sys.argv[2])
    links = zone_links(sys.argv[3])

    # First pass: which "city, region" names are taken more than once.
    short = {}
    for city in cities:
        key = (latin1(city["city"]), latin1(region_of(city)))
        short[key] = short.get(key, 0) + 1

    resolved = set()
    rows = {}
    for city in cities:
        name = latin1(city["city"])
        region = latin1(region_of(city))
        province = latin1(city["province"])
        if short[(name, region)] > 1 and province and province != region:
            region = province + ", " + latin1(city["country"])
        lat, lng = float(city["lat"]), float(city["lng"])
        if not (-90 <= lat <= 90 and -180 <= lng <= 180):
            fail("%s has no place on Earth (%s, %s)" % (name, lat, lng))
        line = "|".join([name, region, degrees(lat, "N", "S", "N"),
                         degrees(lng, "E", "W", "W"),
                         zone_code(city.get("timezone"), numbers, links, resolved)])
        for field in line.split("|"):
            if not field or field != field.strip():
                fail("line %r has an empty or padded field" % line)
        key = sort_key(name + ", " + region)[0]
        population = float(city.get("pop") or 0)
        if key not in rows or population > rows[key][0]:
            rows[key] = (population, name + ", " + region, line)

    lines = [row[2] for row in sorted(rows.values(), key=lambda r: sort_key(r[1]))]
    with open(sys.argv[4], "w", encoding="latin-1", newline="\n") as output:
        for line in lines:
            output.write(line + "\n")
    nozone = sum(1 for line in lines if line.endswith("|Z0"))
    print("city_list.py: %d cities (%d without a zone, %d dropped as duplicates), "
          "%d old zone names"
          % (len(lines), nozone, len(cities) - len(lines), len(resolved)), file=sys.stderr)


if __name__ == "__main__":
    main()
