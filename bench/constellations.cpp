// The cost of the constellations with the shipped files: reading the large boundary file (the
// first draw with boundaries shown pays it once), and a frame of the whole northern sky on the
// map's 1024 by 768 off-screen bitmap with figures and boundaries shown, once by the request
// and once by the draws of the constellations it lists.
#include <benchmark/benchmark.h>

#include "SkyBitmap.h"

#include "catalogues/AstroList.h"
#include "catalogues/CatalogueSet.h"
#include "catalogues/ConstellationCatalogue.h"
#include "catalogues/Request.h"
#include "catalogues/TextFile.h"
#include "host/HostProf.h"
#include "projection/Transformation.h"
#include "time/AstroTime.h"

namespace {

constexpr int kWidth = 1024;
constexpr int kHeight = 768;

// All 13,038 points of the boundary file, read into a catalogue that has only its names.
void BM_ReadBoundaries(benchmark::State& state)
{
    const std::string path =
        HostProfile().Get("Orbiscope", "ConstellationBoundaryFile", "cd:\\win32\\constbd.txt");
    ConstellationCatalogue::LoadNameInfo();
    std::size_t points = 0;
    for (auto _ : state) {
        ConstellationCatalogue catalogue;
        catalogue.LoadConstellations();
        TextFile text;
        text.OpenForReading(path.c_str());
        catalogue.LoadBoundaryInfo(text);
        points = catalogue.GetConstellation("UMi", true)->GetBoundaryPoints().size();
        benchmark::DoNotOptimize(points);
    }
    state.counters["UMi points"] = double(points);
}
BENCHMARK(BM_ReadBoundaries)->Unit(benchmark::kMillisecond);

struct NorthernSky
{
    NorthernSky()
        : Sky(kWidth, kHeight), View(Sky.DC(), TRect(0, 0, kWidth, kHeight), PolarCoord(0.0, 90.0),
                                     90.0, PolarCoord(0.0, 0.0)),
          Listed(100, 100)
    {
        Sky.Parameters.SetDrawRect(TRect(0, 0, kWidth, kHeight));
        Sky.Parameters.pTransformation = &View;
        Constellations.UseSettings(ConstellationSettings(true, true, false));
        Constellations.Load();
    }

    SkyBitmap Sky;
    Transformation View;
    ConstellationCatalogue Constellations;
    AstroList Listed;
};

// The constellations' part of the request of a frame: which figures reach into the view.
void BM_ListNorthernConstellations(benchmark::State& state)
{
    NorthernSky sky;
    const Request request(sky.View, CatalogueSet(AstroCatalogue::CONSTELLATIONS),
                          AstroTime(1, 1, 2000, 0.0), 6.0);
    for (auto _ : state) {
        sky.Listed.Flush();
        sky.Constellations.SatisfyRequest(request, sky.Listed);
    }
    state.counters["listed"] = double(sky.Listed.GetCount());
}
BENCHMARK(BM_ListNorthernConstellations)->Unit(benchmark::kMicrosecond);

// Their draws: figures in green, boundaries in red, every edge with an end in view.
void BM_DrawNorthernConstellations(benchmark::State& state)
{
    NorthernSky sky;
    sky.Constellations.SatisfyRequest(Request(sky.View,
                                              CatalogueSet(AstroCatalogue::CONSTELLATIONS),
                                              AstroTime(1, 1, 2000, 0.0), 6.0),
                                      sky.Listed);
    for (auto _ : state) {
        sky.Sky.Clear();
        sky.Sky.Draw(sky.Listed);
    }
    state.counters["listed"] = double(sky.Listed.GetCount());
}
BENCHMARK(BM_DrawNorthernConstellations)->Unit(benchmark::kMillisecond);

} // namespace
