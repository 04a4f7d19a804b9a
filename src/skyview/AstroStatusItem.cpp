#include "skyview/AstroStatusItem.h"

#include "platform/TGadgetWindow.h"
#include "platform/TMemoryDC.h"

AstroStatusItem::AstroStatusItem(int id) : TGadget(id, None)
{}

int AstroStatusItem::GetCharacterWidth() const
{
    const TGadgetWindow* window = GetGadgetWindow();
    if (!window) {
        return 0;
    }
    // Measured on the screen, whatever surface the panel paints on.
    TMemoryDC screen;
    screen.SelectObject(window->GetFont());
    TEXTMETRIC metrics{};
    if (!screen.GetTextMetrics(metrics)) {
        return 0;
    }
    return int((metrics.tmAveCharWidth + metrics.tmMaxCharWidth) / 2);
}

int AstroStatusItem::GetIndent() const
{
    return 2 * GetCharacterWidth();
}
