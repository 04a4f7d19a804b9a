// How fast the window system does what the sky map asks of it all the time: messages sent and
// posted through response tables, timers firing, and the paint of an unchanged 1024 by 768
// window, which is one blit of the map's 8-bit off-screen bitmap to the window.
#include <benchmark/benchmark.h>

#include "platform/Gdi.h"
#include "platform/TBitmap.h"
#include "platform/TMemoryDC.h"
#include "platform/TWindow.h"
#include "platform/WindowSystem.h"
#include "platform/headless/HeadlessBackend.h"

namespace {

constexpr UINT kCount = WM_USER + 7;
constexpr int kWidth = 1024;
constexpr int kHeight = 768;

// A window with a table of the size the map's has, its counted message at the end.
class Counter : public TWindow
{
public:
    Counter() : TWindow(nullptr, "Counter")
    {
        Attr.X = 0;
        Attr.Y = 0;
        Attr.W = 200;
        Attr.H = 100;
    }
    long nCount = 0;
    void EvSize(UINT, TSize&) {}
    void EvTimer(UINT) { ++nCount; }
    void EvMouse(UINT, TPoint&) {}
    void EvChar(UINT, UINT, UINT) {}
    bool EvErase(HDC) { return true; }
    LRESULT EvCount(WPARAM, LPARAM)
    {
        ++nCount;
        return 0;
    }
    const TResponseRow* Find(const TEventInfo& event) const override
    {
        static const TResponseTable table{
            EvRow<WM_SIZE, &Counter::EvSize>(),        EvRow<WM_LBUTTONDOWN, &Counter::EvMouse>(),
            EvRow<WM_LBUTTONUP, &Counter::EvMouse>(),  EvRow<WM_RBUTTONDOWN, &Counter::EvMouse>(),
            EvRow<WM_MOUSEMOVE, &Counter::EvMouse>(),  EvRow<WM_TIMER, &Counter::EvTimer>(),
            EvRow<WM_ERASEBKGND, &Counter::EvErase>(), EvRow<WM_CHAR, &Counter::EvChar>(),
            MsgRow<kCount, &Counter::EvCount>(),
        };
        const TResponseRow* row = table.Find(event);
        return row ? row : TWindow::Find(event);
    }
};

void BM_SendMessage(benchmark::State& state)
{
    Headless();
    Counter window;
    window.Create();
    WindowSystem::Get().ProcessAll();
    for (auto _ : state) {
        window.SendMessage(kCount);
    }
    state.SetItemsProcessed(window.nCount);
    window.Destroy();
}
BENCHMARK(BM_SendMessage);

// Posted messages, taken from the queue by the loop a thousand at a time.
void BM_PostAndDispatch(benchmark::State& state)
{
    Headless();
    Counter window;
    window.Create();
    WindowSystem& system = WindowSystem::Get();
    system.ProcessAll();
    for (auto _ : state) {
        for (int i = 0; i < 1000; ++i) {
            window.PostMessage(kCount);
        }
        system.ProcessPending();
    }
    state.SetItemsProcessed(window.nCount);
    window.Destroy();
}
BENCHMARK(BM_PostAndDispatch);

// Ten timers on virtual time, a second at a time.
void BM_TimersOnVirtualTime(benchmark::State& state)
{
    HeadlessBackend& desk = Headless();
    Counter window;
    window.Create();
    for (UINT id = 1; id <= 10; ++id) {
        window.SetTimer(id, 10 * id);
    }
    for (auto _ : state) {
        desk.AdvanceTime(1000);
    }
    state.SetItemsProcessed(window.nCount);
    window.Destroy();
}
BENCHMARK(BM_TimersOnVirtualTime);

// The map's paint when nothing changed: one blit of its 8-bit DIB section to the window.
class Map : public TWindow
{
public:
    Map() : TWindow(nullptr, "Map")
    {
        Attr.X = 0;
        Attr.Y = 0;
        Attr.W = kWidth;
        Attr.H = kHeight;
        void* bits = nullptr;
        hBitmap = CreatePaletteDIBSection(nullptr, kWidth, kHeight, &bits);
        // A sky of a few stars.
        auto* pixels = static_cast<BYTE*>(bits);
        for (int i = 0; i < kWidth * kHeight; i += 97) {
            pixels[i] = BYTE(200 + i % 50);
        }
        pBitmap = std::make_unique<TBitmap>(hBitmap);
    }
    ~Map() override { DeleteObject(hBitmap); }
    void Paint(TDC& dc, bool, TRect& rect) override
    {
        if (!pMemory) {
            pMemory = std::make_unique<TMemoryDC>(dc);
            pMemory->SelectObject(*pBitmap);
        }
        dc.BitBlt(rect, *pMemory, rect.TopLeft(), SRCCOPY);
    }
    bool EvErase(HDC) { return true; }
    const TResponseRow* Find(const TEventInfo& event) const override
    {
        static const TResponseTable table{EvRow<WM_ERASEBKGND, &Map::EvErase>()};
        const TResponseRow* row = table.Find(event);
        return row ? row : TWindow::Find(event);
    }

private:
    HBITMAP hBitmap = nullptr;
    std::unique_ptr<TBitmap> pBitmap;
    std::unique_ptr<TMemoryDC> pMemory;
};

void BM_PaintUnchangedMap1024x768(benchmark::State& state)
{
    Headless();
    Map map;
    map.Create();
    WindowSystem::Get().ProcessAll();
    for (auto _ : state) {
        map.Invalidate(false);
        map.UpdateWindow();
    }
    state.SetItemsProcessed(state.iterations() * kWidth * kHeight);
    map.Destroy();
}
BENCHMARK(BM_PaintUnchangedMap1024x768)->Unit(benchmark::kMicrosecond);

} // namespace
