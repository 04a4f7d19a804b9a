#include <gtest/gtest.h>

#include <memory>

#include "state/CmdLineStateContainer.h"
#include "state/ColorFontState.h"

namespace {

TEST(ColorState, ColourIsALevelOfRedGreenAndBlue)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Grid Color") << TColor(255, 128, 0);
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "Grid_Color=<R=255 G=128 B=0>");

    CmdLineStateContainer reader(writer.GetCmdLine());
    TColor color = TColor::White;
    reader >> AstroKey("Grid Color") >> color;
    EXPECT_EQ(color, TColor(255, 128, 0));
}

TEST(ColorState, MissingKeysReadAsBlackAndWildValuesAreKeptInRange)
{
    CmdLineStateContainer empty;
    TColor color = TColor::White;
    empty >> AstroKey("Nothing") >> color;
    EXPECT_EQ(color, TColor::Black);

    CmdLineStateContainer wild(HostCmdLine("Color=<R=300 G=-5 B=17>"));
    wild >> AstroKey("Color") >> color;
    EXPECT_EQ(color, TColor(255, 0, 17));
}

TEST(FontState, FontKeepsFaceNameAndHeight)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Label Font") << TFont("Times New Roman", -16, 0, 0, 0, FW_BOLD);
    EXPECT_EQ(writer.GetCmdLine().GetRawText(),
              "Label_Font=<Face_Name=\"Times New Roman\" Height=-16>");

    CmdLineStateContainer reader(writer.GetCmdLine());
    TFont* font = nullptr;
    reader >> AstroKey("Label Font") >> font;
    std::unique_ptr<TFont> owned(font);
    ASSERT_NE(font, nullptr);
    LOGFONT lf{};
    font->GetObject(lf);
    EXPECT_STREQ(lf.lfFaceName, "Times New Roman");
    EXPECT_EQ(lf.lfHeight, -16);
    EXPECT_EQ(lf.lfWeight, FW_NORMAL) << "only face and height are state";
    EXPECT_EQ(lf.lfCharSet, DEFAULT_CHARSET);
    EXPECT_EQ(lf.lfItalic, 0);
}

TEST(FontState, MissingFontGivesAFontWithEmptyFaceAndHeightZero)
{
    CmdLineStateContainer empty;
    TFont* font = nullptr;
    empty >> AstroKey("Label Font") >> font;
    std::unique_ptr<TFont> owned(font);
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(font->GetFaceName(), "");
    EXPECT_EQ(font->GetHeight(), 0);
}

} // namespace
