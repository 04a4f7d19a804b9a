#pragma once
// One catalogue star: SAO number, visual magnitude, position (RA and Dec in degrees, the
// catalogue's equinox) and an optional popular name, with what it caches for display.
//
// A star has three forms:
//  - this object;
//  - a binary record, little-endian and packed: length byte (29 + name length), SAO number
//    (4 bytes), magnitude, RA and Dec (8-byte doubles), then the name without terminator;
//    records follow one another with nothing between;
//  - a text line of comma-separated fields: SAO, magnitude, RA hours, minutes, seconds,
//    Dec sign (in a field of its own, or left out for plus), degrees, minutes, seconds,
//    three fields that are skipped, then the name. A run of commas is one separator.
// Star::BlockInfo carries the record between file and object.
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>

#include "catalogues/AstroObject.h"
#include "catalogues/LorvString.h"
#include "coords/PolarCoord.h"
#include "coords/RectCoord.h"
#include "platform/TColor.h"
#include "platform/TPoint.h"

class HostFile;
class Label;

class Star : public AstroObject
{
public:
    // Bytes of a record before the name.
    static constexpr std::size_t kRecordHeaderSize = 29;
    // Names are written no longer than the readers of star files take.
    static constexpr std::size_t kMaxNameLength = 99;
    // Stars are this far above the uid base plus their SAO number.
    static constexpr std::uint32_t kUidOffset = 1000;
    // A palette index that says no colour has been worked out.
    static constexpr std::uint32_t kNoPaletteIndex = 0xFFFFFFFF;

    // The binary record while it is read or written.
    class BlockInfo
    {
    public:
        BlockInfo() = default;
        explicit BlockInfo(const Star& star);

        // Reads one record at the file's position; false when the file ends inside it or
        // its length byte is below 29.
        bool Load(HostFile& file);
        // Reads one record from memory; the address of the next record, or null when the
        // record does not fit in `available` bytes or its length byte is below 29.
        const void* Load(const void* buffer, std::size_t available);
        // The record's length: 29 + the length of the name as written.
        std::size_t GetSize() const;
        // Writes the record; false when the write falls short.
        bool Dump(HostFile& file) const;
        // Gives the star these values; an empty name leaves it without one.
        void TransferTo(Star& star) const;

        std::uint32_t SAONumber = 0;
        double Magnitude = 0.0;
        PolarCoord Position;
        std::string Name;
    };

    Star();
    // A star with these values; an empty name is no name.
    Star(std::uint32_t saoNumber, double magnitude, const PolarCoord& position,
         const std::string& name = std::string());
    // Copies the catalogue values; the copy has no display point, scroll cache or colour.
    Star(const Star& other);
    ~Star() override;

    // Copies SAO number, magnitude, position and name and forgets the cached label; the display
    // point and the other display caches stay.
    void Copy(const Star& other);

    // Fills the star from a text line. On failure the star is left as it was: a missing SAO
    // number or magnitude is reported on dbstream, a refused position is not.
    bool Initialize(const LorvString& line);
    // Reads one record at the file's position; false when the file ends inside it.
    bool Load(HostFile& file);
    // Reads the record at `buffer`, which must hold it whole; the address of the next.
    const void* Load(const void* buffer);
    // The same within `available` bytes; null, with the star unchanged, when the record
    // does not fit or is malformed.
    const void* Load(const void* buffer, std::size_t available);
    // Appends the record; false when the write falls short.
    bool Dump(HostFile& file) const;
    // Appends the text line. The three skipped fields are written empty, so a name written
    // here is read back as the first of them and lost.
    void Dump(std::ostream& out) const;

    std::uint32_t GetSAONumber() const { return nSAONumber; }
    bool HasName() const { return pName != nullptr; }
    // The name, or null.
    const std::string* GetName() const { return pName.get(); }
    // The length of the star's binary record.
    std::size_t GetRecordSize() const;

    PolarCoord GetPosition() const override { return Position; }
    double GetMagnitude() const override { return Magnitude; }
    const TPoint& GetDisplayPoint() const override { return DisplayPoint; }
    // Stores the point and moves the cached label's line end with it.
    void SetDisplayPoint(const TPoint& point) override;
    bool IsTimeDependent() const override { return false; }
    // With popular-name labels, a named star no fainter than the label limit.
    bool IsLabeled(const DisplayParameters& parameters) const override;
    // The star's own label for the parameters: its name in the star label font of the
    // parameters' surface, white, or black on paper. Kept while the label type and the font
    // stay; null without popular-name labels, without a name or without a surface. With label
    // type "None" the cached label is kept for later.
    Label* GetLabel(DisplayParameters& parameters) override;
    // 0x70000000 + 1000 + the SAO number.
    std::uint32_t GetUid() const override;
    void Draw(TDC& dc, DisplayParameters& parameters) override;
    // Forgets the scroll cache and the colour.
    void FlushDisplayCache() override;
    bool HasListName() const override { return HasName(); }
    // The name, or the empty text.
    std::string GetListName() const override;
    bool HasInfoName() const override { return true; }
    // "SAO12345", or "Sirius (SAO151881)"; a star without an SAO number gives its name alone,
    // or "Star at RA: ...   Dec: ..." when it has none.
    std::string GetInfoName() const override;
    std::string GetRefName() const override { return GetListName(); }
    // By list name, ignoring case.
    bool IsLessThan(const AstroObject& other) const override;

    // The position as a vector in the frame of a scrolling view, kept while the view
    // scrolls so that each frame costs one rotation.
    bool HasScrollCache() const { return bScrollCacheValid; }
    RectCoord& GetScrollCache() { return ScrollCache; }
    void SetScrollCache(const RectCoord& coord);
    // Forgets the stored vector and nothing else: the colour stays.
    void DropScrollCache() { bScrollCacheValid = false; }

    // The colour worked out at the last draw; kNoPaletteIndex when there is none.
    std::uint32_t GetPaletteIndex() const { return nPaletteIndex; }
    TColor GetColor() const { return Color; }

    // The label made by the last GetLabel and the label type it was made for; null and 0
    // when there is none.
    const Label* GetCachedLabel() const { return pLabel.get(); }
    std::uint32_t GetCachedLabelType() const { return nLabelType; }

private:
    // A new name, without the label made for the old one.
    void SetName(const std::string& name);
    void ForgetLabel();

    std::uint32_t nSAONumber = 0;
    double Magnitude = 99.9;
    PolarCoord Position;
    std::unique_ptr<std::string> pName;
    std::unique_ptr<Label> pLabel;
    std::uint32_t nLabelType = 0;
    TPoint DisplayPoint;
    bool bScrollCacheValid = false;
    RectCoord ScrollCache;
    std::uint32_t nPaletteIndex = kNoPaletteIndex;
    TColor Color;
};
