#pragma once
// A deadline for one draw of the map. While the view scrolls, a frame must be done before the
// scroll timer fires again, so the draw checks this limit between its steps and stops when it
// has run out; the part drawn so far is shown. A limit that was never started never expires.
//
// Milliseconds on the window system's clock (GetTickCount).
#include <cstdint>

class DrawTimeLimit
{
public:
    // Not running.
    DrawTimeLimit() = default;

    // Starts the clock now with a limit of `milliseconds`; 0 never expires.
    void Start(std::uint32_t milliseconds);
    // Running, with a limit above 0, and at least the limit has passed since Start.
    bool IsExpired() const;

    bool IsRunning() const { return bRunning; }
    std::uint32_t GetLimit() const { return nLimit; }

    // The limit for a frame of a scroll that steps every `intervalMs`: the interval less 10 ms
    // for the copy to the screen and the timer's own message, but never below 10 ms.
    static std::uint32_t ForScrollInterval(std::int32_t intervalMs);

private:
    std::uint32_t nLimit = 0;
    std::uint32_t nStartTick = 0;
    bool bRunning = false;
};
