#pragma once
// One object of Messier's list of nebulae and clusters: number, visual magnitude, position
// (RA and Dec in degrees, J2000 for the shipped file), a code name "M<number>", an optional
// popular name and the words for its class. On the map it is a yellow "X" on its point,
// labelled with its code name.
//
// Two forms besides this object:
//  - a text line of blank-separated fields: number, two fields that are skipped (the shipped
//    file keeps the object's NGC or other designation there), RA hours, minutes, seconds, Dec
//    sign (a field of its own, or left out for plus), degrees, minutes, seconds, magnitude,
//    class code, and optionally the popular name in double quotes;
//  - a binary record of 37 bytes, little-endian: number (1 byte), magnitude (double),
//    8 reserved bytes, RA in degrees (double), 4 reserved bytes, Dec in degrees (double).
//    Names and class are not stored; the reserved bytes are written as zeros and never read.
//
// The class code is one of "OCl", "GCl", "C/N", "PlN", "DfN", "Gal", "SNR", compared without
// regard to case. The words for it are the profile value of the code as a key in section
// "Orbiscope", read once, at the first use; any other code has no words.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "catalogues/AstroObject.h"
#include "catalogues/LorvString.h"
#include "coords/PolarCoord.h"
#include "platform/TPoint.h"

class HostFile;
class Label;

class Messier : public AstroObject
{
public:
    // Bytes of a binary record.
    static constexpr std::size_t kRecordSize = 37;
    // Messier objects are this far above the uid base plus their number.
    static constexpr std::uint32_t kUidOffset = 100;

    // The binary record while it is read or written.
    class BlockInfo
    {
    public:
        BlockInfo() = default;
        explicit BlockInfo(const Messier& object);

        // Reads one record at the file's position; false when the file ends inside it.
        bool Load(HostFile& file);
        // Reads the record at `buffer`, which holds kRecordSize bytes.
        void Load(const unsigned char* buffer);
        // Writes the record; false when the write falls short.
        bool Dump(HostFile& file) const;
        // Gives the object these values; its names and class stay as they were.
        void TransferTo(Messier& object) const;

        std::uint8_t Number = 0;
        double Magnitude = 0.0;
        PolarCoord Position;
    };

    Messier();
    ~Messier() override;
    Messier(const Messier&) = delete;

    // Fills the object from a text line. False, with the object as it was, when the number,
    // the position, the magnitude or the class code is missing, or the position is refused.
    // A number above 255 keeps its low 8 bits.
    bool Initialize(const LorvString& line);
    // Reads one record at the file's position; false when the file ends inside it.
    bool Load(HostFile& file);
    // Appends the record; false when the write falls short.
    bool Dump(HostFile& file) const;

    // "M" and the number; empty for an object read from a binary record.
    virtual std::string GetCodeName() const { return CodeName; }

    std::uint8_t GetNumber() const { return Number; }
    const std::string& GetCommonName() const { return CommonName; }

    // The words for the object's class; empty for an unknown code and for binary records.
    std::string GetTypeName() const override { return TypeText; }
    PolarCoord GetPosition() const override { return Position; }
    double GetMagnitude() const override { return Magnitude; }
    const TPoint& GetDisplayPoint() const override { return DisplayPoint; }
    // Stores the point and moves the cached label's line end with it.
    void SetDisplayPoint(const TPoint& point) override;
    bool IsTimeDependent() const override { return false; }
    bool IsLabeled(const DisplayParameters& parameters) const override;
    // The code name in yellow, in the Messier label font of the parameters' surface; kept
    // while that font stays. Null without a surface.
    Label* GetLabel(DisplayParameters& parameters) override;
    // 0x70000000 + 100 + the number.
    std::uint32_t GetUid() const override;
    // A yellow "X" centred on the display point.
    void Draw(TDC& dc, DisplayParameters& parameters) override;
    bool HasListName() const override { return true; }
    // "M31 (Andromeda Galaxy)", or "M32" for an object without a popular name.
    std::string GetListName() const override;
    bool HasInfoName() const override { return true; }
    std::string GetInfoName() const override { return GetListName(); }
    std::string GetRefName() const override { return GetCodeName(); }
    // The smaller number first; against an object of another kind, the order of addresses.
    bool IsLessThan(const AstroObject& other) const override;
    // A list of Messier objects is in the order of numbers, not of names.
    bool IsListSorted() const override { return false; }

    // The words the profile gives for a class code; empty for a code that is not one of the
    // seven. The profile is read at the first call and kept for the program's life.
    static std::string GetTypeText(const std::string& code);

    // The label made by the last GetLabel, or null.
    const Label* GetCachedLabel() const { return pLabel.get(); }

private:
    std::uint8_t Number = 0;
    double Magnitude = 99.9;
    PolarCoord Position;
    TPoint DisplayPoint;
    std::string CodeName;
    std::string CommonName;
    std::string TypeText;
    std::unique_ptr<Label> pLabel;
};
