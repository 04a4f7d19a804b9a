// Any text as the four constellation files. The input is cut at form feeds into the table of
// names, the figure lines, the centre lines and the boundary points; an input without a form
// feed goes to all three of the last, under a fixed table of five names. The catalogue reads
// them, answers requests over the whole sky, draws figures, boundaries, centres and labels on
// a small surface, and writes its boundary dump and its centre file.
//
// Beyond "no crash": figures come in pairs; every point read names a direction on the sphere,
// its RA within one turn, and lies in its constellation's range; every constellation listed
// for a view has a figure. The files live in one scratch folder, emptied after each input.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "FuzzScratch.h"
#include "catalogues/AstroList.h"
#include "catalogues/CatalogueSet.h"
#include "catalogues/ConstellationCatalogue.h"
#include "catalogues/Request.h"
#include "catalogues/TextFile.h"
#include "host/HostFile.h"
#include "platform/DeviceCaps.h"
#include "platform/Surface.h"
#include "platform/TDC.h"
#include "skyview/DisplayParameters.h"
#include "time/AstroTime.h"

namespace {

// The four files of an input and the two the catalogue writes, in one folder emptied after
// each input and removed at the end.
FuzzScratch& Scratch()
{
    static FuzzScratch scratch("constellations");
    return scratch;
}

// Reads `text` as the file `what` and hands it to `read`.
template <class Reader>
void ReadAs(const std::string& what, const std::string& text, Reader read)
{
    if (!Scratch().Write(what, text)) {
        return;
    }
    TextFile file;
    if (file.OpenForReading(Scratch().Path(what).c_str())) {
        read(file);
    }
}

// A broken property: says which, then stops the run.
void Check(bool condition, const char* what)
{
    if (!condition) {
        std::fprintf(stderr, "ConstellationFiles: %s\n", what);
        std::abort();
    }
}

// RA as the readers keep it, from 0 up to a turn; Dec from pole to pole.
bool OnTheSphere(const PolarCoord& p)
{
    const double ra = p.GetRA().GetDegrees();
    return ra >= 0.0 && ra < 360.0 && std::fabs(p.GetDec().GetDegrees()) <= 90.0;
}

struct Sky
{
    Sky() : Pixels(64, 48, PixelFormat::Rgb32), Context(Pixels, DeviceCaps{})
    {
        const TRect rect(0, 0, 64, 48);
        for (double radius : {90.0, 10.0}) {
            Views.emplace_back(Context, rect, PolarCoord(0, 90), radius, PolarCoord(0, 0));
            Views.emplace_back(Context, rect, PolarCoord(0, -90), radius, PolarCoord(0, 0));
            for (double ra = 0.0; ra < 360.0; ra += 90.0) {
                Views.emplace_back(Context, rect, PolarCoord(ra, 0.0), radius, PolarCoord(0, 90));
            }
        }
    }
    Surface Pixels;
    TDC Context;
    std::vector<Transformation> Views;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Sky sky;
    const std::string input(reinterpret_cast<const char*>(data), size);
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (parts.size() < 3) {
        const std::size_t cut = input.find('\f', start);
        if (cut == std::string::npos) {
            break;
        }
        parts.push_back(input.substr(start, cut - start));
        start = cut + 1;
    }
    parts.push_back(input.substr(start));
    if (parts.size() == 1) {
        parts = {"Andromeda, And\nOrion, Ori\nSerpens, Ser\nOphiuchus, Oph\nUrsa Minor, UMi\n",
                 input, input, input};
    }
    parts.resize(4);

    ConstellationCatalogue::FlushNameInfo();
    ReadAs("names", parts[0], [](TextFile& file) { ConstellationCatalogue::LoadNameInfo(file); });
    {
        ConstellationCatalogue catalogue;
        catalogue.UseSettings(ConstellationSettings(true, true, true));
        catalogue.LoadConstellations();
        ReadAs("figures", parts[1], [&](TextFile& file) { catalogue.LoadFigureInfo(file); });
        ReadAs("centres", parts[2], [&](TextFile& file) { catalogue.LoadCenterPointInfo(file); });
        ReadAs("bounds", parts[3], [&](TextFile& file) { catalogue.LoadBoundaryInfo(file); });

        std::vector<Constellation*> all;
        catalogue.GetConstellations(all);
        for (const Constellation* c : all) {
            Check(c->GetFigurePoints().size() % 2 == 0, "figure points in pairs");
            for (const PolarCoord& p : c->GetFigurePoints()) {
                Check(OnTheSphere(p), "figure point on the sphere");
                Check(c->GetFigureRange().Contains(p), "figure range");
            }
            for (const PolarCoord& p : c->GetBoundaryPoints()) {
                Check(OnTheSphere(p), "boundary point on the sphere");
                Check(c->GetBoundaryRange().Contains(p), "boundary range");
            }
            (void)c->GetCenter();
            (void)c->GetLabelPosition();
            (void)c->GetUid();
        }

        DisplayParameters parameters;
        parameters.SetDC(&sky.Context);
        parameters.SetDrawRect(TRect(0, 0, 64, 48));
        AstroList list(100, 100);
        const AstroTime time(1, 1, 2000, 0.0);
        for (Transformation& view : sky.Views) {
            list.Flush();
            catalogue.SatisfyRequest(
                Request(view, CatalogueSet(AstroCatalogue::CONSTELLATIONS), time, 6.0), list);
            parameters.pTransformation = &view;
            for (AstroObject* object : list) {
                Check(static_cast<Constellation*>(object)->HasFigures(), "listed with a figure");
                object->Draw(sky.Context, parameters);
                (void)object->GetLabel(parameters);
            }
            catalogue.DrawCenters(sky.Context, view);
        }
        list.Flush();

        HostFile dump(Scratch().Path("dump.bin"), HostFile::WriteNew);
        catalogue.DumpBoundaryInfo(dump);
        TextFile centres;
        if (centres.OpenForWriting(Scratch().Path("written.txt").c_str())) {
            catalogue.WriteCenterInfo(centres);
        }
    }
    ConstellationCatalogue::FlushNameInfo();
    Scratch().Empty();
    return 0;
}
