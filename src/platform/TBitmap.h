#pragma once
// A bitmap: a surface that a memory device context can select and draw on, behind a handle.
#include <memory>

#include "platform/GdiBitmap.h"
#include "platform/PixelFormat.h"
#include "platform/TAutoDelete.h"
#include "platform/TSize.h"
#include "platform/WinTypes.h"

class TDC;
class TDib;
class TPalette;

class TBitmap
{
public:
    // Wraps an existing handle (a DIB section, say); with AutoDelete the handle is deleted
    // with the wrapper.
    TBitmap(HBITMAP handle, TAutoDelete autoDelete = NoAutoDelete);
    // A bitmap in the format of the surface the context draws on now (for an 8-bit surface with
    // its colour table), cleared to 0.
    TBitmap(const TDC& dc, int width, int height, bool discardable = false);
    // The picture of a DIB. With a palette the bitmap is 8-bit with the palette's colours and
    // each pixel takes the nearest of them; without one it is 32-bit RGB.
    TBitmap(const TDib& dib, const TPalette* palette = nullptr);
    // A new bitmap of a given format, cleared to 0.
    TBitmap(int width, int height, PixelFormat format);
    ~TBitmap();

    TBitmap(const TBitmap&) = delete;
    TBitmap& operator=(const TBitmap&) = delete;

    bool IsOK() const { return pBitmap != nullptr; }
    int Width() const;
    int Height() const;
    TSize Size() const { return TSize(Width(), Height()); }
    HBITMAP GetHandle() const { return Handle; }
    operator HBITMAP() const { return Handle; }

    // The shared object, for device contexts that select the bitmap; null when not OK.
    const std::shared_ptr<GdiBitmap>& GetObject() const { return pBitmap; }

private:
    void Adopt(std::unique_ptr<Surface> surface);

    std::shared_ptr<GdiBitmap> pBitmap;
    HBITMAP Handle = nullptr;
    bool bAutoDelete = true;
};
