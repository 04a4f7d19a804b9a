// The star display dialogs as a user works them: typed magnitudes kept within bounds or refused
// with the focus back on the field, samples that follow the settings, sliders that stop at
// their ends, and the map or the printed chart taking the result after OK only.
#include <algorithm>
#include <functional>
#include <tuple>

#include "ComponentInFrame.h"
#include "platform/TListBox.h"
#include "platform/TMemoryDC.h"
#include "platform/TPrinter.h"
#include "projection/RotatingOrientationInfo.h"
#include "shell/StarDisplayDialog.h"
#include "shell/StarRangeDialog.h"
#include "skyview/AstroPrintDialog.h"

namespace {

using Stars = StarDisplayParameters;
using Range = StarRangeDialog;
constexpr auto Press = &HeadlessBackend::PressButton;
constexpr auto Type = &HeadlessBackend::TypeInto;
const std::string kNotANumber = "Please type the magnitude as a number, such as 6 or 4.5.";

class StarDialogs : public ComponentInFrame
{
protected:
    // The star display dialog on `given`, worked by `act`; its settings after OK, or the given
    // ones when it was cancelled.
    static Stars Run(const Stars& given, const std::function<void(TWindow&)>& act)
    {
        StarDisplayDialog dialog(nullptr, given);
        return RunDialog(dialog, act) == IDOK ? dialog.GetStarDisplayParameters() : given;
    }
    static std::vector<std::uint32_t> Values(const Surface& surface)
    {
        std::vector<std::uint32_t> values;
        for (int y = 0; y < surface.Height(); ++y) {
            for (int x = 0; x < surface.Width(); ++x) {
                values.push_back(surface.ValueAt(x, y));
            }
        }
        return values;
    }
    // The pixels of the sample windows of a dialog, in their order, once painted.
    static std::vector<std::vector<std::uint32_t>> Samples(TWindow& dialog)
    {
        Pump();
        std::vector<std::vector<std::uint32_t>> samples;
        for (TWindow* child : dialog.GetChildren()) {
            if (dynamic_cast<SingleStarWindow*>(child)) {
                samples.push_back(Values(*WindowSystem::Get().CaptureWindow(child->HWindow)));
            }
        }
        return samples;
    }
};

TEST_F(StarDialogs, ALimitIsKeptWithinFiftyAndAMagnitudeThatIsNoNumberIsRefused)
{
    // Limit and label limit typed (with names shown), the limit taken, the field refused;
    // "\b" empties the field.
    const std::tuple<const char*, const char*, double, int> cases[] = {
        {"4", "3", 4.0, 0},
        {"60", "2", 50.0, 0},
        {"-60", "2", -50.0, 0},
        {" 7.5 ", "1e1", 7.5, 0},
        {"abc", "2", 6.0, StarDisplayDialog::kLimit},
        {"\b", "2", 6.0, StarDisplayDialog::kLimit},
        {"6,5", "2", 6.0, StarDisplayDialog::kLimit},
        {"nan", "2", 6.0, StarDisplayDialog::kLimit},
        {"5", "bright", 6.0, StarDisplayDialog::kLabelLimit}};
    for (const auto& [limit, label, taken, refused] : cases) {
        Messages.clear();
        const Stars result =
            Run(Stars(), [&, limit = limit, label = label, refused = refused](TWindow& dialog) {
                Press(dialog, StarDisplayDialog::kShowLabels);
                Type(dialog, StarDisplayDialog::kLimit, limit);
                Type(dialog, StarDisplayDialog::kLabelLimit, label);
                if (refused) {
                    AnswerMessage(IDOK);
                }
                Press(dialog, IDOK);
                if (refused) {
                    EXPECT_EQ(GetFocus(), dialog.ChildWithId(refused)->HWindow) << limit;
                    Press(dialog, IDCANCEL);
                }
            });
        EXPECT_EQ(result.LimitingMagnitude, taken) << limit;
        EXPECT_EQ(result.LabelType, refused ? 0u : 1u) << limit;
        EXPECT_EQ(Messages, std::vector<std::string>(refused ? 1 : 0, kNotANumber)) << limit;
    }
}

// The samples run from the limit to magnitude -1 and grow as they brighten; on a printed
// chart's settings they are dark on white, and the defaults keep them so.
TEST_F(StarDialogs, TheSamplesFollowTheLimitAndTheDefaultsKeepThePrintedChartsPaper)
{
    const std::pair<const char*, const char*> samples[] = {
        {"-3", "-1.0 -1.0 -1.0 -1.0"}, {"6", "6.0 3.7 1.3 -1.0"}, {"2", "2.0 1.0 0.0 -1.0"}};
    for (bool printing : {false, true}) {
        Stars given;
        given.SetPrinting(printing);
        given.SetShape(Stars::kRoundShape);
        const Stars result = Run(given, [&](TWindow& dialog) {
            for (const auto& [limit, texts] : samples) {
                Type(dialog, StarDisplayDialog::kLimit, limit);
                Desk().PressKey(VK_TAB);
                std::string shown;
                for (int i = 0; i < StarDisplayDialog::kSampleCount; ++i) {
                    shown.append(i ? " " : "")
                        .append(Text(dialog, StarDisplayDialog::kFirstSampleMagnitude + i));
                }
                EXPECT_EQ(shown, texts);
            }
            const auto pixels = Samples(dialog);
            const auto sky = [&pixels](int i) {
                return std::count(pixels[i].begin(), pixels[i].end(), pixels[i].front());
            };
            EXPECT_LT(sky(3), sky(0)) << "the brightest star is the largest";
            EXPECT_EQ(pixels[0].front(), Surface::RgbToValue(printing ? RGB(255, 255, 255) : 0));
            Press(dialog, StarDisplayDialog::kDefaults);
            EXPECT_EQ(Text(dialog, StarDisplayDialog::kLimit), "6");
            Press(dialog, IDOK);
        });
        EXPECT_EQ(result.Shape, Stars::kRayShape);
        EXPECT_EQ(result.IsPrinting(), printing);
    }
}

// A slider moves by its step at each arrow and stops at its ends: sizes from 0 to a quarter
// of an inch, grey levels from 0 to 255; the sample of its row follows.
TEST_F(StarDialogs, TheSlidersStopAtTheirEndsAndTheSampleOfTheirRowFollows)
{
    // The dialog, the slider and its arrow, and the range taken (lower, upper).
    const std::tuple<int, int, bool, const char*> cases[] = {
        {StarDisplayDialog::kModifySizes, Range::kDimmerSlider, false, "0.25 0.1"},
        {StarDisplayDialog::kModifySizes, Range::kBrighterSlider, true, "0.01 0"},
        {StarDisplayDialog::kModifyIntensity, Range::kDimmerSlider, false, "255 255"},
        {StarDisplayDialog::kModifyIntensity, Range::kBrighterSlider, true, "70 0"},
    };
    for (const auto& [button, slider, up, taken] : cases) {
        const Stars result =
            Run(Stars(), [&, button = button, slider = slider, up = up](TWindow& outer) {
                Desk().AnswerNextModal([&](TWindow& dialog) {
                    const std::size_t row = slider == Range::kDimmerSlider ? 0 : 1;
                    const auto before = Samples(dialog)[row];
                    TWindow& bar = *dialog.ChildWithId(slider);
                    for (int i = 0; i < 300; ++i) {
                        Desk().Click(bar, TPoint(bar.Attr.W / 2, up ? 1 : bar.Attr.H - 2));
                    }
                    EXPECT_NE(Samples(dialog)[row], before) << slider;
                    Press(dialog, IDOK);
                });
                Press(outer, button);
                Press(outer, IDOK);
            });
        const bool sizes = button == StarDisplayDialog::kModifySizes;
        std::ostringstream range;
        range << (sizes ? result.SizeRange.Lower : result.IntensityRange.Lower) << " "
              << (sizes ? result.SizeRange.Upper : result.IntensityRange.Upper);
        EXPECT_EQ(range.str(), taken) << slider;
    }
}

// The dimmer stars' magnitude may not lie below the brighter stars'; a refused dialog that is
// cancelled leaves the settings as they were.
TEST_F(StarDialogs, ARangeDialogRefusesCrossedMagnitudesAndCancelKeepsTheSettings)
{
    const Stars result = Run(Stars(), [&](TWindow& outer) {
        Desk().AnswerNextModal([&](TWindow& dialog) {
            for (const char* dimmer : {"1", "faint"}) {
                Type(dialog, Range::kDimmerMagnitude, dimmer);
                Type(dialog, Range::kBrighterMagnitude, "3");
                AnswerMessage(IDOK);
                Press(dialog, IDOK);
                EXPECT_EQ(GetFocus(), dialog.ChildWithId(Range::kDimmerMagnitude)->HWindow);
            }
            Press(dialog, IDCANCEL);
        });
        Press(outer, StarDisplayDialog::kModifyIntensity);
        Press(outer, IDOK);
    });
    EXPECT_EQ(Messages, (std::vector<std::string>{getHostString(5, 0x861), kNotANumber}));
    EXPECT_EQ(result.IntensityMagnitudeRange.Upper, Stars().IntensityMagnitudeRange.Upper);
    EXPECT_EQ(result.IntensityMagnitudeRange.Lower, Stars().IntensityMagnitudeRange.Lower);
}

// From the host's menu: a cancelled dialog changes nothing; a limit of 4 draws fewer stars,
// all of them brighter than 4; round stars cover more of the sky's pixels; both are kept for
// the next start. The print dialog's star button changes the chart's stars alone.
TEST_F(StarDialogs, TheMapAndThePrintedChartTakeTheStarsOfTheDialog)
{
    AstroNoxWindow* window = &Start();
    MapWindow* map = window->GetMap();
    map->SetOrientation(RotatingOrientationInfo(
        map->GetCollector().GetOrigin(), LatLong(48.85, 357.65), PolarCoord(180, 45), 40.0, true));
    map->SetLocationName("Paris");
    double faintest = 0.0;
    const auto drawn = [&] {
        Pump();
        int stars = 0;
        faintest = -99.0;
        for (std::size_t i = 0; i < map->GetVisibleObjects().GetCount(); ++i) {
            const AstroObject* o = map->GetVisibleObjects()[i];
            if (o->GetType() == AstroObject::ObjectType::Star) {
                ++stars;
                faintest = std::max(faintest, o->GetMagnitude());
            }
        }
        return stars;
    };
    const auto sky = [&] {
        const auto pixels = Values(map->GetMemoryDC()->GetSurface());
        return std::count(pixels.begin(), pixels.end(),
                          map->GetDisplayParameters().nBackgroundIndex);
    };
    const auto command = [&](UINT id, const std::function<void(TWindow&)>& act) {
        Desk().AnswerNextModal(act);
        window->SendMessage(WM_COMMAND, id, 0);
    };
    const int all = drawn();
    for (int button : {IDCANCEL, IDOK}) {
        command(AstroNoxWindow::kCmDisplayStars, [button](TWindow& dialog) {
            Type(dialog, StarDisplayDialog::kLimit, "4");
            Press(dialog, button);
        });
        EXPECT_EQ(drawn() < all, button == IDOK);
    }
    EXPECT_LE(faintest, 4.0);
    const auto raySky = sky();
    command(AstroNoxWindow::kCmDisplayStars, [](TWindow& dialog) {
        auto& shapes = dynamic_cast<TListBox&>(*dialog.ChildWithId(StarDisplayDialog::kShape));
        Desk().Click(shapes, TPoint(5, shapes.GetItemHeight() * 3 / 2));
        Press(dialog, IDOK);
    });
    drawn();
    EXPECT_LT(sky(), raySky);

    const TPrinter saved = TPrinter::Default();
    ASSERT_TRUE(TPrinter::Default().SetResolution(72));
    Desk().AnswerNextModal([](TWindow& printer) { Press(printer, IDOK); });
    command(AstroNoxWindow::kPrintCommand, [](TWindow& print) {
        Desk().AnswerNextModal([](TWindow& dialog) {
            Type(dialog, StarDisplayDialog::kLimit, "3");
            Press(dialog, IDOK);
        });
        Press(print, AstroPrintDialog::kModifyStarsId);
        auto& chart = dynamic_cast<AstroPrintDialog&>(print).GetPreview().GetDisplayParameters();
        EXPECT_EQ(chart.GetLimitingMagnitude(), 3.0);
        EXPECT_TRUE(chart.IsPrinting());
        Press(print, AstroPrintDialog::kCloseId);
    });
    TPrinter::Default() = saved;

    window->Destroy();
    map = Start().GetMap();
    EXPECT_EQ(map->GetDisplayParameters().GetLimitingMagnitude(), 4.0);
    EXPECT_EQ(map->GetDisplayParameters().GetShape(), Stars::kRoundShape);
}

} // namespace
