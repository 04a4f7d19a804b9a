#include "catalogues/Star.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <locale>
#include <ostream>
#include <sstream>

#include "catalogues/StringParser.h"
#include "coords/StellarCoord.h"
#include "host/HostFile.h"
#include "host/LittleEndian.h"
#include "platform/DebugStream.h"
#include "skyview/DisplayParameters.h"
#include "skyview/Label.h"
#include "skyview/StarDrawing.h"

namespace {

// Field offsets of a record.
constexpr std::size_t kSAOOffset = 1;
constexpr std::size_t kMagnitudeOffset = 5;
constexpr std::size_t kRAOffset = 13;
constexpr std::size_t kDecOffset = 21;

// The fixed fields of a record that starts at `p`.
struct RecordFields
{
    std::uint32_t SAONumber;
    double Magnitude;
    double RA;
    double Dec;
};

RecordFields ReadFields(const unsigned char* p)
{
    return {LittleEndian::GetUInt32(p + kSAOOffset), LittleEndian::GetDouble(p + kMagnitudeOffset),
            LittleEndian::GetDouble(p + kRAOffset), LittleEndian::GetDouble(p + kDecOffset)};
}

// A number in the stream's default form, six significant digits, whatever the global locale.
std::string DefaultForm(double value)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << value;
    return text.str();
}

} // namespace

// ---- Star::BlockInfo ----

Star::BlockInfo::BlockInfo(const Star& star)
    : SAONumber(star.nSAONumber), Magnitude(star.Magnitude), Position(star.Position),
      Name(star.pName ? *star.pName : std::string())
{}

std::size_t Star::BlockInfo::GetSize() const
{
    return kRecordHeaderSize + std::min(Name.size(), kMaxNameLength);
}

bool Star::BlockInfo::Dump(HostFile& file) const
{
    unsigned char record[kRecordHeaderSize + kMaxNameLength];
    const std::size_t size = GetSize();
    record[0] = static_cast<unsigned char>(size);
    LittleEndian::PutUInt32(record + kSAOOffset, SAONumber);
    LittleEndian::PutDouble(record + kMagnitudeOffset, Magnitude);
    LittleEndian::PutDouble(record + kRAOffset, Position.GetRA().GetDegrees());
    LittleEndian::PutDouble(record + kDecOffset, Position.GetDec().GetDegrees());
    std::memcpy(record + kRecordHeaderSize, Name.data(), size - kRecordHeaderSize);
    return file.Write(record, size) == size;
}

bool Star::BlockInfo::Load(HostFile& file)
{
    unsigned char record[kRecordHeaderSize];
    if (file.Read(record, 1) != 1 || record[0] < kRecordHeaderSize ||
        file.Read(record + 1, kRecordHeaderSize - 1) != kRecordHeaderSize - 1) {
        return false;
    }
    std::string name(record[0] - kRecordHeaderSize, '\0');
    if (!name.empty() && file.Read(name.data(), name.size()) != name.size()) {
        return false;
    }
    RecordFields fields = ReadFields(record);
    SAONumber = fields.SAONumber;
    Magnitude = fields.Magnitude;
    Position = PolarCoord(fields.RA, fields.Dec);
    Name = std::move(name);
    return true;
}

const void* Star::BlockInfo::Load(const void* buffer, std::size_t available)
{
    const auto* p = static_cast<const unsigned char*>(buffer);
    if (p == nullptr || available < kRecordHeaderSize || p[0] < kRecordHeaderSize ||
        p[0] > available) {
        return nullptr;
    }
    RecordFields fields = ReadFields(p);
    SAONumber = fields.SAONumber;
    Magnitude = fields.Magnitude;
    Position = PolarCoord(fields.RA, fields.Dec);
    Name.assign(reinterpret_cast<const char*>(p + kRecordHeaderSize), p[0] - kRecordHeaderSize);
    return p + p[0];
}

void Star::BlockInfo::TransferTo(Star& star) const
{
    star.nSAONumber = SAONumber;
    star.Magnitude = Magnitude;
    star.Position = Position;
    star.SetName(Name);
}

// ---- Star ----

Star::Star() : AstroObject(ObjectType::Star)
{}

Star::Star(std::uint32_t saoNumber, double magnitude, const PolarCoord& position,
           const std::string& name)
    : AstroObject(ObjectType::Star), nSAONumber(saoNumber), Magnitude(magnitude), Position(position)
{
    SetName(name);
}

Star::Star(const Star& other) : AstroObject(other)
{
    Copy(other);
}

Star::~Star() = default;

void Star::Copy(const Star& other)
{
    if (this == &other) {
        return;
    }
    nSAONumber = other.nSAONumber;
    Magnitude = other.Magnitude;
    Position = other.Position;
    pName = other.pName ? std::make_unique<std::string>(*other.pName) : nullptr;
    ForgetLabel();
}

void Star::ForgetLabel()
{
    pLabel.reset();
    nLabelType = StarDisplayParameters::kNoLabels;
}

void Star::SetName(const std::string& name)
{
    pName = name.empty() ? nullptr : std::make_unique<std::string>(name);
    // A label would show the old name.
    ForgetLabel();
}

bool Star::Initialize(const LorvString& line)
{
    StringParser parser(line, ",", true);
    LorvString* token = parser.GetNextToken();
    if (token == nullptr) {
        dbstream << "Star::Initialize() - init line has no sao number." << dbendl;
        return false;
    }
    const long saoNumber = std::atol(token->c_str());
    token = parser.GetNextToken();
    if (token == nullptr) {
        dbstream << "Star::Initialize() - init line has no magnitude." << dbendl;
        return false;
    }
    const double magnitude = std::atof(token->c_str());
    StellarCoord coord;
    if (!coord.Set(parser)) {
        return false;
    }
    // Three fields (the other catalogues' numbers) that the planetarium does not use.
    for (int i = 0; i < 3; ++i) {
        parser.GetNextToken();
    }
    token = parser.GetNextToken();

    nSAONumber = std::uint32_t(saoNumber);
    Magnitude = magnitude;
    Position = PolarCoord(coord);
    SetName(token != nullptr ? *token : std::string());
    return true;
}

bool Star::Load(HostFile& file)
{
    BlockInfo block;
    if (!block.Load(file)) {
        return false;
    }
    block.TransferTo(*this);
    return true;
}

const void* Star::Load(const void* buffer)
{
    // This is the path of all bulk loading: no string is made for a star without a name.
    const auto* p = static_cast<const unsigned char*>(buffer);
    RecordFields fields = ReadFields(p);
    nSAONumber = fields.SAONumber;
    Magnitude = fields.Magnitude;
    Position = PolarCoord(fields.RA, fields.Dec);
    if (p[0] > kRecordHeaderSize) {
        pName = std::make_unique<std::string>(reinterpret_cast<const char*>(p + kRecordHeaderSize),
                                              p[0] - kRecordHeaderSize);
    } else {
        pName.reset();
    }
    if (pLabel) {
        ForgetLabel();
    }
    return p + p[0];
}

const void* Star::Load(const void* buffer, std::size_t available)
{
    const auto* p = static_cast<const unsigned char*>(buffer);
    if (p == nullptr || available < kRecordHeaderSize || p[0] < kRecordHeaderSize ||
        p[0] > available) {
        return nullptr;
    }
    return Load(buffer);
}

bool Star::Dump(HostFile& file) const
{
    return BlockInfo(*this).Dump(file);
}

std::size_t Star::GetRecordSize() const
{
    return kRecordHeaderSize + (pName ? std::min(pName->size(), kMaxNameLength) : 0);
}

void Star::Dump(std::ostream& out) const
{
    StellarCoord coord(Position);
    int hours = coord.GetRA().GetHours();
    int minutes = coord.GetRA().GetMinutes();
    std::string seconds = DefaultForm(coord.GetRA().GetSeconds());
    // Six digits may round seconds such as 59.9999997 up to "60", which the reader refuses:
    // such seconds are the next minute.
    if (std::strtod(seconds.c_str(), nullptr) >= 60.0) {
        seconds = DefaultForm(0.0);
        if (++minutes == 60) {
            minutes = 0;
            if (++hours == 24) {
                hours = 0;
            }
        }
    }
    std::ostringstream line;
    line.imbue(std::locale::classic());
    line << nSAONumber << ',' << Magnitude << ',' << hours << ',' << minutes << ',' << seconds
         << ',' << coord.GetDec() << ",,,,";
    if (pName) {
        line << *pName;
    }
    line << '\n';
    out << line.str();
}

bool Star::IsLabeled(const DisplayParameters& parameters) const
{
    return parameters.GetLabelType() == StarDisplayParameters::kPopularNameLabels &&
           Magnitude <= parameters.GetLimitingMagnitudeLabels() && HasName();
}

Label* Star::GetLabel(DisplayParameters& parameters)
{
    const std::uint32_t type = parameters.GetLabelType();
    if (type == StarDisplayParameters::kNoLabels || parameters.pDC == nullptr) {
        return nullptr;
    }
    FontRef* font = StarDisplayParameters::GetLabelFontRef(*parameters.pDC);
    // A printer of the screen's resolution shares the font, so the colour is part of the key.
    const TColor color = parameters.GetTextColor(TColor::White);
    if (pLabel && type == nLabelType && pLabel->GetFontRef() == font &&
        pLabel->GetColor() == color) {
        return pLabel.get();
    }
    pLabel.reset();
    if (type == StarDisplayParameters::kPopularNameLabels && pName) {
        pLabel = std::make_unique<Label>(*pName, *this, *font, color);
    }
    nLabelType = type;
    return pLabel.get();
}

void Star::SetDisplayPoint(const TPoint& point)
{
    DisplayPoint = point;
    if (pLabel) {
        pLabel->UpdateObjectPoint();
    }
}

std::uint32_t Star::GetUid() const
{
    return kUidBase + kUidOffset + nSAONumber;
}

void Star::Draw(TDC& /*dc*/, DisplayParameters& parameters)
{
    // The colour stays with the star until the display parameters change, so scrolling and
    // time lapse frames run no power function and no palette search.
    if (nPaletteIndex == kNoPaletteIndex) {
        unsigned intensity = parameters.GetIntensityFromMagnitude(GetMagnitude());
        unsigned index = 0;
        parameters.GetColorFromIntensity(intensity, Color, index);
        nPaletteIndex = index;
    }
    switch (parameters.GetShape()) {
    case StarDisplayParameters::kRoundShape:
        DrawRoundStar(parameters, DisplayPoint, GetMagnitude(), Color);
        break;
    case StarDisplayParameters::kRayShape:
        DrawRayStar(parameters, DisplayPoint.x, DisplayPoint.y, GetMagnitude(), Color,
                    nPaletteIndex);
        break;
    default:
        // An unknown shape, from an old or damaged bookmark, draws nothing.
        break;
    }
}

void Star::FlushDisplayCache()
{
    bScrollCacheValid = false;
    nPaletteIndex = kNoPaletteIndex;
}

void Star::SetScrollCache(const RectCoord& coord)
{
    ScrollCache = coord;
    bScrollCacheValid = true;
}

std::string Star::GetListName() const
{
    return pName ? *pName : std::string();
}

std::string Star::GetInfoName() const
{
    // A star the SAO catalogue does not hold (a companion it merged, a bright star it missed)
    // carries number 0, which names nothing: show its name, or else where it stands.
    if (nSAONumber == 0) {
        return pName ? *pName : "Star at " + StellarCoord(Position).GetDescription();
    }
    std::string number = "SAO" + std::to_string(nSAONumber);
    return pName ? *pName + " (" + number + ")" : number;
}

bool Star::IsLessThan(const AstroObject& other) const
{
    return CompareNoCase(GetListName(), other.GetListName()) < 0;
}
