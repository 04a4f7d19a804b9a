#pragma once
// A logical palette: up to 256 colours that palette-index colours refer to and that 8-bit
// bitmaps made with DIB_PAL_COLORS take as their colour table.
#include <memory>
#include <vector>

#include "platform/GdiPalette.h"
#include "platform/TAutoDelete.h"
#include "platform/TColor.h"
#include "platform/WinTypes.h"

class TPalette
{
public:
    TPalette(const PALETTEENTRY* entries, int count);
    explicit TPalette(const LOGPALETTE* logPalette);
    // Wraps an existing handle; with AutoDelete the handle is deleted with the wrapper.
    TPalette(HPALETTE handle, TAutoDelete autoDelete = NoAutoDelete);
    // A copy with a handle of its own.
    TPalette(const TPalette& other);
    TPalette& operator=(const TPalette&) = delete;
    ~TPalette();

    HPALETTE GetHandle() const { return Handle; }
    operator HPALETTE() const { return Handle; }
    // False for a wrapper of a handle that was not valid.
    bool IsOK() const { return pPalette != nullptr; }

    int GetNumEntries() const;
    UINT GetPaletteEntries(WORD start, WORD count, PALETTEENTRY* entries) const;
    UINT SetPaletteEntries(WORD start, WORD count, const PALETTEENTRY* entries);
    // The entry nearest to a colour; a palette-index colour gives its own index.
    UINT GetNearestPaletteIndex(const TColor& color) const;

    // The shared object, for device contexts that select the palette.
    const std::shared_ptr<GdiPalette>& GetObject() const { return pPalette; }

private:
    void Create(std::vector<PALETTEENTRY> entries);

    std::shared_ptr<GdiPalette> pPalette;
    HPALETTE Handle = nullptr;
    bool bAutoDelete = true;
};

// The entry of the palette of a handle nearest to a colour; CLR_INVALID for a bad handle.
UINT GetNearestPaletteIndex(HPALETTE palette, COLORREF color);
