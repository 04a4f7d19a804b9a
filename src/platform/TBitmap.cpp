#include "platform/TBitmap.h"

#include "platform/Surface.h"
#include "platform/TDC.h"
#include "platform/TDib.h"
#include "platform/TPalette.h"

TBitmap::TBitmap(HBITMAP handle, TAutoDelete autoDelete)
    : pBitmap(GdiObject::FromHandleAs<GdiBitmap>(handle)), Handle(pBitmap ? handle : nullptr),
      bAutoDelete(autoDelete == AutoDelete)
{}

TBitmap::TBitmap(const TDC& dc, int width, int height, bool /*discardable*/)
{
    const Surface& model = dc.GetSurface();
    auto surface = std::make_unique<Surface>(width, height, model.GetFormat());
    if (model.IsIndexed()) {
        surface->SetColorTable(model.ColorTable());
    }
    Adopt(std::move(surface));
}

TBitmap::TBitmap(const TDib& dib, const TPalette* palette)
{
    if (!dib.IsOK()) {
        return;
    }
    bool indexed = palette && palette->GetObject();
    auto surface = std::make_unique<Surface>(dib.Width(), dib.Height(),
                                             indexed ? PixelFormat::Indexed8 : PixelFormat::Rgb32);
    if (indexed) {
        std::vector<COLORREF> colors;
        for (int i = 0; i < palette->GetNumEntries(); ++i) {
            colors.push_back(palette->GetObject()->ColorOf(i));
        }
        surface->SetColorTable(colors);
    }
    for (int y = 0; y < dib.Height(); ++y) {
        for (int x = 0; x < dib.Width(); ++x) {
            surface->SetValue(x, y, surface->ValueForColor(dib.GetPixelColor(x, y)));
        }
    }
    Adopt(std::move(surface));
}

TBitmap::TBitmap(int width, int height, PixelFormat format)
{
    Adopt(std::make_unique<Surface>(width, height, format));
}

TBitmap::~TBitmap()
{
    if (bAutoDelete && Handle) {
        GdiObject::RemoveHandle(Handle);
    }
}

void TBitmap::Adopt(std::unique_ptr<Surface> surface)
{
    pBitmap = std::make_shared<GdiBitmap>(std::move(surface), false);
    Handle = static_cast<HBITMAP>(GdiObject::AddHandle(pBitmap));
    bAutoDelete = true;
}

int TBitmap::Width() const
{
    return pBitmap ? pBitmap->GetSurface().Width() : 0;
}

int TBitmap::Height() const
{
    return pBitmap ? pBitmap->GetSurface().Height() : 0;
}
