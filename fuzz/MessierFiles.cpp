// Any bytes as a Messier file, read both ways: as the text catalogue, line by line, and as the
// binary file of count and records. Whatever was read is looked at through views of the whole
// sky, named, found by number and written out and read back. Nothing may fault, read past a
// buffer or ask for more memory than the file could fill.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "FuzzScratch.h"
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

// The input and what the catalogue writes, in one folder emptied after each input and
// removed at the end.
FuzzScratch& Scratch()
{
    static FuzzScratch scratch("messier");
    return scratch;
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
    const std::string input = Scratch().Path("in.bin");
    const std::string output = Scratch().Path("out.bin");
    static const bool quiet = [] {
        SetDebugSink([](const char*) {});
        return true;
    }();
    (void)quiet;
    if (!Scratch().Write("in.bin", std::string(reinterpret_cast<const char*>(data), size))) {
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
    Scratch().Empty();
    return 0;
}
