#pragma once
// A star catalogue that holds in memory only the part of its star file that the view needs.
// The headers of its segments stay in memory; the stars of a segment are read, in one read,
// when the segment touches the view and are given up when it no longer does.
//
// Star file, little-endian: the faintest magnitude in the file (double), the segment count
// (signed 32-bit), the segment headers (see Segment), then the star records (see Star) segment
// after segment. A text catalogue can stand in for a file: all its stars then stay in memory.
//
// Positions are degrees in the catalogue's equinox (J2000 for the files this system makes).
#include <cstdint>
#include <memory>
#include <string>

#include "catalogues/AstroCatalogue.h"
#include "catalogues/SegmentTable.h"
#include "host/HostFile.h"

class AstroList;
class Request;
class Star;
class TextFile;

class StarCatalogue : public AstroCatalogue
{
public:
    StarCatalogue() = default;

    // Makes the catalogue use a star file, which stays open for the catalogue's life (host
    // path rules apply to the name). Only the headers are read. False, with a message on
    // dbstream, when the file cannot be opened or ends inside its headers; the catalogue then
    // holds what could be read, and no stars when nothing could.
    bool Load(const std::string& name);
    // Makes the catalogue hold a whole text catalogue (SegmentTable::Load). The maximum
    // magnitude becomes that of the faintest star.
    bool LoadStars(TextFile& text);

    // Brings the resident segments in line with the request's view and adds the stars it
    // shows to the list.
    void SatisfyRequest(const Request& request, AstroList& list);
    // Private copies of every named star, in an ObjectListWithDelete. Reads the whole file;
    // segments not resident before are given up again.
    std::unique_ptr<PointerVector<AstroObject>> GetListOfNamedObjects() override;
    // A new copy of the first star with that SAO number, with one reference that the caller
    // releases, or null. Searches segment by segment and leaves residency as it found it.
    Star* GetStarFromSAONumber(std::uint32_t saoNumber);

    // Writes the catalogue as a star file: to `name`, or to the catalogue's own file when
    // `name` is empty. Every segment is read first, so the file holds the whole catalogue.
    // The catalogue's own file is closed meanwhile and opened again afterwards; when it was the
    // one written, the headers in memory take the new offsets. False when no name is known,
    // the file cannot be made or a write falls short.
    bool Dump(const std::string& name = std::string());
    // Writes every star as a text line: to `name`, or to "stars.txt" when `name` is empty.
    // False when the file cannot be made.
    bool DumpText(const std::string& name = std::string());

    double GetMaxMagnitude() const { return MaxMagnitude; }
    bool IsTimeDependent() const override { return false; }

    // The name of the star file; empty for a text catalogue.
    const std::string& GetName() const { return Name; }
    // True when stars can be had: the star file is open, or the stars came from text.
    bool HasStars() const { return File.IsOpen() || !Segments.GetUnloadWhenOutOfView(); }
    const SegmentTable& GetSegments() const { return Segments; }

private:
    // Makes every segment resident and notes which were not before.
    std::vector<bool> LoadAllSegments();
    // Gives up the segments marked, when the catalogue unloads segments out of view.
    void UnloadMarked(const std::vector<bool>& marked);

    std::string Name;
    HostFile File;
    SegmentTable Segments;
    // The faintest magnitude in the catalogue.
    double MaxMagnitude = 8.0;
};
