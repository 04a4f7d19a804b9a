#include "host/SkyhuntGame.h"

#include <algorithm>
#include <cmath>

#include "catalogues/Constellation.h"
#include "catalogues/ConstellationSettings.h"
#include "catalogues/MorphingObject.h"
#include "coords/AngleMath.h"
#include "host/HostStringTable.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TDib.h"
#include "platform/TFont.h"
#include "platform/WindowSystem.h"

namespace {

// The game's texts are in the host's string table.
constexpr short kHostStrings = 1;

// The map below the band, and the band's colours: the night sky's dark blue, white words.
constexpr int kSkyWidth = 800;
constexpr int kSkyHeight = 600;
const TColor kBandColor(0, 0, 0x60);
const TColor kPromptColor(255, 255, 255);
const TColor kDetailColor(200, 200, 200);
constexpr int kMargin = 10;

// The mark's picture: a ring with a dot in the middle, in two colours, black around.
constexpr int kMarkSide = 32;
// Every grey level of the mark is taken away at stage 1, so it fades in from black.
constexpr unsigned kMarkMaxFade = 255;

constexpr UINT_PTR kFadeTimer = 1;

std::string Text(const char* name)
{
    return replaceHostString(kHostStrings, name);
}

std::string Format(const char* name, const std::vector<std::string>& arguments)
{
    return formatHostString(Text(name), arguments);
}

// The angle between two directions, from the cross and dot products of their vectors, which
// keeps its digits for directions close together and nearly opposite alike.
double DegreesApart(const PolarCoord& a, const PolarCoord& b)
{
    const double ra = a.GetRA().GetRadians() - b.GetRA().GetRadians();
    const double da = a.GetDec().GetRadians();
    const double db = b.GetDec().GetRadians();
    const double across = std::cos(db) * std::sin(ra);
    const double along = std::cos(da) * std::sin(db) - std::sin(da) * std::cos(db) * std::cos(ra);
    const double dot = std::sin(da) * std::sin(db) + std::cos(da) * std::cos(db) * std::cos(ra);
    return RadiansToDegrees(std::atan2(std::hypot(across, along), dot));
}

std::unique_ptr<TDib> MarkPicture()
{
    auto dib = std::make_unique<TDib>(kMarkSide, kMarkSide, 16);
    dib->SetColor(1, TColor(SkyhuntGame::kMarkColor));
    const double middle = (kMarkSide - 1) / 2.0;
    for (int y = 0; y < kMarkSide; ++y) {
        for (int x = 0; x < kMarkSide; ++x) {
            const double r = std::hypot(x - middle, y - middle);
            if ((r >= 11.5 && r <= 15.5) || r <= 2.5) {
                dib->SetPixelIndex(x, y, 1);
            }
        }
    }
    return dib;
}

} // namespace

SkyhuntGame::SkyhuntGame(std::uint32_t seed)
    : TWindow(nullptr, Text("STID_SKYHUNT_TITLE").c_str()), Sky(this), Random(seed)
{
    Attr.W = kSkyWidth;
    Attr.H = kBandHeight + kSkyHeight;
    SetBkgndColor(kBandColor);
    if (TWindow* map = Sky.GetWindow()) {
        map->Attr.Y = kBandHeight;
        map->Attr.H = kSkyHeight;
    }
    Sky.DisableMouseInput(true);
    Sky.NotifyOnSingleClick(kClickMessage);
    Sky.NotifyWhenFieldChanges(kFieldChangeMessage);
    Sky.ShowPlanets(false);
    Sky.SetConstellationSettings(ConstellationSettings(false, false, false));
    Sky.SetFieldRadius(kFieldRadius);
    pMark = std::make_unique<MorphingObject>("mark", MarkPicture(), DegreeAngle(kMarkDegrees),
                                             kMarkMaxFade, AstroObject::ObjectType::OtherObject);
}

SkyhuntGame::~SkyhuntGame()
{
    // The map goes with this window's base, after the mark: take the mark off it first.
    if (bMarkAdded) {
        Sky.RemoveAddedObject(*pMark);
    }
    Sky.StopBlinking();
    Destroy();
}

const TResponseRow* SkyhuntGame::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        EvRow<WM_SIZE, &SkyhuntGame::EvSize>(),
        EvRow<WM_TIMER, &SkyhuntGame::EvTimer>(),
        MsgRow<kClickMessage, &SkyhuntGame::EvSkyClicked>(),
        MsgRow<kFieldChangeMessage, &SkyhuntGame::EvFieldChanged>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : TWindow::Find(event);
}

void SkyhuntGame::SetupWindow()
{
    TWindow::SetupWindow();
    Prompt = Text("STID_SKYHUNT_TITLE");
}

void SkyhuntGame::EvSize(UINT sizeType, TSize& size)
{
    TWindow::EvSize(sizeType, size);
    if (TWindow* map = Sky.GetWindow(); map && map->HWindow) {
        map->MoveWindow(0, kBandHeight, size.cx, std::max(1, size.cy - kBandHeight));
    }
}

void SkyhuntGame::Paint(TDC& dc, bool, TRect&)
{
    const TRect band(0, 0, GetClientRect().Width(), kBandHeight);
    dc.FillRect(band, TBrush(kBandColor));
    dc.SetBkMode(TRANSPARENT);
    const TFont large("Arial", 18, 0, 0, 0, FW_BOLD, 0, false, false, false, DEFAULT_CHARSET);
    const TFont small("Arial", 14, 0, 0, 0, FW_NORMAL, 0, false, false, false, DEFAULT_CHARSET);
    dc.SelectObject(large);
    dc.SetTextColor(kPromptColor);
    dc.TextOut(kMargin, 5, Prompt);
    const int scoreWidth = dc.GetTextExtent(ScoreText).cx;
    dc.TextOut(band.right - kMargin - scoreWidth, 5, ScoreText);
    dc.SelectObject(small);
    dc.SetTextColor(kDetailColor);
    dc.TextOut(kMargin, 28, Detail);
    dc.RestoreFont();
}

void SkyhuntGame::RedrawBand()
{
    if (HWindow) {
        InvalidateRect(TRect(0, 0, GetClientRect().Width(), kBandHeight), false);
    }
}

LRESULT SkyhuntGame::EvFieldChanged(WPARAM, LPARAM)
{
    // Only now is the map's time settled, and with it the zenith to centre the view on.
    if (State == Phase::Waiting) {
        NewRound();
    }
    return 0;
}

LRESULT SkyhuntGame::EvSkyClicked(WPARAM, LPARAM lParam)
{
    const auto* clicked = reinterpret_cast<const PolarCoord*>(lParam);
    switch (State) {
    case Phase::Asking:
        if (clicked) {
            Answer(*clicked);
        }
        break;
    case Phase::Answered:
        Ask();
        break;
    case Phase::RoundOver:
    case Phase::NothingToAsk:
        NewRound();
        break;
    case Phase::Waiting:
        break;
    }
    return 0;
}

void SkyhuntGame::EvTimer(UINT id)
{
    if (id != kFadeTimer) {
        return;
    }
    if (!bMarkAdded || nFadeStep >= kFadeSteps) {
        KillTimer(kFadeTimer);
        return;
    }
    ++nFadeStep;
    pMark->SetStage(1.0 - double(nFadeStep) / kFadeSteps);
    Sky.RefreshObject(*pMark);
}

void SkyhuntGame::NewRound()
{
    nQuestion = 0;
    nScore = 0;
    Asked.clear();
    Ask();
}

void SkyhuntGame::Ask()
{
    // The last answer goes: its blinking, the mark, the figures.
    Sky.StopBlinking();
    KillTimer(kFadeTimer);
    if (bMarkAdded) {
        Sky.RemoveAddedObject(*pMark);
        bMarkAdded = false;
    }
    Sky.SetConstellationSettings(ConstellationSettings(false, false, false));
    Sky.SetFieldRadius(kFieldRadius);
    Sky.ChangeCenterOfView(Sky.GetZenith());

    pAnswer = ChooseConstellation();
    if (!pAnswer) {
        State = Phase::NothingToAsk;
        Prompt = Text("STID_SKYHUNT_NOTHING_UP");
        Detail = Text("STID_SKYHUNT_NOTHING_UP_HINT");
        ScoreText.clear();
        RedrawBand();
        return;
    }
    Asked.push_back(pAnswer->GetName());
    ++nQuestion;
    State = Phase::Asking;
    Prompt = Format("STID_SKYHUNT_ASK", {pAnswer->GetName()});
    Detail = Text("STID_SKYHUNT_ASK_HINT");
    SayScore();
    RedrawBand();
}

Constellation* SkyhuntGame::ChooseConstellation()
{
    const PolarCoord zenith = Sky.GetZenith();
    std::vector<Constellation*> candidates;
    for (const char* name : kConstellations) {
        if (std::find(Asked.begin(), Asked.end(), name) != Asked.end()) {
            continue;
        }
        Constellation* c = Sky.GetConstellation(name);
        if (c && DegreesApart(c->GetCenter(), zenith) <= kHighestZenithDistance) {
            candidates.push_back(c);
        }
    }
    if (candidates.empty()) {
        return nullptr;
    }
    std::uniform_int_distribution<std::size_t> pick(0, candidates.size() - 1);
    return candidates[pick(Random)];
}

void SkyhuntGame::Answer(const PolarCoord& clicked)
{
    const double apart = DegreesFromAnswer(clicked);
    const bool near = apart <= kNearDegrees;
    if (near) {
        ++nScore;
    }
    const std::string degrees = std::to_string(int(std::lround(apart)));
    Prompt = Format(near ? "STID_SKYHUNT_NEAR" : "STID_SKYHUNT_FAR", {pAnswer->GetName(), degrees});
    if (nQuestion >= kQuestionsPerRound) {
        State = Phase::RoundOver;
        Detail = Format("STID_SKYHUNT_ROUND_OVER",
                        {std::to_string(nScore), std::to_string(kQuestionsPerRound)});
    } else {
        State = Phase::Answered;
        Detail = Text("STID_SKYHUNT_NEXT");
    }
    SayScore();
    RedrawBand();

    // The mark fades in where the player clicked; the sky turns to the answer, whose figure
    // blinks among the others.
    pMark->SetPosition(clicked);
    pMark->SetStage(1.0);
    Sky.AddObject(*pMark);
    bMarkAdded = true;
    nFadeStep = 0;
    SetTimer(kFadeTimer, kFadeInterval);
    Sky.SetConstellationSettings(ConstellationSettings(true, false, true));
    Sky.ShowConstellation(pAnswer->GetName());
    Sky.BlinkObject(*pAnswer);
}

double SkyhuntGame::DegreesFromAnswer(const PolarCoord& sky) const
{
    double nearest = DegreesApart(sky, pAnswer->GetCenter());
    for (const PolarCoord& star : pAnswer->GetFigurePoints()) {
        nearest = std::min(nearest, DegreesApart(sky, star));
    }
    return nearest;
}

void SkyhuntGame::SayScore()
{
    ScoreText =
        Format("STID_SKYHUNT_SCORE", {std::to_string(nQuestion), std::to_string(kQuestionsPerRound),
                                      std::to_string(nScore)});
}

namespace {

// The game's one window, kept from the first start until CloseSkyhuntGame.
std::unique_ptr<SkyhuntGame>& TheGame()
{
    static std::unique_ptr<SkyhuntGame> game;
    return game;
}

} // namespace

bool StartSkyhuntGame()
{
    std::unique_ptr<SkyhuntGame>& game = TheGame();
    if (game && game->HWindow) {
        WindowSystem::Get().Activate(*game);
        return true;
    }
    game = std::make_unique<SkyhuntGame>(std::random_device{}());
    if (!game->Create()) {
        game.reset();
        return false;
    }
    return true;
}

void CloseSkyhuntGame()
{
    TheGame().reset();
}
