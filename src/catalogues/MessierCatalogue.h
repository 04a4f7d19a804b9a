#pragma once
// The Messier objects, all in memory, in the order of their file, which is the order of their
// numbers: object n stands at index n - 1.
//
// The collector loads the catalogue from the text file (see Messier for the line) when it is
// made. A binary form of the same list (a signed 32-bit little-endian count, then 37-byte
// records) can be written and read back; it keeps no names and no classes. The binary file
// is the profile's "MessierFile" in section "Orbiscope", default "ed:\messier.bin".
//
// A request lists every object in view, whatever the limiting magnitude: the objects are
// shown or hidden as a whole by the request's set of catalogues.
#include <cstdint>
#include <memory>
#include <string>

#include "catalogues/AstroCatalogue.h"
#include "catalogues/Messier.h"
#include "catalogues/PointerVector.h"

class AstroList;
class Request;
class TextFile;

class MessierCatalogue : public AstroCatalogue
{
public:
    // Empty; the binary file name comes from the host's shared profile.
    MessierCatalogue();

    // Replaces the objects with those of the text, line by line. A line that cannot be read
    // ends the load with a message naming it on dbstream and the result false; the objects
    // before it stay. A text that cannot be read leaves the catalogue empty, and true.
    bool Load(TextFile& text);
    // Replaces the objects with those of a binary file; an empty name reads the catalogue's
    // own file, any other becomes its file. False, with a message on dbstream, when the file
    // cannot be opened (the objects then stay as they were), its count is negative or it ends
    // inside a record (the records before stay).
    bool Load(const std::string& name);
    // Writes the binary file: to `name`, or to the catalogue's own file when `name` is empty;
    // the file is made anew. False, writing nothing, when the catalogue is empty; false when
    // the file cannot be made or a write falls short.
    bool Dump(const std::string& name = std::string()) const;

    // Adds to `list`, in order, every object in the view's visible range that the view can
    // put on its surface, with its display point set.
    void SatisfyRequest(const Request& request, AstroList& list);
    // Every object in order; the list does not own them.
    std::unique_ptr<PointerVector<AstroObject>> GetListOfNamedObjects() override;
    // The object at index number - 1; null for 0 or a number above the count.
    Messier* GetObject(unsigned number) const;
    bool IsTimeDependent() const override { return false; }

    std::size_t GetCount() const { return Objects.size(); }
    // The faintest magnitude loaded; -20 while there is none.
    double GetMaxMagnitude() const { return MaxMagnitude; }
    const std::string& GetFileName() const { return FileName; }

private:
    // Empties the catalogue.
    void Clear();
    // Appends an object and raises the maximum magnitude to it.
    void Append(std::unique_ptr<Messier> object);

    PointerVector<Messier> Objects{true};
    double MaxMagnitude = kNoMagnitude;
    std::string FileName;

    // The maximum magnitude of an empty catalogue.
    static constexpr double kNoMagnitude = -20.0;
};
