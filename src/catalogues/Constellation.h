#pragma once
// One constellation: its figure (the lines between its stars), its IAU boundary, its centre
// and the point where its name stands. Positions are RA and Dec in degrees, J2000.
//
// FigurePoints holds the figure as pairs of ends: entries 2i and 2i + 1 are line i.
// BoundaryPoints is one closed polygon in the order of the boundary file; the edge from the
// last point back to the first closes it. Each keeps a range of RA and Dec that encloses its
// points: the catalogue lists a constellation for a view by its figure's range.
//
// The constellation reads its own lines from the catalogue's files, each reader starting at
// the file's current line and leaving there the first line that is not its own. Figures and
// boundaries that are missing when the constellation draws are loaded then, through the
// catalogue. The name is a label fixed on the label point, which the label manager draws; the
// constellation itself draws only lines.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "catalogues/AstroObject.h"
#include "catalogues/LorvString.h"
#include "coords/PolarCoord.h"
#include "coords/SkyRange.h"
#include "platform/TPoint.h"

class ConstellationCatalogue;
class HostFile;
class Label;
class TDC;
class TextFile;
class Transformation;

class Constellation : public AstroObject
{
public:
    // Its uid is the uid base plus its number in the name table plus 1.
    Constellation(ConstellationCatalogue& catalogue, const std::string& name,
                  const std::string& abbreviation);
    ~Constellation() override;
    Constellation(const Constellation&) = delete;

    // Readers of the catalogue's files. Each takes the lines of this constellation from the
    // current line on and stops at the first line of another one (or an empty line, or the
    // end), which stays current. A line whose numbers are missing or name no direction (not
    // numbers, RA beyond a turn either way, Dec beyond a pole) is passed over. True when at
    // least one line was this constellation's.
    // Figure lines: abbreviation, RA and Dec of both ends in degrees (two SAO numbers may
    // follow, which are not read).
    bool AddFigurePoints(TextFile& text);
    // Boundary lines: RA in hours, Dec in degrees, abbreviation; separated by blanks or commas.
    bool AddBoundaryPoints(TextFile& text);
    // Reads the next line: abbreviation, centre RA and Dec, label RA and Dec in degrees. Each
    // pair is taken only when both its numbers are there and name a direction. False, reading
    // no pair, when the line is missing or belongs to another constellation.
    bool ReadCenterPoint(TextFile& text);

    // The centre from the centre file, or else the middle of the boundary's ranges (the
    // boundaries are loaded for it when need be).
    PolarCoord GetCenter() const;
    // The label point from the centre file, or else the centre.
    PolarCoord GetLabelPosition() const;
    bool HasCenter() const { return bHasCenter; }
    bool HasLabelPosition() const { return bHasLabelPosition; }

    // A 5 by 5 pixel light yellow square on the centre, when the centre is in view.
    void DrawCenter(TDC& dc, const Transformation& t);
    // The figure's lines in green, each line with an end in the visible range and in view;
    // lines are `lineWidth` pixels wide, as wide as lines are on paper.
    void DrawFigures(TDC& dc, const Transformation& t, int lineWidth = 1);
    // The boundary in red: every edge with an end in view.
    void DrawBoundaries(TDC& dc, const Transformation& t, int lineWidth = 1);

    // The abbreviation's first 3 bytes (zeros after a shorter one), the number of points as
    // 4 little-endian bytes, then each point's RA and Dec as 8-byte doubles. False at the first
    // write that falls short.
    bool DumpBoundaryInfo(HostFile& file) const;
    // One line of the centre file: abbreviation, centre, label point (the centre when there is
    // none), numbers with six significant digits.
    bool WriteCenterInfo(TextFile& text) const;

    const LorvString& GetAbbreviation() const { return Abbreviation; }
    const std::string& GetName() const { return Name; }
    const SkyRange& GetFigureRange() const { return FigureRange; }
    const SkyRange& GetBoundaryRange() const { return BoundaryRange; }
    const std::vector<PolarCoord>& GetFigurePoints() const { return FigurePoints; }
    const std::vector<PolarCoord>& GetBoundaryPoints() const { return BoundaryPoints; }
    bool HasFigures() const { return !FigurePoints.empty(); }
    bool HasBoundaries() const { return !BoundaryPoints.empty(); }
    ConstellationCatalogue& GetCatalogue() const { return *pCatalogue; }
    // Forgets the cached label, so that the next GetLabel makes it anew.
    void ForgetLabel();

    // AstroObject.
    // The centre.
    PolarCoord GetPosition() const override { return GetCenter(); }
    // A point far off every surface: the map sets none, and the pointer must not find a
    // constellation by it.
    const TPoint& GetDisplayPoint() const override { return DisplayPoint; }
    bool IsTimeDependent() const override { return false; }
    // Whether the catalogue's settings show names.
    bool IsLabeled(const DisplayParameters& parameters) const override;
    // The name, fixed and centred on the label point; null when the label point is out of
    // view or the parameters have no surface or projection.
    Label* GetLabel(DisplayParameters& parameters) override;
    std::uint32_t GetUid() const override { return nUid; }
    void SetDisplayPoint(const TPoint&) override {}
    // Figures and boundaries as the catalogue's settings say.
    void Draw(TDC& dc, DisplayParameters& parameters) override;
    bool HasListName() const override { return true; }
    std::string GetListName() const override { return Name; }
    std::string GetRefName() const override { return Name; }
    // By name, ignoring case.
    bool IsLessThan(const AstroObject& other) const override;

private:
    std::vector<PolarCoord> FigurePoints;
    std::vector<PolarCoord> BoundaryPoints;
    SkyRange BoundaryRange;
    SkyRange FigureRange;
    LorvString Abbreviation;
    std::string Name;
    ConstellationCatalogue* pCatalogue;
    PolarCoord Center;
    bool bHasCenter = false;
    PolarCoord LabelPosition;
    bool bHasLabelPosition = false;
    TPoint DisplayPoint{-32768, -32768};
    std::unique_ptr<Label> pLabel;
    std::uint32_t nUid;
};
