#pragma once
// The stars of one segment of a star file, in file order. The array owns its stars: deleting
// it deletes every star, whatever its reference count, so nobody may keep a star of an array
// across a request without copying it.
//
// Besides the stars it keeps two counts: how many records and how many bytes of records the
// segment holds. After a load they say what was actually read; for an array filled star by
// star they are 0 until GetByteSize works them out.
#include <cstdint>
#include <iosfwd>
#include <vector>

#include "catalogues/Star.h"

class HostFile;

class StarArray : public std::vector<Star*>
{
public:
    StarArray() = default;
    // An empty array for a segment of `starCount` records in `byteSize` bytes.
    StarArray(std::int32_t starCount, std::int32_t byteSize) : nStars(starCount), nBytes(byteSize)
    {}
    ~StarArray();
    StarArray(const StarArray&) = delete;
    StarArray& operator=(const StarArray&) = delete;

    // Takes the star over and appends it, keeping the counts when they were worked out.
    void Add(Star* star);

    // Reads the records from the file's position: all bytes in one read into a buffer, then
    // one star per record parsed from memory. The reading stops at the end of what the file
    // gave, at a record that does not fit or is malformed, and after the count; the rest of
    // the segment is then absent, and the counts say what was read. False when fewer stars
    // came than the counts promised.
    bool Load(HostFile& file);
    // Appends every star's record; false when a write falls short.
    bool Dump(HostFile& file) const;
    // Appends every star's text line.
    void Dump(std::ostream& out) const;

    // The bytes of the records; when that is 0, first takes the count from the stars and sums
    // their record lengths.
    std::int32_t GetByteSize();
    std::int32_t GetStarCount() const { return nStars; }

private:
    std::int32_t nStars = 0;
    std::int32_t nBytes = 0;
};
