// The sky game as a player plays it, on the headless desktop with its virtual clock: the
// questions, the verdicts and the score of a round, the mark fading in where the player
// clicked, the answer's figure blinking, a new round; and the planetarium's menu entry, which
// opens the game through the host's frame.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string>

#include "catalogues/Constellation.h"
#include "host/HostBookmark.h"
#include "host/SkyhuntGame.h"
#include "platform/HostPalette.h"
#include "shell/ComponentInFrame.h"
#include "skyview/MapFixture.h"

namespace {

// 22h Pacific Standard Time on 2026 January 14 at the game's place, San Francisco: the winter
// constellations stand high.
class SkyhuntGameTest : public HeadlessTest
{
protected:
    void SetUp() override
    {
        HeadlessTest::SetUp();
        // A seed whose questions would repeat within a round if nothing kept them apart.
        pGame = std::make_unique<SkyhuntGame>(9);
        pGame->GetSky().SetTime(AstroTime(15, 1, 2026, 6.0));
        ASSERT_TRUE(pGame->Create());
        Pump();
    }
    void TearDown() override
    {
        pGame.reset();
        HeadlessTest::TearDown();
    }

    OrbiscopeWindowInterface& Sky() { return pGame->GetSky(); }
    MapWindow& Map() { return dynamic_cast<MapWindow&>(*Sky().GetWindow()); }
    bool PointOf(const PolarCoord& sky, TPoint& point)
    {
        return Map().GetTransformation()->Translate(sky, point) &&
               Map().GetClientRect().Contains(point);
    }
    // The constellation asked for, read from the question.
    Constellation* Asked()
    {
        for (const char* name : SkyhuntGame::kConstellations) {
            if (pGame->GetPrompt() == std::string("Where is ") + name + "?") {
                return Sky().GetConstellation(name);
            }
        }
        return nullptr;
    }
    // Degrees from `sky` to the constellation: to its centre or the nearest star of its figure.
    static double Nearest(const Constellation& c, const PolarCoord& sky)
    {
        double nearest = Apart(sky, c.GetCenter());
        for (const PolarCoord& star : c.GetFigurePoints()) {
            nearest = std::min(nearest, Apart(sky, star));
        }
        return nearest;
    }
    // A point of the sky on the screen at least 30 degrees from the constellation.
    TPoint FarFrom(const Constellation& c)
    {
        for (TPoint p : {TPoint(150, 300), TPoint(650, 300), TPoint(400, 60), TPoint(400, 540),
                         TPoint(60, 60), TPoint(740, 540), TPoint(740, 60), TPoint(60, 540)}) {
            PolarCoord there;
            if (Map().MapWindowPointToPolarCoord(p, there) && Nearest(c, there) > 30.0) {
                return p;
            }
        }
        ADD_FAILURE() << "no point of the sky far enough";
        return TPoint();
    }
    void ClickAt(const TPoint& point)
    {
        Desk().Click(Map(), point);
        Pump();
    }
    // Pixels of the palette's colour nearest `colour` within `area` of the map's screen.
    int Count(COLORREF colour, TRect area)
    {
        const COLORREF shown = HostPaletteColors()[IndexOf(TColor(colour))];
        const auto screen = WindowSystem::Get().CaptureWindow(Map().HWindow);
        area = area & TRect(0, 0, screen->Width(), screen->Height());
        int n = 0;
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x) {
                n += screen->ColorAt(x, y) == shown;
            }
        }
        return n;
    }
    // The screen rectangle of the figure's ends that are in view.
    TRect FigureArea(const Constellation& c)
    {
        TRect area(10000, 10000, -10000, -10000);
        for (const PolarCoord& end : c.GetFigurePoints()) {
            TPoint p;
            if (PointOf(end, p)) {
                area = TRect(std::min(area.left, p.x), std::min(area.top, p.y),
                             std::max(area.right, p.x + 1), std::max(area.bottom, p.y + 1));
            }
        }
        return area;
    }

    std::unique_ptr<SkyhuntGame> pGame;
};

} // namespace

TEST_F(SkyhuntGameTest, EveryConstellationTheGameAsksForIsInTheCatalogueOnce)
{
    std::set<std::string> names;
    for (const char* name : SkyhuntGame::kConstellations) {
        EXPECT_NE(Sky().GetConstellation(name), nullptr) << name;
        EXPECT_TRUE(names.insert(name).second) << name << " twice";
    }
}

TEST_F(SkyhuntGameTest, ARoundOfFiveIsScoredNearOrFarAndAClickStartsTheNext)
{
    // Where the player clicks for each question: on the centre, far off, or on the star of the
    // figure that is furthest from the centre, which is near too.
    enum Where
    {
        Centre,
        Far,
        FigureStar
    };
    const Where clicks[SkyhuntGame::kQuestionsPerRound] = {Centre, Far, FigureStar, Far, Centre};
    const COLORREF figure = RGB(0, 255, 0);
    const TPoint middle(400, 300);
    std::set<std::string> asked;
    int score = 0;
    for (int i = 0; i < SkyhuntGame::kQuestionsPerRound; ++i) {
        SCOPED_TRACE(testing::Message() << "question " << i + 1 << ": " << pGame->GetPrompt());
        Constellation* answer = Asked();
        ASSERT_NE(answer, nullptr);
        const std::string name = answer->GetName();
        EXPECT_TRUE(asked.insert(name).second) << "asked twice in a round";
        EXPECT_LE(Apart(answer->GetCenter(), Sky().GetZenith()), 60.0);
        EXPECT_EQ(pGame->GetScoreText(),
                  "Question " + std::to_string(i + 1) + " of 5   Score " + std::to_string(score));

        TPoint target;
        const bool near = clicks[i] != Far;
        if (clicks[i] == Centre) {
            ASSERT_TRUE(PointOf(answer->GetCenter(), target));
        } else if (clicks[i] == Far) {
            target = FarFrom(*answer);
        } else {
            double furthest = 0.0;
            for (const PolarCoord& star : answer->GetFigurePoints()) {
                TPoint p;
                if (PointOf(star, p) && Apart(star, answer->GetCenter()) > furthest) {
                    furthest = Apart(star, answer->GetCenter());
                    target = p;
                }
            }
            ASSERT_GT(furthest, SkyhuntGame::kNearDegrees) << "a star of the figure far out";
        }
        PolarCoord clicked;
        ASSERT_TRUE(Map().MapWindowPointToPolarCoord(target, clicked));
        ClickAt(target);
        score += near;
        EXPECT_EQ(pGame->GetPrompt().rfind((near ? "Near! " : "Far: ") + name + " is ", 0), 0u);
        EXPECT_EQ(pGame->GetScoreText(),
                  "Question " + std::to_string(i + 1) + " of 5   Score " + std::to_string(score));

        if (i == 0) {
            // The mark fades in from black where the player clicked; the view has turned to the
            // answer, whose figure blinks while the others stay.
            TPoint mark;
            ASSERT_TRUE(PointOf(clicked, mark));
            const TRect around(mark.x - 20, mark.y - 20, mark.x + 20, mark.y + 20);
            EXPECT_EQ(Count(SkyhuntGame::kMarkColor, around), 0);
            Desk().AdvanceTime(SkyhuntGame::kFadeSteps * SkyhuntGame::kFadeInterval);
            EXPECT_GT(Count(SkyhuntGame::kMarkColor, around), 20);
            const TRect lines = FigureArea(*answer);
            const int shown = Count(figure, lines);
            EXPECT_GT(shown, 20);
            Desk().AdvanceTime(MapWindow::kBlinkInterval -
                               SkyhuntGame::kFadeSteps * SkyhuntGame::kFadeInterval);
            EXPECT_LT(Count(figure, lines), shown / 2);
            Desk().AdvanceTime(MapWindow::kBlinkInterval);
            EXPECT_EQ(Count(figure, lines), shown);
        }
        if (i + 1 < SkyhuntGame::kQuestionsPerRound) {
            EXPECT_EQ(pGame->GetDetail(), "Click for the next constellation.");
            ClickAt(middle);
        }
    }
    EXPECT_EQ(pGame->GetDetail(), "Round over: 3 of 5 near. Click to play again.");
    Desk().AdvanceTime(SkyhuntGame::kFadeSteps * SkyhuntGame::kFadeInterval);
    const TRect all = Map().GetClientRect();
    EXPECT_GT(Count(SkyhuntGame::kMarkColor, all), 20);

    // A new round asks with the sky as it was: no mark, no figures.
    ClickAt(middle);
    EXPECT_NE(Asked(), nullptr) << pGame->GetPrompt();
    EXPECT_EQ(pGame->GetScoreText(), "Question 1 of 5   Score 0");
    EXPECT_EQ(Count(SkyhuntGame::kMarkColor, all), 0);
    EXPECT_EQ(Count(figure, all), 0);
}

TEST_F(ComponentInFrame, TheMenuEntryOfTheSkyGameOpensItsWindowOnceThroughTheHostsFrame)
{
    AstroNoxWindow& window = Start();
    auto games = [] {
        const auto& windows = WindowSystem::Get().GetTopLevels();
        return std::count_if(windows.begin(), windows.end(),
                             [](TWindow* w) { return w->GetWindowText() == "Sky Hunt"; });
    };
    window.SendMessage(WM_COMMAND, AstroNoxWindow::kCmSkyhuntGame, 0);
    window.SendMessage(WM_COMMAND, AstroNoxWindow::kCmSkyhuntGame, 0);
    Pump();
    EXPECT_EQ(games(), 1);
    // A module the host does not have is refused.
    HostBookmark chess("chess");
    EXPECT_EQ(FrameWindow.SendMessage(HostFrameWindow::kStartModuleMessage, 0,
                                      reinterpret_cast<LPARAM>(&chess)),
              0);
    CloseSkyhuntGame();
    EXPECT_EQ(games(), 0);
}
