// The object information dialog: what it shows of an object, the distance line of the bodies
// of the solar system, the magnitude dash and the article button.
#include <gtest/gtest.h>

#include <cstdio>

#include "DialogTesting.h"
#include "catalogues/AstroObject.h"
#include "host/HostStringTable.h"
#include "shell/ObjectInfoDialog.h"
#include "solar/PlanetCatalogue.h"
#include "solar/PlanetView.h"
#include "time/AstroTime.h"

namespace {

// An object with the texts and numbers the dialog reads, as given.
class InfoProbe : public AstroObject
{
public:
    InfoProbe(PolarCoord position, double magnitude, std::string launch = std::string())
        : AstroObject(ObjectType::Star), Position(position), Magnitude(magnitude),
          Launch(std::move(launch))
    {}
    PolarCoord GetPosition() const override { return Position; }
    double GetMagnitude() const override { return Magnitude; }
    const TPoint& GetDisplayPoint() const override { return Point; }
    void SetDisplayPoint(const TPoint& point) override { Point = point; }
    bool IsTimeDependent() const override { return false; }
    void Draw(TDC&, DisplayParameters&) override {}
    std::string GetLaunchString() const override { return Launch; }
    std::string GetInfoName() const override { return "Sirius"; }

private:
    PolarCoord Position;
    double Magnitude;
    std::string Launch;
    TPoint Point;
};

using ObjectInfoDialogs = DialogTest;

TEST_F(ObjectInfoDialogs, ShowsNameTypePlaceAndMagnitude)
{
    InfoProbe sirius(PolarCoord(DegreeAngle(101.2875), DegreeAngle(-16.7161)), -1.46);
    ObjectInfoDialog dialog(nullptr, sirius);
    EXPECT_EQ(
        RunDialog(
            dialog,
            [&](TWindow& window) {
                EXPECT_EQ(window.GetWindowText(), getHostString(5, 0x92d));
                EXPECT_TRUE(AllKeysReplaced(window));
                EXPECT_EQ(dialog.GetDlgItemText(ObjectInfoDialog::kName), "Sirius");
                EXPECT_EQ(dialog.GetDlgItemText(ObjectInfoDialog::kType), "Star");
                EXPECT_EQ(dialog.GetDlgItemText(ObjectInfoDialog::kRightAscension),
                          "06h 45m 09.0s");
                EXPECT_EQ(dialog.GetDlgItemText(ObjectInfoDialog::kDeclination),
                          "- 16\xB0 42' 58.0\"");
                EXPECT_EQ(dialog.GetDlgItemText(ObjectInfoDialog::kMagnitude), "-1.5");
                EXPECT_FALSE(
                    window.ChildWithId(ObjectInfoDialog::kDistanceLabel)->IsWindowVisible())
                    << "a star has no distance line";
                EXPECT_FALSE(window.ChildWithId(ObjectInfoDialog::kArticle)->IsWindowVisible())
                    << "no article, no button";
                HeadlessBackend::PressButton(window, IDOK);
            }),
        IDOK);
    EXPECT_EQ(dialog.GetLaunchString(), "");
}

TEST_F(ObjectInfoDialogs, MagnitudeOf99OrMoreShowsADash)
{
    EXPECT_EQ(ObjectInfoDialog::FormatMagnitude(99.0), "-");
    EXPECT_EQ(ObjectInfoDialog::FormatMagnitude(99.99), "-");
    EXPECT_EQ(ObjectInfoDialog::FormatMagnitude(98.94), "98.9");
    EXPECT_EQ(ObjectInfoDialog::FormatMagnitude(4.0), "4.0");
}

TEST_F(ObjectInfoDialogs, BodyOfTheSolarSystemShowsItsDistanceInAU)
{
    PlanetCatalogue planets;
    PlanetView* mars = planets.GetObjectByName("Mars");
    ASSERT_NE(mars, nullptr);
    mars->SetTime(AstroTime(1, 1, 2000, 0.0));
    char expected[48];
    std::snprintf(expected, sizeof expected, "%-4.3f AU", mars->GetDistance());

    ObjectInfoDialog dialog(nullptr, *mars);
    RunDialog(dialog, [&](TWindow& window) {
        EXPECT_TRUE(window.ChildWithId(ObjectInfoDialog::kDistanceLabel)->IsWindowVisible());
        EXPECT_EQ(dialog.GetDlgItemText(ObjectInfoDialog::kDistance), expected);
        EXPECT_NE(dialog.GetDlgItemText(ObjectInfoDialog::kDistance).find(" AU"),
                  std::string::npos);
        Desk().PressKey(VK_RETURN);
    });
}

TEST_F(ObjectInfoDialogs, ArticleButtonClosesWithTheObjectsCommand)
{
    InfoProbe sirius(PolarCoord(), 99.0, "article=Sirius");
    ObjectInfoDialog dialog(nullptr, sirius);
    EXPECT_EQ(RunDialog(dialog,
                        [&](TWindow& window) {
                            EXPECT_EQ(dialog.GetDlgItemText(ObjectInfoDialog::kMagnitude), "-");
                            HeadlessBackend::PressButton(window, ObjectInfoDialog::kArticle);
                        }),
              IDOK);
    EXPECT_EQ(dialog.GetLaunchString(), "article=Sirius");

    ObjectInfoDialog closed(nullptr, sirius);
    RunDialog(closed, [](TWindow& window) { HeadlessBackend::PressButton(window, IDOK); });
    EXPECT_EQ(closed.GetLaunchString(), "") << "OK alone reads no article";
}

TEST_F(ObjectInfoDialogs, HelpOpensTheTopic)
{
    InfoProbe sirius(PolarCoord(), 1.0);
    ObjectInfoDialog dialog(nullptr, sirius);
    RunDialog(dialog, [](TWindow& window) {
        HeadlessBackend::PressButton(window, 9);
        Desk().PressKey(VK_ESCAPE);
    });
    ASSERT_EQ(HelpRequests.size(), 1u);
    EXPECT_EQ(HelpRequests[0].Key, "Planetarium");
}

} // namespace
