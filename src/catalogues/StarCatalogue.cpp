#include "catalogues/StarCatalogue.h"

#include <filesystem>
#include <fstream>
#include <locale>

#include "catalogues/ObjectListWithDelete.h"
#include "catalogues/Request.h"
#include "catalogues/Star.h"
#include "catalogues/TextFile.h"
#include "coords/DegreeAngle.h"
#include "platform/DebugStream.h"

namespace {

// True when both paths name one existing file.
bool SameFile(const std::string& a, const std::string& b)
{
    std::error_code error;
    return std::filesystem::equivalent(a, b, error) && !error;
}

} // namespace

bool StarCatalogue::Load(const std::string& name)
{
    File.Close();
    Name = name;
    Segments.clear();
    Segments.SetUnloadWhenOutOfView(true);
    if (!File.Open(Name, HostFile::ReadOnly)) {
        dbstream << "Could not open star file: " << Name << dbendl;
        return false;
    }
    if (!File.ReadDouble(MaxMagnitude) || !Segments.Load(File)) {
        dbstream << "Star file " << File.GetPath() << " ends inside its segment table; "
                 << Segments.size() << " segments read." << dbendl;
        return false;
    }
    return true;
}

bool StarCatalogue::LoadStars(TextFile& text)
{
    File.Close();
    Name.clear();
    return Segments.Load(text, MaxMagnitude);
}

void StarCatalogue::SatisfyRequest(const Request& request, AstroList& list)
{
    Segments.Update(File, request.GetView().GetVisibleRange());
    Segments.SatisfyRequest(request, list);
}

std::unique_ptr<PointerVector<AstroObject>> StarCatalogue::GetListOfNamedObjects()
{
    auto list = std::make_unique<ObjectListWithDelete>();
    for (Segment& segment : Segments) {
        const bool resident = segment.IsLoaded();
        segment.Load(File);
        segment.GetNamedStars(*list);
        if (!resident && Segments.GetUnloadWhenOutOfView()) {
            segment.Unload();
        }
    }
    return list;
}

Star* StarCatalogue::GetStarFromSAONumber(std::uint32_t saoNumber)
{
    for (Segment& segment : Segments) {
        const bool resident = segment.IsLoaded();
        segment.Load(File);
        Star* found = segment.FindStar(saoNumber);
        Star* copy = found ? new Star(*found) : nullptr;
        if (!resident && Segments.GetUnloadWhenOutOfView()) {
            segment.Unload();
        }
        if (copy != nullptr) {
            return copy;
        }
    }
    return nullptr;
}

std::vector<bool> StarCatalogue::LoadAllSegments()
{
    std::vector<bool> wasOut;
    wasOut.reserve(Segments.size());
    for (Segment& segment : Segments) {
        wasOut.push_back(!segment.IsLoaded());
        segment.Load(File);
    }
    return wasOut;
}

void StarCatalogue::UnloadMarked(const std::vector<bool>& marked)
{
    if (!Segments.GetUnloadWhenOutOfView()) {
        return;
    }
    for (std::size_t i = 0; i < Segments.size() && i < marked.size(); ++i) {
        if (marked[i]) {
            Segments[i].Unload();
        }
    }
}

bool StarCatalogue::Dump(const std::string& name)
{
    std::string target = name.empty() ? Name : name;
    if (target.empty()) {
        dbstream << "A star catalogue read from text has no file to be written to." << dbendl;
        return false;
    }
    HostFile::ResolvePath(target, true, false);
    const bool ownFile = File.IsOpen() && SameFile(target, File.GetPath());

    // Everything into memory first: the catalogue's own file may be the one overwritten.
    std::vector<bool> wasOut = LoadAllSegments();
    File.Close();

    HostFile out;
    bool written = out.Open(target, HostFile::WriteNew);
    if (!written) {
        dbstream << "Could not create star file: " << target << dbendl;
    } else {
        written = out.WriteDouble(MaxMagnitude);
        written = Segments.Dump(out) && written;
        out.Close();
        if (!written) {
            dbstream << "Writing star file " << target << " failed." << dbendl;
        }
    }

    if (ownFile) {
        // The headers in memory describe the old file; take those of the new one.
        Load(Name);
    } else {
        if (!Name.empty()) {
            File.Open(Name, HostFile::ReadOnly);
        }
        UnloadMarked(wasOut);
    }
    return written;
}

bool StarCatalogue::DumpText(const std::string& name)
{
    std::string target = name.empty() ? std::string("stars.txt") : name;
    HostFile::ResolvePath(target, true, false);
    std::ofstream out(target, std::ios::binary | std::ios::trunc);
    if (!out) {
        dbstream << "Could not create star text file: " << target << dbendl;
        return false;
    }
    out.imbue(std::locale::classic());
    for (Segment& segment : Segments) {
        const bool resident = segment.IsLoaded();
        segment.Load(File);
        if (const StarArray* stars = segment.GetStars()) {
            stars->Dump(out);
        }
        if (!resident && Segments.GetUnloadWhenOutOfView()) {
            segment.Unload();
        }
    }
    out.flush();
    return bool(out);
}
