// Any bytes as a star file: the catalogue loads its headers, then requests look at the whole
// sky (both poles, the equator all round, wide and narrow fields, a frame of a scroll), stars
// are looked up by number and by name, and the catalogue is written out again. Nothing may
// fault, read past a buffer or ask for more memory than the file could fill.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "FuzzScratch.h"
#include "catalogues/AstroList.h"
#include "catalogues/CatalogueSet.h"
#include "catalogues/Request.h"
#include "catalogues/Star.h"
#include "catalogues/StarCatalogue.h"
#include "platform/DeviceCaps.h"
#include "platform/Surface.h"
#include "platform/TDC.h"
#include "time/AstroTime.h"

namespace {

// The input and the catalogue's dump, in one folder emptied after each input and removed at
// the end.
FuzzScratch& Scratch()
{
    static FuzzScratch scratch("stars");
    return scratch;
}

// The views every input is looked at through, made once.
const std::vector<Transformation>& Views()
{
    static Surface pixels(1, 1, PixelFormat::Rgb32);
    static TDC dc(pixels, DeviceCaps{});
    static const std::vector<Transformation> views = [] {
        const TRect rect(0, 0, 1024, 768);
        std::vector<Transformation> made;
        for (double radius : {90.0, 20.0}) {
            made.emplace_back(dc, rect, PolarCoord(0, 90), radius, PolarCoord(0, 0));
            made.emplace_back(dc, rect, PolarCoord(0, -90), radius, PolarCoord(0, 0));
            for (double ra = 0.0; ra < 360.0; ra += 45.0) {
                for (double dec : {-45.0, 0.0, 45.0}) {
                    made.emplace_back(dc, rect, PolarCoord(ra, dec), radius, PolarCoord(0, 90));
                }
            }
        }
        return made;
    }();
    return views;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input = Scratch().Path("in.bin");
    if (!Scratch().Write("in.bin", std::string(reinterpret_cast<const char*>(data), size))) {
        return 0;
    }

    StarCatalogue catalogue;
    catalogue.Load(input);
    AstroList list(500, 1000);
    const AstroTime time(1, 1, 2000, 0.0);
    std::uint32_t someNumber = 0;
    for (const Transformation& view : Views()) {
        Request request(view, CatalogueSet(AstroCatalogue::STARS), time, 99.0);
        list.Flush();
        catalogue.SatisfyRequest(request, list);
        for (AstroObject* object : list) {
            someNumber = static_cast<Star*>(object)->GetSAONumber();
        }
    }
    // Two frames of a scroll over the last view.
    for (int frame = 0; frame < 2; ++frame) {
        Request scroll(Views().back(), CatalogueSet(AstroCatalogue::STARS), time, 99.0);
        scroll.SetScrolling(true);
        scroll.SetScrollInfo(AstroScrollInfo(3, 350, DegreeAngle(2.0)));
        scroll.SetKeepScrollCache(frame > 0);
        list.Flush();
        catalogue.SatisfyRequest(scroll, list);
    }
    list.Flush();

    if (Star* star = catalogue.GetStarFromSAONumber(someNumber)) {
        (void)star->GetInfoName();
        star->ReleaseReference();
    }
    (void)catalogue.GetListOfNamedObjects();
    catalogue.Dump(Scratch().Path("out.bin"));
    Scratch().Empty();
    return 0;
}
