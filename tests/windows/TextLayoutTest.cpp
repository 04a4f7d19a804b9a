// Text in a rectangle as DrawText lays it out for labels, buttons and message boxes: line
// breaks, word wrapping and a word too long for the line.
#include <gtest/gtest.h>

#include "platform/Surface.h"
#include "platform/TClientDC.h"
#include "platform/TextLayout.h"

namespace {

TEST(TextInRectangle, WordsWrapAtTheWidthLineFeedsBreakAndLongWordsAreCut)
{
    Surface pixels(300, 200, PixelFormat::Rgb32);
    TClientDC dc(pixels);
    auto width = [&](const std::string& text) { return dc.GetTextExtent(text).cx; };
    const int line = width("Orion Taurus") + 2;
    TextLayout layout(dc, "Orion Taurus Gemini\nCancer", line, DT_WORDBREAK);
    EXPECT_EQ(layout.GetLines(), (std::vector<std::string>{"Orion Taurus", "Gemini", "Cancer"}));
    EXPECT_EQ(layout.GetHeight(), 3 * layout.GetLineHeight());
    EXPECT_EQ(TextLayout(dc, "Orion Taurus Gemini\nCancer", line, 0).GetLines().size(), 2u)
        << "without DT_WORDBREAK only line feeds break";
    EXPECT_EQ(TextLayout(dc, "Orion\nCancer", line, DT_SINGLELINE).GetLines(),
              std::vector<std::string>{"Orion Cancer"});

    TextLayout cut(dc, "Andromeda", width("Andro"), DT_WORDBREAK);
    std::string joined;
    for (const std::string& part : cut.GetLines()) {
        EXPECT_LE(width(part), width("Andro"));
        joined += part;
    }
    EXPECT_EQ(joined, "Andromeda") << "no letter lost";
}

} // namespace
