#pragma once
// The object behind a bitmap handle: a surface, and for a DIB section the header it was made
// from, whose bits the caller writes directly.
#include <memory>

#include "platform/GdiObject.h"
#include "platform/Surface.h"
#include "platform/WinTypes.h"

class GdiBitmap : public GdiObject
{
public:
    // A device bitmap (no header) or, with `isDibSection`, a DIB section.
    GdiBitmap(std::unique_ptr<Surface> surface, bool isDibSection);

    Surface& GetSurface() { return *pSurface; }
    const Surface& GetSurface() const { return *pSurface; }
    bool IsDibSection() const { return bDibSection; }
    // The header of a DIB section as GetObjectA reports it.
    BITMAPINFOHEADER GetDibHeader() const;

    int Describe(int size, void* buffer) const override;

private:
    std::unique_ptr<Surface> pSurface;
    bool bDibSection;
};
