#include "catalogues/Messier.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

#include "catalogues/CrossMark.h"
#include "catalogues/StringParser.h"
#include "coords/StellarCoord.h"
#include "host/HostFile.h"
#include "host/HostProf.h"
#include "host/LittleEndian.h"
#include "platform/TDC.h"
#include "platform/TFont.h"
#include "skyview/DisplayParameters.h"
#include "skyview/FontRef.h"
#include "skyview/Label.h"

namespace {

// Field offsets of a record; the bytes between them are reserved.
constexpr std::size_t kNumberOffset = 0;
constexpr std::size_t kMagnitudeOffset = 1;
constexpr std::size_t kRAOffset = 17;
constexpr std::size_t kDecOffset = 29;

// The class codes of the text file, each also the profile key of its words.
constexpr const char* kTypeCodes[] = {"OCl", "GCl", "C/N", "PlN", "DfN", "Gal", "SNR"};

// Height of the label font in inches.
constexpr double kLabelHeightInches = 0.14;

// The code and its words, for the seven codes, read from the profile at the first use.
const std::vector<std::pair<std::string, std::string>>& TypeTexts()
{
    static const std::vector<std::pair<std::string, std::string>> texts = [] {
        std::vector<std::pair<std::string, std::string>> read;
        const HostProf& profile = HostProfile();
        for (const char* code : kTypeCodes) {
            read.emplace_back(code, profile.Get("Orbiscope", code, ""));
        }
        return read;
    }();
    return texts;
}

// The label font, remade when the resolution of the surface changes. Labels that hold an
// older font keep it alive until they go.
FontRef* LabelFont(const TDC& dc)
{
    static FontRef* font = nullptr;
    static int resolution = 0;
    return FontRef::ForResolution(font, resolution, dc, "Arial", kLabelHeightInches);
}

} // namespace

// ---- Messier::BlockInfo ----

Messier::BlockInfo::BlockInfo(const Messier& object)
    : Number(object.Number), Magnitude(object.Magnitude), Position(object.Position)
{}

bool Messier::BlockInfo::Load(HostFile& file)
{
    unsigned char record[kRecordSize];
    if (file.Read(record, kRecordSize) != kRecordSize) {
        return false;
    }
    Load(record);
    return true;
}

void Messier::BlockInfo::Load(const unsigned char* buffer)
{
    Number = buffer[kNumberOffset];
    Magnitude = LittleEndian::GetDouble(buffer + kMagnitudeOffset);
    Position = PolarCoord(LittleEndian::GetDouble(buffer + kRAOffset),
                          LittleEndian::GetDouble(buffer + kDecOffset));
}

bool Messier::BlockInfo::Dump(HostFile& file) const
{
    unsigned char record[kRecordSize] = {};
    record[kNumberOffset] = Number;
    LittleEndian::PutDouble(record + kMagnitudeOffset, Magnitude);
    LittleEndian::PutDouble(record + kRAOffset, Position.GetRA().GetDegrees());
    LittleEndian::PutDouble(record + kDecOffset, Position.GetDec().GetDegrees());
    return file.Write(record, kRecordSize) == kRecordSize;
}

void Messier::BlockInfo::TransferTo(Messier& object) const
{
    object.Number = Number;
    object.Magnitude = Magnitude;
    object.Position = Position;
}

// ---- Messier ----

Messier::Messier() : AstroObject(ObjectType::OtherObject)
{}

Messier::~Messier() = default;

std::string Messier::GetTypeText(const std::string& code)
{
    for (const auto& [known, text] : TypeTexts()) {
        if (EqualNoCase(known, code)) {
            return text;
        }
    }
    return std::string();
}

bool Messier::Initialize(const LorvString& line)
{
    StringParser parser(line, " ", true);
    LorvString* token = parser.GetNextToken();
    if (token == nullptr) {
        return false;
    }
    // Numbers wider than a byte keep their low 8 bits, as the record does.
    const auto number = static_cast<std::uint8_t>(std::strtol(token->c_str(), nullptr, 10));
    // The two designation fields.
    parser.GetNextToken();
    parser.GetNextToken();
    StellarCoord coord;
    if (!coord.Set(parser)) {
        return false;
    }
    token = parser.GetNextToken();
    if (token == nullptr) {
        return false;
    }
    const double magnitude = std::strtod(token->c_str(), nullptr);
    token = parser.GetNextToken();
    if (token == nullptr) {
        return false;
    }
    std::string typeText = GetTypeText(*token);
    std::string commonName;
    if (LorvString* rest = parser.GetRestOfLine()) {
        StringParser quoted(*rest, "\"", true);
        if (LorvString* name = quoted.GetNextToken()) {
            commonName = *name;
        }
    }

    Number = number;
    char codeName[8];
    std::snprintf(codeName, sizeof codeName, "M%u", unsigned(Number));
    CodeName = codeName;
    Magnitude = magnitude;
    Position = PolarCoord(coord);
    TypeText = std::move(typeText);
    CommonName = std::move(commonName);
    // A label made before would show the old code name.
    pLabel.reset();
    return true;
}

bool Messier::Load(HostFile& file)
{
    BlockInfo block;
    if (!block.Load(file)) {
        return false;
    }
    block.TransferTo(*this);
    return true;
}

bool Messier::Dump(HostFile& file) const
{
    return BlockInfo(*this).Dump(file);
}

void Messier::SetDisplayPoint(const TPoint& point)
{
    DisplayPoint = point;
    if (pLabel) {
        pLabel->UpdateObjectPoint();
    }
}

bool Messier::IsLabeled(const DisplayParameters& /*parameters*/) const
{
    return true;
}

Label* Messier::GetLabel(DisplayParameters& parameters)
{
    if (parameters.pDC == nullptr) {
        return nullptr;
    }
    FontRef* font = LabelFont(*parameters.pDC);
    const TColor color = parameters.GetTextColor(TColor::LtYellow);
    if (pLabel && (pLabel->GetFontRef() != font || pLabel->GetColor() != color)) {
        pLabel.reset();
    }
    if (!pLabel) {
        pLabel = std::make_unique<Label>(GetCodeName(), *this, *font, color);
    }
    return pLabel.get();
}

std::uint32_t Messier::GetUid() const
{
    return kUidBase + kUidOffset + Number;
}

void Messier::Draw(TDC& dc, DisplayParameters& parameters)
{
    CrossMark::Draw(dc, DisplayPoint, parameters);
}

std::string Messier::GetListName() const
{
    return CommonName.empty() ? CodeName : CodeName + " (" + CommonName + ")";
}

bool Messier::IsLessThan(const AstroObject& other) const
{
    if (const auto* messier = dynamic_cast<const Messier*>(&other)) {
        return Number < messier->Number;
    }
    return AstroObject::IsLessThan(other);
}
