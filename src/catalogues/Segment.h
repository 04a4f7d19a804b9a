#pragma once
// One rectangle of the sky in right ascension and declination, and the stars of a star file
// that lie in it. Its header (range, where its records start, how many there are and how many
// bytes they take) stays in memory; its stars are read only while the view touches it.
//
// Header in a star file, 44 bytes, little-endian: RA range centre and half width, Dec range
// centre and half width (doubles, degrees; half width 0 an empty range, 360 or more the whole
// circle), then the absolute file offset of the first record, the record count and the bytes
// of the records (signed 32-bit each).
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "catalogues/StarArray.h"
#include "coords/SkyRange.h"

class AstroList;
class AstroObject;
class HostFile;
class Request;
class Star;

class Segment
{
public:
    static constexpr std::size_t kHeaderSize = 44;

    Segment() = default;
    // An empty segment of the sky `range`.
    explicit Segment(const SkyRange& range) : Range(range) {}
    // A copy has the header only, no stars.
    Segment(const Segment& other);
    Segment& operator=(const Segment& other);
    // A move takes the stars along.
    Segment(Segment&& other) noexcept = default;
    Segment& operator=(Segment&& other) noexcept = default;
    virtual ~Segment() = default;

    // Reads the header at the file's position; false, with nothing changed, when the file ends
    // inside it.
    bool LoadHeader(HostFile& file);
    // Writes the header with the given offset, count and byte size; false when a write falls
    // short.
    bool DumpHeader(HostFile& file, std::int32_t fileOffset, std::int32_t starCount,
                    std::int32_t byteSize) const;

    // Makes the stars resident: seeks to the segment's records and reads them. A resident
    // segment is left alone. A segment whose records cannot be read, wholly or in part, becomes
    // resident with what could be read, and the shortfall is reported on dbstream. False then.
    bool Load(HostFile& file);
    // Gives the stars up.
    void Unload() { pStars.reset(); }
    bool IsLoaded() const { return pStars != nullptr; }

    // Takes the star over and appends it, adding its record to the byte size.
    void AddStar(std::unique_ptr<Star> star);
    // Adds the stars of the segment that the request shows to the list, with their display
    // points set.
    void SatisfyRequest(const Request& request, AstroList& list);
    // Appends a heap copy of every star that has a list name; the caller owns the copies.
    virtual void GetNamedStars(std::vector<AstroObject*>& list) const;
    // The resident star with that SAO number, or null; the star stays the segment's.
    Star* FindStar(std::uint32_t saoNumber) const;

    const SkyRange& GetRange() const { return Range; }
    std::int32_t GetFileOffset() const { return FileOffset; }
    void SetFileOffset(std::int32_t offset) { FileOffset = offset; }
    // The records of the file's header, not the stars in memory.
    std::int32_t GetStarCount() const { return StarCount; }
    std::int32_t GetByteSize() const { return ByteSize; }
    // The resident stars, or null.
    StarArray* GetStars() const { return pStars.get(); }

private:
    std::unique_ptr<StarArray> pStars;
    SkyRange Range;
    std::int32_t FileOffset = 0;
    std::int32_t StarCount = 0;
    std::int32_t ByteSize = 0;
};
