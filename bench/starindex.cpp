// The star index at work on the map's 1024 by 768 view with the large catalogue (stars.bin):
// a request and the drawing of every star it returns into the 8-bit off-screen bitmap, for a
// narrow and a wide field and two limiting magnitudes; one frame of a scroll on the stored
// vectors against a full request of the same frame; and reading all 64 segments.
#include <benchmark/benchmark.h>

#include "SkyBitmap.h"

#include <cstring>
#include <memory>
#include <vector>

#include "catalogues/AstroItemCollector.h"
#include "catalogues/AstroList.h"
#include "catalogues/Request.h"
#include "catalogues/SegmentTable.h"
#include "catalogues/StarCatalogue.h"
#include "host/HostFile.h"
#include "platform/Gdi.h"
#include "platform/HostPalette.h"
#include "platform/Surface.h"
#include "platform/TBitmap.h"
#include "platform/TMemoryDC.h"
#include "platform/TPalette.h"
#include "skyview/DisplayParameters.h"
#include "time/AstroTime.h"

namespace {

constexpr int kWidth = 1024;
constexpr int kHeight = 768;
const TRect kRect(0, 0, kWidth, kHeight);
const char* const kLargeCatalogue = "cd:\\win32\\stars.bin";
const AstroTime kTime(1, 1, 2000, 0.0);

// A view that stands on the ground, turned `azimuth` degrees from north through west, with
// its centre `zenithDistance` degrees from the zenith.
Transformation GroundView(const TDC& dc, double radius, double azimuth, double zenithDistance)
{
    const PolarCoord zenith(100.0, 20.0);
    PerspectiveModifier horizon(zenith, PolarCoord(0.0, 90.0));
    PolarCoord centre;
    horizon.ReversePerspective(PolarCoord(azimuth, 90.0 - zenithDistance), centre);
    return Transformation(dc, kRect, centre, radius, zenith);
}

// Arguments: field radius, limiting magnitude. The view looks at Orion and Canis Major, along
// the Milky Way; its segments are resident after the first frame, as on a repaint.
void RequestAndDraw(benchmark::State& state)
{
    const double radius = double(state.range(0));
    const double limit = double(state.range(1));
    SkyBitmap sky(kWidth, kHeight);
    sky.Parameters.SetLimitingMagnitude(limit);
    StarCatalogue catalogue;
    if (!catalogue.Load(kLargeCatalogue)) {
        state.SkipWithError("stars.bin not found");
        return;
    }
    Transformation view(sky.DC(), kRect, PolarCoord(95.0, -5.0), radius, PolarCoord(0.0, 90.0));
    AstroList list(500, 1000);
    for (auto _ : state) {
        sky.Clear();
        list.Flush();
        Request request(view, CatalogueSet(AstroCatalogue::STARS), kTime, limit);
        catalogue.SatisfyRequest(request, list);
        sky.Draw(list);
    }
    state.counters["stars"] = double(list.GetCount());
}
BENCHMARK(RequestAndDraw)
    ->ArgNames({"radius", "limit"})
    ->Args({20, 6})
    ->Args({20, 9})
    ->Args({90, 6})
    ->Args({90, 9})
    ->Unit(benchmark::kMillisecond);

// One frame of a scroll along the horizon, answered by the collector: on the stored vectors
// when `scrolling`, otherwise as a full request of the same frame. Arguments: field radius,
// limiting magnitude. The frames go round the horizon two degrees at a time, so segments come
// and go as they would.
void ScrollFrame(benchmark::State& state, bool scrolling)
{
    const double radius = double(state.range(0));
    const double limit = double(state.range(1));
    SkyBitmap sky(kWidth, kHeight);
    sky.Parameters.SetLimitingMagnitude(limit);
    AstroItemCollector collector;
    if (!collector.LoadStarsFromBinaryFile(kLargeCatalogue)) {
        state.SkipWithError("stars.bin not found");
        return;
    }
    const AstroScrollInfo info(AstroScrollInfo::AZIMUTH_UP, 350, DegreeAngle(2.0));
    std::vector<Transformation> frames;
    for (int step = 0; step < 180; ++step) {
        frames.push_back(GroundView(sky.DC(), radius, 2.0 * step, 60.0));
    }
    AstroList list(500, 1000);
    std::size_t frame = 0;
    double shown = 0.0;
    for (auto _ : state) {
        Request request(frames[frame], CatalogueSet(AstroCatalogue::STARS), kTime, limit);
        if (scrolling) {
            request.SetScrolling(true);
            request.SetScrollInfo(info);
        }
        collector.SatisfyRequest(request, list);
        shown += double(list.GetCount());
        frame = (frame + 1) % frames.size();
    }
    state.counters["stars"] = shown / double(state.iterations());
}

void ScrollFrameOnStoredVectors(benchmark::State& state)
{
    ScrollFrame(state, true);
}
BENCHMARK(ScrollFrameOnStoredVectors)
    ->ArgNames({"radius", "limit"})
    ->Args({20, 6})
    ->Args({20, 9})
    ->Args({90, 9})
    ->Unit(benchmark::kMicrosecond);

void ScrollFrameAsFullRequest(benchmark::State& state)
{
    ScrollFrame(state, false);
}
BENCHMARK(ScrollFrameAsFullRequest)
    ->ArgNames({"radius", "limit"})
    ->Args({20, 6})
    ->Args({20, 9})
    ->Args({90, 9})
    ->Unit(benchmark::kMicrosecond);

// Every segment of the large file read from the file into stars, as a first view of the whole
// sky or a lookup by name does.
void ReadAllSegments(benchmark::State& state)
{
    HostFile file(kLargeCatalogue, HostFile::ReadOnly);
    double maxMagnitude = 0.0;
    SegmentTable table;
    if (!file.IsOpen() || !file.ReadDouble(maxMagnitude) || !table.Load(file)) {
        state.SkipWithError("stars.bin not found");
        return;
    }
    std::int64_t stars = 0;
    for (auto _ : state) {
        for (Segment& segment : table) {
            segment.Unload();
        }
        table.Update(file, SkyRange(true));
        for (const Segment& segment : table) {
            stars += std::int64_t(segment.GetStars()->size());
        }
    }
    state.SetItemsProcessed(stars);
}
BENCHMARK(ReadAllSegments)->Unit(benchmark::kMillisecond);

} // namespace
