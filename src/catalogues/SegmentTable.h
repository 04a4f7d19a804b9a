#pragma once
// The index of a star catalogue: its segments in table order, and the rule that keeps the
// stars of only those segments in memory that the view touches.
//
// The sky is cut into 64 segments, north to south in six zones of declination, each zone into
// equal slices of right ascension from 0 degrees:
//   zone  Dec from  to   slices  RA per slice
//    1      50      90     8        45
//    2      20      50    12        30
//    3       0      20    12        30
//    4     -20       0    12        30
//    5     -50     -20    12        30
//    6     -90     -50     8        45
// A star file brings its own table, so loading relies on neither the number nor the order.
//
// Ranges contain their ends, so a star on a border belongs to the segment that comes first:
// the one further north, or the one with the lower right ascension.
#include <cstdint>
#include <memory>
#include <vector>

#include "catalogues/Segment.h"

class AstroList;
class HostFile;
class Request;
class SkyRange;
class Star;
class TextFile;

class SegmentTable : public std::vector<Segment>
{
public:
    // Replaces the table with the 64 segments above, all empty.
    void BuildEmptySegments();
    // Replaces the table with the segment count and headers read at the file's position; no
    // stars are read. False when the file ends before the count or inside a header: the
    // headers read until then stay.
    bool Load(HostFile& file);
    // Replaces the table with the 64 segments holding every star of a text catalogue, one
    // star a line (blank lines are passed over), and sets `maxMagnitude` to the faintest of
    // them (-20 for none). A line that is not a star stops the load with a message on
    // dbstream: the stars before it stay. The segments stay resident, since they have no file
    // to come back from.
    bool Load(TextFile& text, double& maxMagnitude);

    // Makes the resident segments those that meet `visible` in both right ascension and
    // declination; the others are given up when the table unloads segments out of view.
    void Update(HostFile& file, const SkyRange& visible);
    // Adds the shown stars of every resident segment to the list, in table order.
    void SatisfyRequest(const Request& request, AstroList& list);
    // Gives the star to the first segment that contains its position. False, and the star is
    // deleted, when none does.
    bool AddStar(std::unique_ptr<Star> star);

    // Writes the segment count, the headers and the records of every resident segment at the
    // file's position, with the offsets worked out from there. A segment not in memory is
    // written with no stars. False when a write falls short.
    bool Dump(HostFile& file);

    void SetUnloadWhenOutOfView(bool unload) { bUnloadWhenOutOfView = unload; }
    bool GetUnloadWhenOutOfView() const { return bUnloadWhenOutOfView; }
    // How many segments have their stars in memory.
    int GetLoadedCount() const;

private:
    bool bUnloadWhenOutOfView = true;
};
