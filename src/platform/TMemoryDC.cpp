#include "platform/TMemoryDC.h"

#include <memory>

#include "platform/Surface.h"

namespace {

std::shared_ptr<GdiBitmap> StockBitmap(const Surface* model)
{
    auto surface = std::make_unique<Surface>(1, 1, model ? model->GetFormat() : PixelFormat::Rgb32);
    if (model && model->IsIndexed()) {
        surface->SetColorTable(model->ColorTable());
    }
    return std::make_shared<GdiBitmap>(std::move(surface), false);
}

} // namespace

TMemoryDC::TMemoryDC() : TDC(ScreenDeviceCaps(), StockBitmap(nullptr))
{}

TMemoryDC::TMemoryDC(const TDC& dc) : TDC(dc.GetCaps(), StockBitmap(&dc.GetSurface()))
{}
