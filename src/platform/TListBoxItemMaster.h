#pragma once
// What draws the rows of an owner-drawn list box: it tells how many rows there are, how high
// they are and what text each stands for (for finding rows by their beginning), and paints
// each row. A list box with a master takes its rows from it and keeps no strings of its own.
#include <string>

#include "platform/TColor.h"
#include "platform/TRect.h"

class TDC;

class TListBoxItemMaster
{
public:
    virtual ~TListBoxItemMaster() = default;

    virtual int GetItemCount() const = 0;
    // The text of a row, as LB_GETTEXT and LB_FINDSTRING see it; empty by default.
    virtual std::string GetItemText(int row) const;
    // The height of every row, in pixels, for a context with the list's font selected; the
    // height of a line of that font with a pixel above and below by default.
    virtual int GetItemHeight(const TDC& dc) const;
    // The colour of the list below and beside the rows; the list's own colour by default.
    virtual TColor GetListBackground(const TColor& standard) const { return standard; }
    // Paints a row into its rectangle of the list's client area; the context holds the list's
    // font, and the background is not yet painted.
    virtual void PaintItem(TDC& dc, int row, const TRect& rect, bool selected, bool focused) = 0;
};
