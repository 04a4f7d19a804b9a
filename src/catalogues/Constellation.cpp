#include "catalogues/Constellation.h"

#include <cmath>
#include <cstring>
#include <sstream>

#include "catalogues/ConstellationCatalogue.h"
#include "catalogues/StringParser.h"
#include "catalogues/TextFile.h"
#include "host/HostFile.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TPen.h"
#include "projection/Transformation.h"
#include "skyview/DisplayParameters.h"
#include "skyview/Label.h"

namespace {

const TColor kFigureColor(0, 255, 0);
const TColor kBoundaryColor(255, 0, 0);
// RA in the boundary file is in hours: 15 degrees each.
constexpr double kDegreesPerHour = 15.0;
// The centre mark is this many pixels on either side of the centre.
constexpr int kCenterMarkHalf = 2;

// One line of the figure file: abbreviation, then the two ends.
struct FigureLine
{
    LorvString Abbreviation;
    PolarCoord First;
    PolarCoord Second;
    bool bComplete = false;
};

// Whether the numbers name a direction: RA within a turn either way, Dec from pole to pole.
// NaN fails both tests.
bool OnTheSphere(double ra, double dec)
{
    return std::fabs(ra) <= 360.0 && std::fabs(dec) <= 90.0;
}

// A right ascension of the files, up to a turn either way, brought into 0 up to a turn, so
// that ranges and draws see one value per direction: -60 becomes 300 and 360 becomes 0.
double WithinOneTurn(double ra)
{
    const double wrapped = std::fmod(ra, 360.0);
    const double positive = wrapped < 0.0 ? wrapped + 360.0 : wrapped + 0.0;
    // A tiny negative value rounds up to a whole turn when a turn is added.
    return positive < 360.0 ? positive : 0.0;
}

// Both numbers of a point, on the sphere, RA within one turn; `coord` is left alone
// otherwise.
bool ReadPoint(StringParser& parser, PolarCoord& coord)
{
    PolarCoord read;
    if (!read.Set(parser) || !OnTheSphere(read.GetRA().GetDegrees(), read.GetDec().GetDegrees())) {
        return false;
    }
    coord = PolarCoord(WithinOneTurn(read.GetRA().GetDegrees()), read.GetDec().GetDegrees());
    return true;
}

FigureLine ParseFigureLine(const char* line)
{
    FigureLine parsed;
    StringParser parser(line, ",", true);
    if (LorvString* abbreviation = parser.GetNextToken()) {
        parsed.Abbreviation = *abbreviation;
    }
    parsed.bComplete = ReadPoint(parser, parsed.First) && ReadPoint(parser, parsed.Second);
    return parsed;
}

// One line of the boundary file: RA hours (-24 to 24 taken, kept as 0 up to 24), Dec degrees,
// abbreviation. Without all three fields the abbreviation is empty.
struct BoundaryLine
{
    LorvString Abbreviation;
    PolarCoord Point;
    bool bOnTheSphere = false;
};

BoundaryLine ParseBoundaryLine(const char* line)
{
    BoundaryLine parsed;
    StringParser parser(line, " ,", true);
    LorvString* ra = parser.GetNextToken();
    double hours = ra ? std::strtod(ra->c_str(), nullptr) : 0.0;
    LorvString* dec = parser.GetNextToken();
    double degrees = dec ? std::strtod(dec->c_str(), nullptr) : 0.0;
    LorvString* abbreviation = parser.GetNextToken();
    if (ra == nullptr || dec == nullptr || abbreviation == nullptr) {
        return parsed;
    }
    parsed.Abbreviation = *abbreviation;
    // Above 0 is north; every other value, 0 among them, is south by its size.
    const double declination = degrees > 0.0 ? std::fabs(degrees) : -std::fabs(degrees);
    const double rightAscension = hours * kDegreesPerHour;
    parsed.bOnTheSphere = OnTheSphere(rightAscension, declination);
    if (parsed.bOnTheSphere) {
        parsed.Point = PolarCoord(WithinOneTurn(rightAscension), declination);
    }
    return parsed;
}

} // namespace

Constellation::Constellation(ConstellationCatalogue& catalogue, const std::string& name,
                             const std::string& abbreviation)
    : AstroObject(ObjectType::Constellation), Abbreviation(abbreviation), Name(name),
      pCatalogue(&catalogue),
      nUid(kUidBase + ConstellationCatalogue::GetConstellationEnum(name) + 1)
{}

Constellation::~Constellation() = default;

bool Constellation::AddFigurePoints(TextFile& text)
{
    bool any = false;
    for (const char* line = text.GetCurrentLine(); line != nullptr; line = text.GetNextLine()) {
        FigureLine parsed = ParseFigureLine(line);
        if (!EqualNoCase(parsed.Abbreviation, Abbreviation)) {
            break;
        }
        any = true;
        if (!parsed.bComplete) {
            continue;
        }
        FigurePoints.push_back(parsed.First);
        FigurePoints.push_back(parsed.Second);
        FigureRange.Enclose(parsed.First);
        FigureRange.Enclose(parsed.Second);
    }
    return any;
}

bool Constellation::AddBoundaryPoints(TextFile& text)
{
    bool any = false;
    for (const char* line = text.GetCurrentLine(); line != nullptr; line = text.GetNextLine()) {
        BoundaryLine parsed = ParseBoundaryLine(line);
        if (parsed.Abbreviation.empty() || !EqualNoCase(parsed.Abbreviation, Abbreviation)) {
            break;
        }
        any = true;
        if (!parsed.bOnTheSphere) {
            continue;
        }
        BoundaryPoints.push_back(parsed.Point);
        BoundaryRange.Enclose(parsed.Point);
    }
    return any;
}

bool Constellation::ReadCenterPoint(TextFile& text)
{
    const char* line = text.GetNextLine();
    if (line == nullptr) {
        return false;
    }
    StringParser parser(line, ",", true);
    LorvString* abbreviation = parser.GetNextToken();
    if (abbreviation == nullptr || !EqualNoCase(*abbreviation, Abbreviation)) {
        return false;
    }
    bHasCenter = ReadPoint(parser, Center);
    bHasLabelPosition = ReadPoint(parser, LabelPosition);
    return true;
}

PolarCoord Constellation::GetCenter() const
{
    if (bHasCenter) {
        return Center;
    }
    if (BoundaryPoints.empty()) {
        pCatalogue->LoadBoundaryInfo();
    }
    return PolarCoord(BoundaryRange.GetRA().GetCenter(), BoundaryRange.GetDec().GetCenter());
}

PolarCoord Constellation::GetLabelPosition() const
{
    return bHasLabelPosition ? LabelPosition : GetCenter();
}

void Constellation::DrawCenter(TDC& dc, const Transformation& t)
{
    TPoint point;
    if (t.Translate(GetCenter(), point)) {
        dc.FillRect(TRect(point.x - kCenterMarkHalf, point.y - kCenterMarkHalf,
                          point.x + kCenterMarkHalf + 1, point.y + kCenterMarkHalf + 1),
                    TBrush(TColor::LtYellow));
    }
}

void Constellation::DrawFigures(TDC& dc, const Transformation& t, int lineWidth)
{
    if (FigurePoints.empty()) {
        pCatalogue->LoadFigureInfo();
    }
    if (FigurePoints.size() < 2) {
        return;
    }
    const SkyRange visible = t.GetVisibleRange();
    dc.SelectObject(TPen(kFigureColor, lineWidth, PS_SOLID));
    TPoint first;
    TPoint second;
    for (std::size_t i = 0; i + 1 < FigurePoints.size(); i += 2) {
        if (!visible.Contains(FigurePoints[i]) && !visible.Contains(FigurePoints[i + 1])) {
            continue;
        }
        // Both ends are projected: a line with one end in view runs to the other's point.
        const bool firstShown = t.Translate(FigurePoints[i], first);
        const bool secondShown = t.Translate(FigurePoints[i + 1], second);
        if (firstShown || secondShown) {
            dc.MoveTo(first);
            dc.LineTo(second);
        }
    }
    dc.RestorePen();
}

void Constellation::DrawBoundaries(TDC& dc, const Transformation& t, int lineWidth)
{
    if (BoundaryPoints.empty()) {
        pCatalogue->LoadBoundaryInfo();
    }
    const std::size_t count = BoundaryPoints.size();
    if (count < 2) {
        return;
    }
    dc.SelectObject(TPen(kBoundaryColor, lineWidth, PS_SOLID));
    const SkyRange visible = t.GetVisibleRange();

    // Edge by edge round the polygon and back to the first point. The first point counts as
    // shown whenever it is in view; the others must also lie in the visible range.
    TPoint start;
    const bool startShown = t.Translate(BoundaryPoints[0], start);
    TPoint previous = start;
    bool previousShown = startShown;
    TPoint point;
    for (std::size_t i = 1; i <= count; ++i) {
        bool shown = startShown;
        if (i < count) {
            const bool inView = t.Translate(BoundaryPoints[i], point);
            shown = inView && visible.Contains(BoundaryPoints[i]);
        } else {
            point = start;
        }
        if (previousShown || shown) {
            dc.MoveTo(previous);
            dc.LineTo(point);
        }
        previous = point;
        previousShown = shown;
    }
    dc.RestorePen();
}

bool Constellation::DumpBoundaryInfo(HostFile& file) const
{
    char abbreviation[3] = {};
    std::memcpy(abbreviation, Abbreviation.data(), std::min<std::size_t>(3, Abbreviation.size()));
    const auto count = static_cast<std::uint32_t>(BoundaryPoints.size());
    const unsigned char countBytes[4] = {
        static_cast<unsigned char>(count & 0xFF), static_cast<unsigned char>(count >> 8 & 0xFF),
        static_cast<unsigned char>(count >> 16 & 0xFF), static_cast<unsigned char>(count >> 24)};
    if (file.Write(abbreviation, sizeof abbreviation) != sizeof abbreviation ||
        file.Write(countBytes, sizeof countBytes) != sizeof countBytes) {
        return false;
    }
    for (const PolarCoord& point : BoundaryPoints) {
        if (!point.Dump(file)) {
            return false;
        }
    }
    return true;
}

bool Constellation::WriteCenterInfo(TextFile& text) const
{
    const PolarCoord center = GetCenter();
    const PolarCoord label = bHasLabelPosition ? LabelPosition : center;
    std::ostringstream line;
    line << Abbreviation << ',' << center.GetRA().GetDegrees() << ','
         << center.GetDec().GetDegrees() << ',' << label.GetRA().GetDegrees() << ','
         << label.GetDec().GetDegrees() << '\n';
    return text.Write(line.str().c_str());
}

void Constellation::ForgetLabel()
{
    pLabel.reset();
}

bool Constellation::IsLabeled(const DisplayParameters&) const
{
    return pCatalogue->GetSettings().bShowLabels;
}

Label* Constellation::GetLabel(DisplayParameters& parameters)
{
    if (parameters.pDC == nullptr || parameters.pTransformation == nullptr) {
        return nullptr;
    }
    FontRef* font = ConstellationSettings::GetLabelFontRef(*parameters.pDC);
    const TColor color = parameters.GetTextColor(pCatalogue->GetSettings().LabelColor);
    if (!pLabel || pLabel->GetFontRef() != font || pLabel->GetColor() != color) {
        pLabel = std::make_unique<Label>(Name, *this, *font, color);
    }
    TPoint point;
    if (!parameters.pTransformation->Translate(GetLabelPosition(), point)) {
        return nullptr;
    }
    pLabel->SetFixedPoint(point, true);
    return pLabel.get();
}

void Constellation::Draw(TDC& dc, DisplayParameters& parameters)
{
    if (parameters.pTransformation == nullptr) {
        return;
    }
    const ConstellationSettings& settings = pCatalogue->GetSettings();
    if (settings.bShowFigures) {
        DrawFigures(dc, *parameters.pTransformation, parameters.GetLineWidth());
    }
    if (settings.bShowBoundaries) {
        DrawBoundaries(dc, *parameters.pTransformation, parameters.GetLineWidth());
    }
}

bool Constellation::IsLessThan(const AstroObject& other) const
{
    return CompareNoCase(GetListName(), other.GetListName()) < 0;
}
