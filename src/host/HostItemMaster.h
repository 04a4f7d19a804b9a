#pragma once
// The host's drawer of list rows: it counts the rows, prepares one row at a time (its text into
// the master's text field) and paints the prepared row in the master's five colours: the list's
// background and text, the selection's background and text, and the text of a disabled list.
//
// A derived master says how many rows there are (getCount) and fills the text field for a row
// (prepare, through SetPrepared); preparing the row already prepared costs nothing, and reset
// forgets it after the rows changed. The text's width is measured when first asked for.
#include <string>

#include "platform/TColor.h"
#include "platform/TListBoxItemMaster.h"
#include "platform/TSize.h"

class TFont;

class HostItemMaster : public TListBoxItemMaster
{
public:
    HostItemMaster();

    // The number of rows.
    virtual int getCount() const = 0;
    // Puts the text of a row into the text field; false for a row that does not exist.
    virtual bool prepare(int row) const = 0;
    // The size of the prepared row in the master's font: its text and a margin round it.
    virtual TSize getSize(const TDC& dc) const;
    // Paints the prepared row into its rectangle.
    virtual void paint(TDC& dc, const TRect& rect, bool selected, bool focused) const;
    // The font of the rows: the host's font for lists.
    virtual const TFont& getFont() const;
    // Forgets the prepared row.
    void reset();

    // Whether the list is enabled: a disabled list shows its text grey.
    void SetEnabled(bool enabled) { bEnabled = enabled; }

    TColor BackgroundListColor;
    TColor BackgroundHiliteColor;
    TColor TextColor;
    TColor TextHiliteColor;
    TColor TextGrayColor;

    // TListBoxItemMaster, through the operations above.
    int GetItemCount() const override { return getCount(); }
    std::string GetItemText(int row) const override;
    int GetItemHeight(const TDC& dc) const override;
    void PaintItem(TDC& dc, int row, const TRect& rect, bool selected, bool focused) override;
    TColor GetListBackground(const TColor&) const override { return BackgroundListColor; }

protected:
    // The row prepared, or -1.
    int GetPrepared() const { return nPrepared; }
    // Makes `text` the text of the prepared row `row`.
    void SetPrepared(int row, const std::string& text) const;
    const std::string& GetText() const { return Text; }
    // Writes the prepared row's text in the colour of its state; the background is painted.
    void PaintText(TDC& dc, const TRect& rect, bool selected) const;

private:
    // The prepared row is a cache of what the rows hold, so it may change in const calls.
    mutable int nPrepared = -1;
    mutable std::string Text;
    mutable int nWidth = 0;
    mutable bool bReady = false;
    bool bEnabled = true;
};
