#pragma once
// A status block of text: a heading on the first row and a fixed number of lines under it,
// indented. Setting a line only stores it; the kinds of block fill their lines from the map's
// state and then ask the panel to paint them again.
//
// Painted on the button face in the button text colour, each row one font height tall, clipped
// to the block and filled behind the text, so that a shorter new text leaves nothing behind.
#include <cstddef>
#include <string>

#include "catalogues/PointerVector.h"
#include "skyview/AstroStatusItem.h"

class TextStatusItem : public AstroStatusItem
{
public:
    // `lines` empty lines under the heading.
    TextStatusItem(int id, const std::string& heading, std::size_t lines);

    const std::string& GetHeading() const { return Heading; }
    std::size_t GetLineCount() const { return aLines.size(); }
    // The line's text; empty for a line the block does not have.
    const std::string& GetLine(std::size_t index) const;
    // Stores the text; a line the block does not have is ignored.
    void SetLine(std::size_t index, const std::string& text);

    // The block's content: the character count and indent across, a row for the heading and
    // one for each line down, for each side that shrink-wraps.
    void GetDesiredSize(TSize& size) override;
    void Paint(TDC& dc) override;

protected:
    // A number as a stream writes a double: six significant digits, no trailing zeros.
    static std::string Number(double value);

private:
    std::string Heading;
    PointerVector<std::string> aLines{true};
};
