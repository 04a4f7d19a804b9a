// Any bytes as a Messier file, read both ways: as the text catalogue, line by line, and as the
// binary file of count and records. Whatever was read is looked at through views of the whole
// sky, named, found by number and written out and read back. Nothing may fault, read past a
// buffer or ask for more memory than the file could fill.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>
#include <vector>

#include "catalogues/AstroList.h"
#include "catalogues/CatalogueSet.h"
#include "catalogues/MessierCatalogue.h"
#include "catalogues/Request.h"
#include "catalogues/TextFile.h"
#include "platform/DebugStream.h"
#include "platform/DeviceCaps.h"
#include "platform/Surface.h"
#include "platform/TDC.h"
#include "time/AstroTime.h"

namespace {

std::string ScratchPath(const char* what)
{
    const char* dir = std::getenv("TMPDIR");
    return std::string(dir && *dir ? dir : "/tmp") + "/orbiscope-fuzz-messier-" + what + "-" +
           std::to_string(::getpid()) + ".bin";
}

// Both poles and the equator all round, in a wide field, made once.
const std::vector<Transformation>& Views()
{
    static Surface pixels(1, 1, PixelFormat::Rgb32);
    static TDC dc(pixels, DeviceCaps{});
    static const std::vector<Transformation> views = [] {
        const TRect rect(0, 0, 1024, 768);
        std::vector<Transformation> made;
        made.emplace_back(dc, rect, PolarCoord(0, 90), 90.0, PolarCoord(0, 0));
        made.emplace_back(dc, rect, PolarCoord(0, -90), 90.0, PolarCoord(0, 0));
        for (double ra = 0.0; ra < 360.0; ra += 90.0) {
            made.emplace_back(dc, rect, PolarCoord(ra, 0.0), 60.0, PolarCoord(0, 90));
        }
        return made;
    }();
    return views;
}

void LookAt(MessierCatalogue& catalogue)
{
    AstroList list(50, 100);
    const AstroTime time(1, 1, 2000, 0.0);
    for (const Transformation& view : Views()) {
        Request request(view, CatalogueSet(AstroCatalogue::MESSIER_OBJECTS), time, 6.0);
        list.Flush();
        catalogue.SatisfyRequest(request, list);
        for (AstroObject* object : list) {
            (void)object->GetDisplayPoint();
        }
    }
    const auto named = catalogue.GetListOfNamedObjects();
    for (AstroObject* object : *named) {
        (void)object->GetListName();
        (void)object->GetTypeName();
        (void)object->GetUid();
    }
    for (unsigned n = 0; n <= catalogue.GetCount() + 1; ++n) {
        if (Messier* object = catalogue.GetObject(n)) {
            (void)object->GetRefName();
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::string input = ScratchPath("in");
    static const std::string output = ScratchPath("out");
    static const bool quiet = [] {
        SetDebugSink([](const char*) {});
        return true;
    }();
    (void)quiet;
    if (std::FILE* file = std::fopen(input.c_str(), "wb")) {
        std::fwrite(data, 1, size, file);
        std::fclose(file);
    } else {
        return 0;
    }

    MessierCatalogue text;
    TextFile lines;
    if (lines.OpenForReading(input.c_str())) {
        text.Load(lines);
    }
    LookAt(text);
    text.Dump(output);

    MessierCatalogue binary;
    binary.Load(input);
    LookAt(binary);
    if (binary.Dump(output)) {
        MessierCatalogue again;
        again.Load(output);
    }
    return 0;
}
