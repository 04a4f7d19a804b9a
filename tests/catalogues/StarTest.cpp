#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "catalogues/Star.h"
#include "platform/DebugStream.h"
#include "platform/Surface.h"
#include "platform/TDC.h"
#include "skyview/DisplayParameters.h"
#include "skyview/FontRef.h"
#include "skyview/Label.h"
#include "skyview/SkyCanvas.h"

namespace {

// Degrees from hours, minutes and seconds of time, and from a signed sexagesimal arc.
double HoursToDegrees(double h, double m, double s)
{
    return (h + m / 60.0 + s / 3600.0) * 15.0;
}
double ArcToDegrees(int sign, double d, double m, double s)
{
    return sign * (d + m / 60.0 + s / 3600.0);
}

// Positions pass through radians on the way in; this is far below the catalogues' precision.
constexpr double kPositionTolerance = 1e-9;

class StarLineTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Previous = SetDebugSink([this](const char* text) { Messages.emplace_back(text); });
    }
    void TearDown() override { SetDebugSink(Previous); }

    // A star that was loaded before, to see that a refused line leaves it alone.
    static Star LoadedStar() { return Star(42, 4.25, PolarCoord(10.0, 20.0), "Before"); }

    void ExpectUnchanged(const Star& star)
    {
        EXPECT_EQ(star.GetSAONumber(), 42u);
        EXPECT_DOUBLE_EQ(star.GetMagnitude(), 4.25);
        EXPECT_DOUBLE_EQ(star.GetPosition().GetRA().GetDegrees(), 10.0);
        ASSERT_TRUE(star.HasName());
        EXPECT_EQ(*star.GetName(), "Before");
    }

    std::vector<std::string> Messages;
    DebugSink Previous;
};

} // namespace

TEST_F(StarLineTest, FullLineGivesNumberMagnitudePositionAndName)
{
    Star star;
    ASSERT_TRUE(star.Initialize(" 1000 , 3.5,12, 30,15.5, +, 45, 15, 30.25,1,2,3, Name One "));
    EXPECT_EQ(star.GetSAONumber(), 1000u);
    EXPECT_DOUBLE_EQ(star.GetMagnitude(), 3.5);
    EXPECT_NEAR(star.GetPosition().GetRA().GetDegrees(), HoursToDegrees(12, 30, 15.5),
                kPositionTolerance);
    EXPECT_NEAR(star.GetPosition().GetDec().GetDegrees(), ArcToDegrees(1, 45, 15, 30.25),
                kPositionTolerance);
    ASSERT_TRUE(star.HasName());
    EXPECT_EQ(*star.GetName(), "Name One");
    EXPECT_TRUE(Messages.empty());
}

TEST_F(StarLineTest, MissingNumberOrMagnitudeIsReportedAndRefused)
{
    Star star = LoadedStar();
    EXPECT_FALSE(star.Initialize("12345"));
    ASSERT_EQ(Messages.size(), 1u);
    EXPECT_EQ(Messages[0], "Star::Initialize() - init line has no magnitude.\r\n");
    ExpectUnchanged(star);

    EXPECT_FALSE(star.Initialize(",,,"));
    ASSERT_EQ(Messages.size(), 2u);
    EXPECT_EQ(Messages[1], "Star::Initialize() - init line has no sao number.\r\n");
    ExpectUnchanged(star);
}

TEST_F(StarLineTest, DeclinationSignStandsInItsOwnField)
{
    Star star;
    ASSERT_TRUE(star.Initialize("1,2.0,1,0,0,-,05,30,0,a,b,c,South"));
    EXPECT_NEAR(star.GetPosition().GetDec().GetDegrees(), -5.5, kPositionTolerance);
    EXPECT_EQ(*star.GetName(), "South");

    // Without a sign field the first field is the degrees, and the sign is plus.
    ASSERT_TRUE(star.Initialize("1,2.0,1,0,0,05,30,0,a,b,c,North"));
    EXPECT_NEAR(star.GetPosition().GetDec().GetDegrees(), 5.5, kPositionTolerance);
    EXPECT_EQ(*star.GetName(), "North");

    // "-05" is the sign alone: its digits are lost, the next field is the degrees, and every
    // field after it moves up one place.
    ASSERT_TRUE(star.Initialize("1,2.0,1,0,0,-05,10,20,30,a,b,c,Shifted"));
    EXPECT_NEAR(star.GetPosition().GetDec().GetDegrees(), ArcToDegrees(-1, 10, 20, 30),
                kPositionTolerance);
    EXPECT_EQ(*star.GetName(), "Shifted");
}

TEST_F(StarLineTest, PositionOutOfRangeFailsWithoutAMessage)
{
    Star star = LoadedStar();
    EXPECT_FALSE(star.Initialize("7,1.0,24,0,0,+,10,0,0,a,b,c,Late"));
    EXPECT_FALSE(star.Initialize("7,1.0,23,0,0,+,91,0,0,a,b,c,Far"));
    EXPECT_FALSE(star.Initialize("7,1.0,23,60,0,+,10,0,0"));
    EXPECT_FALSE(star.Initialize("7,1.0"));
    EXPECT_TRUE(Messages.empty());
    ExpectUnchanged(star);

    // The edges that are allowed.
    ASSERT_TRUE(star.Initialize("7,1.0,23,59,59.9,-,90,0,0"));
    EXPECT_NEAR(star.GetPosition().GetDec().GetDegrees(), -90.0, kPositionTolerance);
}

TEST_F(StarLineTest, NameIsTheThirteenthFieldAndEmptySkippedFieldsSwallowIt)
{
    Star star;
    ASSERT_TRUE(star.Initialize("308,2.02,2,31,48.7,+,89,15,51,424,8890,11767,Polaris"));
    ASSERT_TRUE(star.HasName());
    EXPECT_EQ(*star.GetName(), "Polaris");

    // A run of commas is one separator: the name becomes the first skipped field.
    ASSERT_TRUE(star.Initialize("308,2.02,2,31,48.7,+,89,15,51,,,,Polaris"));
    EXPECT_FALSE(star.HasName());
    EXPECT_EQ(star.GetName(), nullptr);

    // A line without a name field leaves the star without a name.
    Star named(1, 1.0, PolarCoord(), "Old");
    ASSERT_TRUE(named.Initialize("308,2.02,2,31,48.7,+,89,15,51,424,8890,11767"));
    EXPECT_FALSE(named.HasName());
}

TEST(Star, NamesForListsAndTheInformationDialog)
{
    Star plain(308, 2.0, PolarCoord());
    EXPECT_EQ(plain.GetInfoName(), "SAO308");
    EXPECT_EQ(plain.GetListName(), "");
    EXPECT_FALSE(plain.HasListName());
    EXPECT_TRUE(plain.HasInfoName());

    Star named(151881, -1.46, PolarCoord(), "Sirius");
    EXPECT_EQ(named.GetInfoName(), "Sirius (SAO151881)");
    EXPECT_EQ(named.GetListName(), "Sirius");
    EXPECT_EQ(named.GetRefName(), "Sirius");
    EXPECT_TRUE(named.HasListName());

    // The empty text is no name.
    Star empty(5, 1.0, PolarCoord(), "");
    EXPECT_FALSE(empty.HasName());
}

TEST(Star, ListOrderIsByNameIgnoringCase)
{
    Star vega(67174, 0.03, PolarCoord(), "vega");
    Star altair(125122, 0.77, PolarCoord(), "Altair");
    Star alsoVega(1, 5.0, PolarCoord(), "VEGA");
    EXPECT_TRUE(altair.IsLessThan(vega));
    EXPECT_FALSE(vega.IsLessThan(altair));
    EXPECT_FALSE(vega.IsLessThan(alsoVega));
    EXPECT_FALSE(alsoVega.IsLessThan(vega));
}

TEST(Star, LabelledOnlyWithPopularNamesWhenNamedAndBrightEnough)
{
    DisplayParameters parameters;
    parameters.SetLabelType(StarDisplayParameters::kPopularNameLabels);
    parameters.SetLimitingMagnitudeLabels(2.0);

    EXPECT_TRUE(Star(1, 2.0, PolarCoord(), "AtTheLimit").IsLabeled(parameters));
    EXPECT_FALSE(Star(1, 2.01, PolarCoord(), "Fainter").IsLabeled(parameters));
    EXPECT_FALSE(Star(1, -1.0, PolarCoord()).IsLabeled(parameters));

    parameters.SetLabelType(StarDisplayParameters::kNoLabels);
    EXPECT_FALSE(Star(1, -1.0, PolarCoord(), "Bright").IsLabeled(parameters));
}

TEST(Star, CopyTakesTheCatalogueValuesAndNoneOfTheDisplayCaches)
{
    Star original(151881, -1.46, PolarCoord(101.287, -16.716), "Sirius");
    original.AddReference();
    original.SetDisplayPoint(TPoint(30, 40));
    original.SetScrollCache(RectCoord(1.0, 0.0, 0.0));

    Star copy(original);
    EXPECT_EQ(copy.GetSAONumber(), 151881u);
    EXPECT_DOUBLE_EQ(copy.GetMagnitude(), -1.46);
    EXPECT_TRUE(copy.GetPosition() == original.GetPosition());
    EXPECT_EQ(copy.GetReferenceCount(), 1);
    EXPECT_EQ(copy.GetDisplayPoint(), TPoint(0, 0));
    EXPECT_FALSE(copy.HasScrollCache());
    EXPECT_EQ(copy.GetPaletteIndex(), Star::kNoPaletteIndex);

    // The name is the copy's own.
    ASSERT_TRUE(original.Initialize("1,1.0,0,0,0,+,0,0,0,a,b,c,Other"));
    EXPECT_EQ(*copy.GetName(), "Sirius");

    // Copy into an existing star keeps that star's display point.
    Star target;
    target.SetDisplayPoint(TPoint(5, 6));
    target.Copy(copy);
    EXPECT_EQ(target.GetSAONumber(), 151881u);
    EXPECT_EQ(*target.GetName(), "Sirius");
    EXPECT_EQ(target.GetDisplayPoint(), TPoint(5, 6));
    original.ReleaseReference();
}

TEST(Star, FlushDisplayCacheForgetsScrollVectorAndColour)
{
    Star star(1, 1.0, PolarCoord());
    star.SetScrollCache(RectCoord(0.0, 1.0, 0.0));
    ASSERT_TRUE(star.HasScrollCache());
    star.FlushDisplayCache();
    EXPECT_FALSE(star.HasScrollCache());
    EXPECT_EQ(star.GetPaletteIndex(), Star::kNoPaletteIndex);
}

TEST(Star, TextLineIsWrittenInTheCatalogueForm)
{
    Star sirius(151881, -1.46,
                PolarCoord(HoursToDegrees(6, 45, 8.9), ArcToDegrees(-1, 16, 42, 58.25)), "Sirius");
    std::ostringstream out;
    sirius.Dump(out);
    EXPECT_EQ(out.str(), "151881,-1.46,6,45,8.9,-,16,42,58.25,,,,Sirius\n");

    Star north(7, 5, PolarCoord(HoursToDegrees(0, 0, 30), 0.5));
    out.str("");
    north.Dump(out);
    EXPECT_EQ(out.str(), "7,5,0,0,30,+,0,30,0,,,,\n");
}

TEST(Star, WrittenLineReadsBackWithoutItsName)
{
    Star original(113271, 0.5, PolarCoord(HoursToDegrees(5, 55, 10.3), ArcToDegrees(1, 7, 24, 25)),
                  "Betelgeuse");
    std::ostringstream out;
    original.Dump(out);

    Star back;
    std::string line = out.str();
    line.pop_back();
    ASSERT_TRUE(back.Initialize(line));
    EXPECT_EQ(back.GetSAONumber(), 113271u);
    EXPECT_DOUBLE_EQ(back.GetMagnitude(), 0.5);
    EXPECT_NEAR(back.GetPosition().GetRA().GetDegrees(),
                original.GetPosition().GetRA().GetDegrees(), 1e-6);
    EXPECT_NEAR(back.GetPosition().GetDec().GetDegrees(),
                original.GetPosition().GetDec().GetDegrees(), 1e-6);
    EXPECT_FALSE(back.HasName());
}

TEST(Star, SecondsThatRoundToSixtyAreWrittenAsTheNextMinute)
{
    // 23h 59m 59.9999999s: six digits would write 60 seconds, which no reader takes.
    Star late(9, 6.0, PolarCoord(HoursToDegrees(23, 59, 59.9999999), 10.0));
    std::ostringstream out;
    late.Dump(out);
    EXPECT_EQ(out.str().substr(0, 12), "9,6,0,0,0,+,");

    Star back;
    std::string line = out.str();
    line.pop_back();
    ASSERT_TRUE(back.Initialize(line));
    EXPECT_NEAR(back.GetPosition().GetRA().GetDegrees(), 0.0, 1e-6);
}

// ---- Labels ----

namespace {

// A named star on a 96-dpi canvas with popular-name labels.
class StarLabelTest : public ::testing::Test
{
protected:
    StarLabelTest() : Canvas(64, 64), Vega(67174, 0.03, PolarCoord(279.234, 38.784), "Vega")
    {
        Canvas.Parameters.SetLabelType(StarDisplayParameters::kPopularNameLabels);
        Vega.SetDisplayPoint(TPoint(30, 40));
    }

    SkyCanvas Canvas;
    Star Vega;
};

} // namespace

TEST_F(StarLabelTest, LabelIsTheNameInTheSharedStarFontAtTheStarsPoint)
{
    Label* label = Vega.GetLabel(Canvas.Parameters);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->GetText(), "Vega");
    EXPECT_EQ(label->GetObject(), &Vega);
    EXPECT_EQ(label->GetObjectPoint(), TPoint(30, 40));
    EXPECT_EQ(label->GetColor(), TColor::White);
    EXPECT_FALSE(label->IsFixed());
    EXPECT_EQ(label->GetFontRef(), StarDisplayParameters::GetLabelFontRef(Canvas.GetDC()));
    EXPECT_EQ(Vega.GetCachedLabelType(), StarDisplayParameters::kPopularNameLabels);

    // Kept while type and font stay; it follows the star when the star moves.
    EXPECT_EQ(Vega.GetLabel(Canvas.Parameters), label);
    Vega.SetDisplayPoint(TPoint(12, 8));
    EXPECT_EQ(label->GetObjectPoint(), TPoint(12, 8));
}

TEST_F(StarLabelTest, PrinterOfAnotherResolutionMakesABlackLabelInItsFont)
{
    const Label* screen = Vega.GetLabel(Canvas.Parameters);
    ASSERT_NE(screen, nullptr);

    Surface page(8, 8, PixelFormat::Rgb32);
    DeviceCaps printerCaps;
    printerCaps.LogPixelsX = printerCaps.LogPixelsY = 600;
    TDC printer(page, printerCaps);
    DisplayParameters printing(Canvas.Parameters);
    printing.pDC = &printer;
    printing.SetPrinting(true);
    const Label* paper = Vega.GetLabel(printing);
    ASSERT_NE(paper, nullptr);
    EXPECT_EQ(paper->GetColor(), TColor::Black);
    EXPECT_EQ(paper->GetFontRef()->GetFont().GetHeight(), 84); // 0.14 inch at 600 dpi

    const Label* again = Vega.GetLabel(Canvas.Parameters);
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->GetColor(), TColor::White);
    EXPECT_EQ(again->GetFontRef()->GetFont().GetHeight(), 13);
}

TEST_F(StarLabelTest, LabelTypeNoneGivesNothingButKeepsTheLabelForLater)
{
    const Label* label = Vega.GetLabel(Canvas.Parameters);
    ASSERT_NE(label, nullptr);
    Canvas.Parameters.SetLabelType(StarDisplayParameters::kNoLabels);
    EXPECT_EQ(Vega.GetLabel(Canvas.Parameters), nullptr);
    EXPECT_EQ(Vega.GetCachedLabel(), label);
    Canvas.Parameters.SetLabelType(StarDisplayParameters::kPopularNameLabels);
    EXPECT_EQ(Vega.GetLabel(Canvas.Parameters), label);
}

TEST_F(StarLabelTest, NoLabelWithoutANameAnUnknownTypeOrASurface)
{
    Star unnamed(67175, 0.5, PolarCoord());
    EXPECT_EQ(unnamed.GetLabel(Canvas.Parameters), nullptr);

    // An unknown type, from a damaged bookmark, drops the label and is remembered.
    ASSERT_NE(Vega.GetLabel(Canvas.Parameters), nullptr);
    Canvas.Parameters.SetLabelType(2);
    EXPECT_EQ(Vega.GetLabel(Canvas.Parameters), nullptr);
    EXPECT_EQ(Vega.GetCachedLabel(), nullptr);
    EXPECT_EQ(Vega.GetCachedLabelType(), 2u);

    Canvas.Parameters.SetLabelType(StarDisplayParameters::kPopularNameLabels);
    DisplayParameters noSurface(Canvas.Parameters);
    noSurface.pDC = nullptr;
    EXPECT_EQ(Vega.GetLabel(noSurface), nullptr);
}

TEST_F(StarLabelTest, CopyAndANewNameForgetTheLabel)
{
    ASSERT_NE(Vega.GetLabel(Canvas.Parameters), nullptr);
    Vega.Copy(Star(91262, 0.08, PolarCoord(79.172, 45.998), "Capella"));
    EXPECT_EQ(Vega.GetCachedLabel(), nullptr);
    EXPECT_EQ(Vega.GetCachedLabelType(), 0u);
    EXPECT_EQ(Vega.GetDisplayPoint(), TPoint(30, 40));
    EXPECT_EQ(Vega.GetLabel(Canvas.Parameters)->GetText(), "Capella");

    ASSERT_TRUE(Vega.Initialize("67174,0.03,18,36,56.3,+,38,47,1,a,b,c,Wega"));
    EXPECT_EQ(Vega.GetCachedLabel(), nullptr);
    EXPECT_EQ(Vega.GetLabel(Canvas.Parameters)->GetText(), "Wega");
}
