#pragma once
// One continuous movement of the view: which way, how often and how far per step.
//
// Directions: 1 and 2 turn the view along the horizon (the azimuth grows, or falls); 3 moves
// it towards the zenith and 4 towards the horizon. The interval is the pace of the map's
// scroll timer in milliseconds; the amount is the step in degrees.
#include <cstdint>

#include "coords/DegreeAngle.h"

class AstroScrollInfo
{
public:
    enum Direction : std::int32_t
    {
        AZIMUTH_UP = 1,
        AZIMUTH_DOWN = 2,
        TOWARDS_ZENITH = 3,
        TOWARDS_HORIZON = 4,
    };

    // The map's default: direction 1, every 350 milliseconds, 2 degrees a step.
    AstroScrollInfo() = default;
    AstroScrollInfo(std::int32_t direction, std::int32_t interval, const DegreeAngle& amount)
        : nDirection(direction), nInterval(interval), Amount(amount)
    {}

    std::int32_t GetDirection() const { return nDirection; }
    std::int32_t GetInterval() const { return nInterval; }
    const DegreeAngle& GetAmount() const { return Amount; }
    void SetDirection(std::int32_t direction) { nDirection = direction; }
    void SetInterval(std::int32_t interval) { nInterval = interval; }
    void SetAmount(const DegreeAngle& amount) { Amount = amount; }

    // Directions 3 and 4 move the view up or down; any other value moves it sideways.
    bool IsVertical() const
    {
        return nDirection == TOWARDS_ZENITH || nDirection == TOWARDS_HORIZON;
    }

    bool operator==(const AstroScrollInfo& other) const
    {
        return nDirection == other.nDirection && nInterval == other.nInterval &&
               Amount == other.Amount;
    }

private:
    std::int32_t nDirection = AZIMUTH_UP;
    std::int32_t nInterval = 350;
    DegreeAngle Amount = DegreeAngle(2.0);
};
