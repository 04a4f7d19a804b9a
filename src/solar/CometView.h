#pragma once
// A comet on the sky map: the letter "X" in yellow centred on its place; no tail is drawn.
//
// Its uid is 500 plus its index in the comet list, without the base of the other objects, so a
// comet keeps its identity as long as its profile key keeps its number. Comets have no
// magnitude (99) and always carry a label.
#include <cstdint>
#include <string>

#include "solar/Comet.h"
#include "solar/PlanetView.h"

struct ListedComet;
class StringParser;

class CometView : public PlanetView
{
public:
    static constexpr std::uint32_t kUidOffset = 500;

    // A comet without an orbit, for Initialize.
    CometView();
    // A complete comet: angles in degrees, q in AU.
    CometView(unsigned index, const std::string& name, const AstroTime& perihelion, double q,
              double e, double inclination, double node, double argument);
    // An entry of the comet list.
    explicit CometView(const ListedComet& comet);

    // Reads a profile record (see Comet::Initialize); false, with the view as it was, when the
    // record is refused.
    bool Initialize(unsigned index, StringParser& parser);

    double GetMagnitude() const override { return 99.0; }
    std::uint32_t GetUid() const override { return kUidOffset + nIndex; }
    bool IsLabeled(const DisplayParameters& parameters) const override;
    void Draw(TDC& dc, DisplayParameters& parameters) override;

    SolarSystemObject& GetSolarSystemObject() const override { return Body; }
    Comet& GetComet() const { return Body; }
    unsigned GetIndex() const { return nIndex; }

private:
    // The body computes itself when asked; asking is no change of the view.
    mutable Comet Body;
    unsigned nIndex = 0;
};
