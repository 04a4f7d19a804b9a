#pragma once
// The constellations: names, figures, boundaries, centres and label points, read lazily
// from four text files that the profile names in section "Orbiscope":
//
//   "ConstellationNameFile"      "ed:\constnam.txt"       full name, abbreviation
//   "ConstNodeFile"              "ed:\constnod.txt"       figure lines
//   "ConstCenterFile"            "ed:\constct.txt"        centres and label points
//   "ConstellationBoundaryFile"  "cd:\win32\constbd.txt"  boundary points
//
// The table of names is shared by all catalogues and read once. Its order numbers the
// constellations: a constellation's number (CONSTELLATIONS) is its line in the table, counted
// from 0, and its uid the uid base plus that number plus 1. The abbreviation is the key in the
// other three files. Every file is plain text, fields separated by commas (the boundary file
// also by blanks), blanks around fields ignored; the formats are told by the readers in
// Constellation.
//
// Load reads the names, the centres and the figures. The large boundary file is read only
// when boundaries are shown, or when a constellation without a centre in the centre file is
// asked for its centre. A file that cannot be opened is reported on the diagnostic stream once,
// and the constellations go on without what it holds.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "catalogues/AstroCatalogue.h"
#include "catalogues/Constellation.h"
#include "catalogues/ConstellationSettings.h"
#include "catalogues/PointerVector.h"

class AstroList;
class HostFile;
class Request;
class StateContainer;
class TDC;
class TextFile;
class Transformation;

class ConstellationCatalogue : public AstroCatalogue
{
public:
    // One line of the table of names.
    struct NameInfo
    {
        std::string FullName;
        std::string Abbreviation;
    };

    // A constellation's number: its line in the table of names, from 0. The names are data,
    // so the only named value is the answer for a name the table does not hold.
    enum CONSTELLATIONS : std::uint32_t
    {
        UNKNOWN_CONSTELLATION = 0x53,
    };

    ConstellationCatalogue();
    ~ConstellationCatalogue() override;

    // Names, constellations, centres and figures, and the boundaries when they are shown.
    // Does nothing once it has run.
    void Load();
    // Reads the table of names from the profile's file, unless it is filled already. False
    // when the file cannot be opened.
    static bool LoadNameInfo();
    // Reads the table of names from `text`, one "full name, abbreviation" a line, until the
    // first line that lacks either. False when no line could be read.
    static bool LoadNameInfo(TextFile& text);
    // Empties the shared table, so that the next load reads the file again. Catalogues made
    // before keep their constellations.
    static void FlushNameInfo();
    // One constellation per line of the table, unless there are constellations already.
    void LoadConstellations();
    // The centre file, read once it was read whole. Every line must be that of the
    // constellation of the same place in the table; the first that is not ends the reading.
    void LoadCenterPointInfo();
    void LoadCenterPointInfo(TextFile& text);
    // The figure file, read once, even when it cannot be opened. Groups of lines may come in
    // any order; an unknown abbreviation or an empty line ends the reading.
    void LoadFigureInfo();
    void LoadFigureInfo(TextFile& text);
    // The boundary file, in the same way.
    void LoadBoundaryInfo();
    void LoadBoundaryInfo(TextFile& text);

    // Adds every constellation whose figure reaches into the visible range of the request's
    // view, in table order. A constellation without a figure is never listed.
    void SatisfyRequest(const Request& request, AstroList& list);

    // The first constellation of that full name or abbreviation, ignoring case; null when
    // there is none. Loads the catalogue first.
    Constellation* GetConstellation(const std::string& name, bool byAbbreviation);
    // The constellations in table order; the catalogue keeps them.
    void GetConstellations(std::vector<Constellation*>& constellations) const;
    // The constellation of that abbreviation among those made, ignoring case, or null.
    Constellation* FindConstellationWithAbbreviation(const std::string& abbreviation) const;
    std::size_t GetCount() const { return Constellations.size(); }

    // The number of a full name in the table, ignoring case; UNKNOWN_CONSTELLATION for a name
    // the table does not hold.
    static CONSTELLATIONS GetConstellationEnum(const std::string& fullName);
    // The table's texts for a number; empty beyond the table.
    static std::string GetConstellationAbbreviation(CONSTELLATIONS which);
    static std::string GetConstellationFullName(CONSTELLATIONS which);
    static std::size_t GetNameCount() { return sNameInfo.size(); }

    // Loads, then lists every constellation; the list does not own them.
    std::unique_ptr<PointerVector<AstroObject>> GetListOfNamedObjects() override;
    bool IsTimeDependent() const override { return false; }

    // Takes the settings and forgets every cached label, so that a new colour shows at once.
    void UseSettings(const ConstellationSettings& settings);
    const ConstellationSettings& GetSettings() const { return Settings; }

    // Writes every boundary to "constbd.bin" in the working directory.
    bool Dump();
    // Loads the boundaries if need be, then writes each constellation's, in table order
    // (Constellation::DumpBoundaryInfo). False at the first write that falls short.
    bool DumpBoundaryInfo(HostFile& file);
    // Writes the centre file anew, to "ed:\CONSTCT.TXT": one line per constellation.
    bool WriteCenterInfo();
    bool WriteCenterInfo(TextFile& text);
    // The centre mark of every constellation whose centre is in the visible range.
    void DrawCenters(TDC& dc, const Transformation& t);

    bool IsLoaded() const { return bLoaded; }
    bool IsFigureLoaded() const { return bFigureLoaded; }
    bool IsBoundaryLoaded() const { return bBoundaryLoaded; }
    bool IsCenterLoaded() const { return bCenterLoaded; }

private:
    // Opens the file of a profile key; the TextFile reports a failure.
    static bool OpenProfileFile(TextFile& text, const char* key, const char* defaultPath);

    static PointerVector<NameInfo> sNameInfo;

    PointerVector<Constellation> Constellations{true};
    bool bLoaded = false;
    bool bBoundaryLoaded = false;
    bool bFigureLoaded = false;
    bool bCenterLoaded = false;
    ConstellationSettings Settings;
};

// State: the settings, as a level at the caller's key. Reading ends with UseSettings.
StateContainer& operator<<(StateContainer& sc, const ConstellationCatalogue& catalogue);
StateContainer& operator>>(StateContainer& sc, ConstellationCatalogue& catalogue);
