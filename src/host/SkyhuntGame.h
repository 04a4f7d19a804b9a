#pragma once
// The sky game of the reference host, which the planetarium's menu asks the host for: a window
// of its own with a bare sky map in it, driven through OrbiscopeWindowInterface alone.
//
// A round is five questions. Each names a well-known constellation that stands at least 30
// degrees above the horizon; the player clicks on the sky where they think it is. The game
// says near (the click within 12 degrees of the constellation's centre or of a star of its
// figure, a point) or far, with the distance; a mark fades in where the player clicked, the map
// turns to the constellation with the figures shown and the right one blinking, and the next click
// asks the next question. After the fifth the score stands until a click starts a new round.
//
// The sky is that of the map's first view: over San Francisco, now when it is dark there and
// else at the next sunset, seen with the zenith in the middle and 70 degrees to the nearer
// edge, stars and constellation figures only. The mouse only answers: it neither moves the
// view nor opens anything.
#include <array>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "platform/TColor.h"
#include "platform/TWindow.h"
#include "shell/OrbiscopeWindowInterface.h"

class Constellation;
class MorphingObject;

class SkyhuntGame : public TWindow
{
public:
    // The constellations the game asks for, by the full names of the constellation list.
    static constexpr std::array<const char*, 40> kConstellations{
        "Andromeda",   "Aquarius",    "Aquila",   "Aries",
        "Auriga",      "Bootes",      "Cancer",   "Canis Major",
        "Canis Minor", "Capricornus", "Carina",   "Cassiopeia",
        "Centaurus",   "Cepheus",     "Cetus",    "Corona Borealis",
        "Corvus",      "Crux",        "Cygnus",   "Delphinus",
        "Draco",       "Eridanus",    "Gemini",   "Hercules",
        "Hydra",       "Leo",         "Libra",    "Lyra",
        "Ophiuchus",   "Orion",       "Pegasus",  "Perseus",
        "Pisces",      "Sagittarius", "Scorpius", "Taurus",
        "Ursa Major",  "Ursa Minor",  "Virgo",    "Lepus"};
    static constexpr int kQuestionsPerRound = 5;
    // A click this near the centre of the constellation asked for, or a star of its figure,
    // scores, in degrees. The figure's stars count as well so that a click on the head of a long
    // constellation such as Hydra is near, although its centre lies 40 degrees away.
    static constexpr double kNearDegrees = 12.0;
    // Only constellations whose centre is at most this far from the zenith are asked for.
    static constexpr double kHighestZenithDistance = 60.0;
    static constexpr double kFieldRadius = 70.0;
    // The mark of the player's click: a ring this many degrees wide in this colour, fading in
    // over kFadeSteps steps of kFadeInterval milliseconds.
    static constexpr double kMarkDegrees = 5.0;
    static constexpr COLORREF kMarkColor = RGB(0, 255, 255);
    static constexpr int kFadeSteps = 8;
    static constexpr UINT kFadeInterval = 60;
    // The band of text above the map, in pixels.
    static constexpr int kBandHeight = 48;
    // The messages the map sends the game.
    static constexpr UINT kClickMessage = WM_USER + 1;
    static constexpr UINT kFieldChangeMessage = WM_USER + 2;

    // A game window of the usual size; `seed` chooses the questions. The map opens with the
    // window and the first round starts once it has drawn.
    explicit SkyhuntGame(std::uint32_t seed);
    ~SkyhuntGame() override;

    // The sky, for whoever wants to set it up before the window opens (a test fixes the time).
    OrbiscopeWindowInterface& GetSky() { return Sky; }
    // What the band shows: the question or the verdict, the line beneath it, the score.
    const std::string& GetPrompt() const { return Prompt; }
    const std::string& GetDetail() const { return Detail; }
    const std::string& GetScoreText() const { return ScoreText; }

    void SetupWindow() override;
    void Paint(TDC& dc, bool erase, TRect& rect) override;
    void EvSize(UINT sizeType, TSize& size);
    void EvTimer(UINT id);
    // A click on the map: the lparam is the PolarCoord* of the sky clicked.
    LRESULT EvSkyClicked(WPARAM, LPARAM lParam);
    // The map has drawn with a new projection: the first time, the round starts.
    LRESULT EvFieldChanged(WPARAM, LPARAM);
    const TResponseRow* Find(const TEventInfo& event) const override;

private:
    enum class Phase
    {
        // The map has not drawn yet, so its time (the nearest dark time) is not settled.
        Waiting,
        Asking,
        Answered,
        RoundOver,
        // No constellation of the list stands high enough.
        NothingToAsk,
    };

    void NewRound();
    // Puts the next question, with the sky back as it is for asking.
    void Ask();
    void Answer(const PolarCoord& clicked);
    // Degrees from `sky` to the nearer of the answer's centre and the stars of its figure.
    double DegreesFromAnswer(const PolarCoord& sky) const;
    // A constellation of the list that is up and not asked yet this round, or null.
    Constellation* ChooseConstellation();
    void SayScore();
    void RedrawBand();

    OrbiscopeWindowInterface Sky;
    std::mt19937 Random;
    Phase State = Phase::Waiting;
    int nQuestion = 0;
    int nScore = 0;
    std::vector<std::string> Asked;
    // The catalogue's, alive as long as the map.
    Constellation* pAnswer = nullptr;
    // The mark, added to the map while an answer stands.
    std::unique_ptr<MorphingObject> pMark;
    bool bMarkAdded = false;
    int nFadeStep = 0;
    std::string Prompt;
    std::string Detail;
    std::string ScoreText;
};

// Opens the sky game in its own window, or brings the open one to the front; false when the
// window cannot be made. The host's frame calls it when the planetarium asks for "skyhunt".
bool StartSkyhuntGame();
// Closes the game's window if it is open, before the desktop goes.
void CloseSkyhuntGame();
