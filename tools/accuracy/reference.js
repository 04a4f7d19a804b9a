// Writes reference apparent places of the Sun, the Moon and the planets for tools/accuracy.
//
// For each of 2,000 dates spread evenly over 1900-2100 (their times of day vary, since the step
// is not a whole number of days), astronomy-engine gives the geocentric apparent right ascension
// and declination of the true equator and equinox of date: light time and aberration included
// (GeoVector with aberration), then precession and nutation to the date (Rotation_EQJ_EQD). That
// is what its Equator(body, time, observer, ofdate = true, aberration = true) returns for an
// observer at the Earth's centre.
//
// Orbiscope makes no difference between universal and dynamical time, so each date is given to
// astronomy-engine as Terrestrial Time. One more column gives the Moon with astronomy-engine's
// own delta-T, for the size of that effect alone.
//
// Usage: node reference.js [output file]   (default: reference.txt)
// Output, one line a date and body: MJD body RA Dec (degrees), '#' lines are comments.
'use strict';
const fs = require('fs');
const path = require('path');
const Astronomy = require('astronomy-engine');

const kDates = 2000;
const kFirstMJD = 15020.0; // 1899 December 31, 0h
const kLastMJD = 88069.0;  // 2100 January 1.0
const kBodies = ['Sun', 'Moon', 'Mercury', 'Venus', 'Mars', 'Jupiter', 'Saturn', 'Uranus',
                 'Neptune', 'Pluto'];

function ApparentPlace(body, time) {
    const j2000 = Astronomy.GeoVector(body, time, true);
    const ofDate = Astronomy.RotateVector(Astronomy.Rotation_EQJ_EQD(time), j2000);
    const equ = Astronomy.EquatorFromVector(ofDate);
    return [equ.ra * 15.0, equ.dec];
}

const out = [];
const version = JSON.parse(
    fs.readFileSync(path.join(__dirname, 'node_modules', 'astronomy-engine', 'package.json'))).version;
out.push(`# astronomy-engine ${version}: geocentric apparent RA, Dec of date, degrees; MJD as TT`);
const step = (kLastMJD - kFirstMJD) / kDates;
for (let i = 0; i < kDates; ++i) {
    const mjd = kFirstMJD + (i + 0.5) * step;
    const tt = Astronomy.AstroTime.FromTerrestrialTime(mjd - 51544.5);
    for (const body of kBodies) {
        const [ra, dec] = ApparentPlace(body, tt);
        out.push(`${mjd.toFixed(6)} ${body} ${ra.toFixed(9)} ${dec.toFixed(9)}`);
    }
    // The same MJD as Universal Time, with astronomy-engine's delta-T.
    const ut = Astronomy.MakeTime(mjd - 51544.5);
    const [ra, dec] = ApparentPlace('Moon', ut);
    out.push(`${mjd.toFixed(6)} MoonWithDeltaT ${ra.toFixed(9)} ${dec.toFixed(9)}`);
}
const file = process.argv[2] || 'reference.txt';
fs.writeFileSync(file, out.join('\n') + '\n');
console.log(`wrote ${kDates} dates to ${file}`);
