// How fast the drawing layer does what every frame of the sky map does: single pixels for
// stars, filling and copying the whole off-screen bitmap, and labels.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "platform/Gdi.h"
#include "platform/HostPalette.h"
#include "platform/TBitmap.h"
#include "platform/TClientDC.h"
#include "platform/TMemoryDC.h"

namespace {

constexpr int kWidth = 1024;
constexpr int kHeight = 768;

// The map's off-screen bitmap: an 8-bit bottom-up DIB section of the host palette.
HBITMAP MakeMapBitmap(TDC& dc)
{
    return CreatePaletteDIBSection(&dc, kWidth, kHeight);
}

void SetPixels(benchmark::State& state, PixelFormat format)
{
    Surface surface(kWidth, kHeight, format);
    TClientDC dc(surface);
    // Star greys, as the slow path of star drawing sets them.
    const TColor greys[] = {TColor(70, 70, 70), TColor(107, 107, 107), TColor(165, 165, 165),
                            TColor(255, 255, 255)};
    long n = 0;
    for (auto _ : state) {
        for (int y = 100; y < 356; ++y) {
            for (int x = 100; x < 356; ++x) {
                dc.SetPixel(x, y, greys[(x ^ y) & 3]);
            }
        }
        n += 256 * 256;
    }
    state.SetItemsProcessed(n);
}

void BM_SetPixelIndexed8(benchmark::State& state)
{
    SetPixels(state, PixelFormat::Indexed8);
}
BENCHMARK(BM_SetPixelIndexed8)->Unit(benchmark::kMillisecond);

void BM_SetPixelRgb32(benchmark::State& state)
{
    SetPixels(state, PixelFormat::Rgb32);
}
BENCHMARK(BM_SetPixelRgb32)->Unit(benchmark::kMillisecond);

// One frame's worth of the map's copying: the sky is filled in the 8-bit bitmap, which is then
// copied to a window's RGB surface.
void BM_FillAndBlitFrameIndexed8ToRgb32(benchmark::State& state)
{
    Surface window(kWidth, kHeight, PixelFormat::Rgb32);
    TClientDC screen(window);
    TMemoryDC memory(screen);
    memory.SelectObject(HostPalette(), true);
    HBITMAP handle = MakeMapBitmap(memory);
    TBitmap bitmap(handle, AutoDelete);
    memory.SelectObject(bitmap);
    TBrush sky(TColor(0, 0, 0x60));
    TRect frame(0, 0, kWidth, kHeight);
    for (auto _ : state) {
        memory.FillRect(frame, sky);
        screen.BitBlt(frame, memory, TPoint(0, 0), SRCCOPY);
        benchmark::DoNotOptimize(window.Bits());
    }
    memory.RestoreObjects();
    state.SetItemsProcessed(state.iterations() * kWidth * kHeight);
}
BENCHMARK(BM_FillAndBlitFrameIndexed8ToRgb32)->Unit(benchmark::kMillisecond);

void BM_FillFrameIndexed8(benchmark::State& state)
{
    Surface map(kWidth, kHeight, PixelFormat::Indexed8, true);
    TClientDC dc(map);
    TBrush sky(TColor(0, 0, 0x60));
    for (auto _ : state) {
        dc.FillRect(TRect(0, 0, kWidth, kHeight), sky);
        benchmark::DoNotOptimize(map.Bits());
    }
    state.SetItemsProcessed(state.iterations() * kWidth * kHeight);
}
BENCHMARK(BM_FillFrameIndexed8)->Unit(benchmark::kMillisecond);

// 1000 labels of 8 characters in the label font (Arial, 0.14 inch at 96 dots per inch), drawn
// transparent as labels are.
void DrawLabels(benchmark::State& state, PixelFormat format)
{
    Surface surface(kWidth, kHeight, format);
    TClientDC dc(surface);
    TFont font("Arial", 13, 0, 0, 0, FW_NORMAL, 0, false, false, false, DEFAULT_CHARSET);
    dc.SelectObject(font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(TColor(255, 128, 0));
    std::vector<std::string> names;
    const char* words[] = {"Aldebara", "Betelgeu", "Capella ", "Deneb Al",
                           "Epsilon ", "Fomalhau", "Gienah C", "Hamal Ar"};
    for (int i = 0; i < 1000; ++i) {
        names.emplace_back(words[i % 8]);
    }
    for (auto _ : state) {
        for (int i = 0; i < 1000; ++i) {
            dc.TextOut((i * 97) % (kWidth - 80), (i * 53) % (kHeight - 20), names[std::size_t(i)]);
        }
        benchmark::DoNotOptimize(surface.Bits());
    }
    state.SetItemsProcessed(state.iterations() * 1000);
}

void BM_ThousandLabelsIndexed8(benchmark::State& state)
{
    DrawLabels(state, PixelFormat::Indexed8);
}
BENCHMARK(BM_ThousandLabelsIndexed8)->Unit(benchmark::kMillisecond);

void BM_ThousandLabelsRgb32(benchmark::State& state)
{
    DrawLabels(state, PixelFormat::Rgb32);
}
BENCHMARK(BM_ThousandLabelsRgb32)->Unit(benchmark::kMillisecond);

void BM_MeasureLabel(benchmark::State& state)
{
    Surface surface(4, 4, PixelFormat::Indexed8);
    TClientDC dc(surface);
    dc.SelectObject(TFont("Arial", 13));
    for (auto _ : state) {
        benchmark::DoNotOptimize(dc.GetTextExtent("Betelgeu"));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_MeasureLabel);

} // namespace
